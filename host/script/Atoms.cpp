#include "host/script/Atoms.h"

#include "host/Console.h"
#include "host/FrameState.h"
#include "host/script/AtomSource.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/EventNames.h"
#include "teskara/element/TeskElement.h"

#include <charconv>
#include <filesystem>

namespace host {

namespace {

constexpr std::string_view ChunkName = "atom ";

std::string ChunkOf(u32 id)
{
    return std::string(ChunkName) + std::to_string(id);
}

std::string CurrentFileName()
{
    return std::filesystem::path(g_UIManager.CurrentFile).filename().string();
}

std::string ElementText(const TeskElement& element)
{
    return std::string(element.Type.c_str()) + " \"" + element.FullName.c_str() + '"';
}

// While an element reads its markup it is the latest that was made.
const TeskElement* LatestElement()
{
    return g_UIManager.FindElementByID(g_UIManager.NextElementID - 1);
}

std::string Join(const std::string& file, const std::string& rest)
{
    return file.empty() ? rest : file + ": " + rest;
}

} // namespace

Atoms::Running::Running(Atoms& atoms, const _MvTypeVar* self)
    : All(atoms), Self(self ? *self : _MvTypeVar()), Outer(atoms.m_Running)
{
    All.m_Running = this;
    ++All.m_Depth;
}

Atoms::Running::~Running()
{
    All.m_Running = Outer;
    --All.m_Depth;
}

u32 Atoms::Compile(std::string_view text)
{
    SayRefusal({});
    const auto source = AtomSource::Read(text);
    if (!source || m_LastID + 1 == 0)
        return 0;

    const u32 id = ++m_LastID;
    const auto atom = std::make_shared<Atom>();
    atom->File = CurrentFileName();
    if (!CompileBody(*atom, id, *source)) {
        const TeskElement* element = LatestElement();
        m_Refusal = {element ? Join(atom->File, ElementText(*element)) : atom->File, WithoutChunk(m_State.Error(), id)};
        return 0;
    }
    for (const AtomSource::Parameter& parameter : source->Parameters)
        atom->ParameterTypes.emplace_back(parameter.Type);
    m_Atoms[id] = atom;
    if (source->Name != "auto") // the name of all scripts of events
        m_Names[std::string(source->Name)] = id;
    return id;
}

void Atoms::Release(u32 atom)
{
    m_Atoms.erase(atom);
    std::erase_if(m_Names, [atom](const auto& entry) { return entry.second == atom; });
}

u32 Atoms::Find(const std::string& name) const
{
    const auto found = m_Names.find(name);
    return found == m_Names.end() ? 0 : found->second;
}

bool Atoms::Run(u32 id, int argc, char** argv, const _MvTypeVar* self, const TeskElement* owner, std::string* text)
{
    const auto found = m_Atoms.find(id);
    if (found == m_Atoms.end())
        return false;

    const std::shared_ptr<Atom> atom = found->second; // it may be released meanwhile
    if (atom->Where.empty())
        Describe(*atom, id, owner);

    const TrailStep step(m_Console.Trail(), atom->Where);
    const ScriptCall call(m_State);
    const Running running(*this, self);
    const ScriptBudget& budget = m_State.Budget();
    if (!budget.IsOutermost()) // whoever is outermost is to blame if it has to be stopped
        return RunBody(*atom, id, argc, argv, text);
    if (!atom->Rest.IsOver(budget.Frame()))
        return false;

    const bool ran = RunBody(*atom, id, argc, argv, text);
    atom->Rest.Note(budget.WhySpent(), budget.Frame());
    return ran;
}

bool Atoms::RunBody(Atom& atom, u32 id, int argc, char** argv, std::string* text)
{
    const int parameters = static_cast<int>(atom.ParameterTypes.size());
    const bool isReady = m_State.Protect([&](lua_State* thread) {
        luaL_checkstack(thread, parameters + 2, nullptr);
        atom.Function.Push(thread);
        m_Values.Push(thread, Self());
        for (int index = 0; index < parameters; ++index) {
            if (index < argc)
                ScriptValues::PushArgument(thread, atom.ParameterTypes[static_cast<std::size_t>(index)], argv[index]);
            else
                lua_pushnil(thread);
        }
    });
    if (!isReady || !m_State.Call(parameters + 1, text ? 1 : 0)) {
        SayWhyFailed(atom, id);
        return false;
    }
    if (text) {
        m_Values.AppendText(m_State.Thread(), -1, *text);
        lua_pop(m_State.Thread(), 1);
    }
    return true;
}

bool Atoms::SayRefusal(std::string_view event)
{
    if (!m_Refusal)
        return false;

    const Refusal refusal = std::move(*m_Refusal);
    m_Refusal.reset();
    const std::string where = event.empty() ? refusal.Where : refusal.Where + ' ' + std::string(event);
    const TrailStep step(m_Console.Trail(), where);
    m_Console.PrintText(refusal.Why, LineWeight::Error);
    return true;
}

void Atoms::Invalidate(const void* object)
{
    for (Running* running = m_Running; running; running = running->Outer) {
        if (running->Self.Value.Object == object)
            running->Self = {};
    }
}

void Atoms::ForgetType(const MvTypeDefinition* type)
{
    for (Running* running = m_Running; running; running = running->Outer) {
        if (running->Self.Type == type)
            running->Self = {};
    }
}

// The parameters are locals on the first line of the body, so that its lines count as the author wrote them.
bool Atoms::CompileBody(Atom& atom, u32 id, const AtomSource& source)
{
    std::string locals = "local this";
    for (const AtomSource::Parameter& parameter : source.Parameters)
        locals.append(", ").append(parameter.Name);
    locals += " = ...; ";

    const ScriptCall call(m_State);
    atom.Function = LuaReference(m_State, m_State.Compile(locals, source.Body, ('=' + ChunkOf(id)).c_str()));
    return atom.Function.Number() != LUA_NOREF;
}

void Atoms::Describe(Atom& atom, u32 id, const TeskElement* owner) const
{
    const char* event = owner ? NameOfEvent(*owner, id) : nullptr;
    std::string script = owner ? ElementText(*owner) : "script";
    if (event)
        script.append(" ").append(event);
    atom.Where = Join(atom.File, script);
}

// What fails in every frame is told of once.
void Atoms::SayWhyFailed(Atom& atom, u32 id)
{
    if (m_State.Budget().WhySpent() && !m_State.Budget().TakeNews())
        return;

    const std::string error = WithoutChunk(m_State.Error(), id);
    const bool isRepeated = error == atom.LastError && m_Frame.Number == atom.LastErrorFrame + 1;
    atom.LastError = error;
    atom.LastErrorFrame = m_Frame.Number;
    if (!isRepeated)
        m_Console.PrintText(error, LineWeight::Error);
}

// "atom 7:3: why" of atom 7 itself is "3: why"; of another it names that one.
std::string Atoms::WithoutChunk(const std::string& error, u32 id) const
{
    u32 chunk = 0;
    const char* end = error.data() + error.size();
    if (!error.starts_with(ChunkName))
        return error;
    const auto [colon, status] = std::from_chars(error.data() + ChunkName.size(), end, chunk);
    if (status != std::errc() || colon == end || *colon != ':')
        return error;

    const std::string rest(colon + 1, end);
    const auto other = m_Atoms.find(chunk);
    if (chunk == id || other == m_Atoms.end() || other->second->Where.empty())
        return rest;
    return "in " + other->second->Where + ": " + rest;
}

} // namespace host
