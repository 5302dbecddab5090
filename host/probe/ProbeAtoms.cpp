#include "host/probe/ProbeAtoms.h"

#include "host/probe/ValueText.h"

namespace {

// More than the toolkit lets run inside each other, so that its own limit is seen.
constexpr std::size_t MostRunning = 200;

// "int A, string B" gives A and B: the last word of each part.
std::vector<std::string> ReadParameters(std::string_view text)
{
    std::vector<std::string> names;
    text = TrimBlanks(text);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(','), text.size());
        const std::string_view part = TrimBlanks(text.substr(0, end));
        const std::size_t blank = part.find_last_of(" \t");
        names.emplace_back(blank == std::string_view::npos ? part : part.substr(blank + 1));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return names;
}

bool DoesNotCompile(std::string_view body)
{
    for (const std::string_view line : SplitLines(body)) {
        if (TrimBlanks(line) == "!")
            return true;
    }
    return false;
}

} // namespace

u32 ProbeAtoms::Compile(std::string_view source)
{
    constexpr std::string_view BodyStart = ")\n{\n";
    constexpr std::string_view BodyEnd = "\n}\n";
    const std::size_t parameters = source.find('(');
    const std::size_t start = source.find(BodyStart);
    if (!source.starts_with("atom ") || !source.ends_with(BodyEnd) || parameters > start
        || start == std::string_view::npos)
        return 0;

    const std::size_t body = start + BodyStart.size();
    const std::size_t end = source.size() - BodyEnd.size();
    return Store(source.substr(parameters + 1, start - parameters - 1),
        body < end ? source.substr(body, end - body) : std::string_view());
}

u32 ProbeAtoms::CompileNamed(const std::string& name, std::string_view parameters, std::string_view body)
{
    const u32 atom = Store(parameters, body);
    if (atom)
        m_Names[name] = atom;
    return atom;
}

u32 ProbeAtoms::Store(std::string_view parameters, std::string_view body)
{
    if (DoesNotCompile(body))
        return 0;

    ProbeAtom atom{ReadParameters(parameters), ReadCommandLines(body)};
    m_Atoms[++m_LastAtom] = std::make_shared<const ProbeAtom>(std::move(atom));
    return m_LastAtom;
}

u32 ProbeAtoms::Find(const std::string& name) const
{
    const auto found = m_Names.find(name);
    return found != m_Names.end() ? found->second : 0;
}

bool ProbeAtoms::Run(u32 atom, const std::vector<std::string>& arguments, const _MvTypeVar* self, std::string& text)
{
    const auto found = m_Atoms.find(atom);
    if (found == m_Atoms.end() || m_Running.size() >= MostRunning)
        return false;

    const std::shared_ptr<const ProbeAtom> running = found->second;
    const HeldReference held(m_References, self ? *self : _MvTypeVar());
    RunningAtom frame;
    frame.Self = self ? &held.Value : nullptr;
    for (std::size_t index = 0; index < running->Parameters.size() && index < arguments.size(); ++index)
        frame.Parameters[running->Parameters[index]] = arguments[index];

    m_Running.push_back(&frame);
    for (const CommandLine& command : running->Commands) {
        m_Runner(command);
        if (frame.Text)
            break;
    }
    m_Running.pop_back();
    text = frame.Text.value_or("");
    return true;
}
