#include "host/probe/SequenceEvaluator.h"

#include "host/probe/HostTypes.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"
#include "teskara/element/TeskElement.h"

namespace {

constexpr std::size_t MostNested = 64;
constexpr std::string_view SequenceStart = "${";
constexpr std::string_view NoValue = "NULL";

class DepthCount
{
public:
    explicit DepthCount(std::size_t& depth) : m_Depth(depth) { ++m_Depth; }
    ~DepthCount() { --m_Depth; }
    DepthCount(const DepthCount&) = delete;
    DepthCount& operator=(const DepthCount&) = delete;

private:
    std::size_t& m_Depth;
};

std::vector<char*> ArgumentPointers(std::vector<std::string>& arguments)
{
    std::vector<char*> argv;
    for (std::string& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    return argv;
}

// What stands between "${" and "}" of a sequence.
std::string_view InsideOf(std::string_view sequence)
{
    return sequence.substr(SequenceStart.size(), sequence.size() - SequenceStart.size() - 1);
}

PathOutcome OutcomeOf(int dispatched)
{
    if (dispatched == DispatchUnknown)
        return PathOutcome::Unknown;
    return dispatched == DispatchFailed ? PathOutcome::None : PathOutcome::Value;
}

// Hands each sequence in a text to replace, and puts what it gives in its place.
template <class Replace> std::string ReplaceSequences(std::string_view text, Replace replace)
{
    std::string result;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t start = text.find(SequenceStart, at);
        const std::size_t end = start == std::string_view::npos ? start : FindSequenceEnd(text, start);
        if (end == std::string_view::npos)
            break;
        result += text.substr(at, start - at);
        result += replace(text.substr(start, end - start));
        at = end;
    }
    result += text.substr(std::min(at, text.size()));
    return result;
}

} // namespace

std::string SequenceEvaluator::Expand(std::string_view text)
{
    return ReplaceSequences(text, [this](std::string_view sequence) {
        const PathResult result = Evaluate(InsideOf(sequence));
        return result.Outcome == PathOutcome::Value ? TextOf(result.Value) : std::string(NoValue);
    });
}

std::string SequenceEvaluator::ExpandOutsideQuotes(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t sequence = text.find(SequenceStart);
        const std::size_t quote = text.find('"');
        if (quote == std::string_view::npos || sequence == std::string_view::npos)
            return result + Expand(text);

        std::size_t end = sequence < quote ? FindSequenceEnd(text, sequence) : quote;
        std::string value;
        if (sequence < quote)
            value = end == std::string_view::npos ? std::string(text) : Expand(text.substr(0, end));
        else if (ReadQuoted(text, end))
            value = ExpandParameters(text.substr(0, end));
        else
            return result + Expand(text);

        result += value;
        text.remove_prefix(std::min(end, text.size()));
    }
    return result;
}

std::string SequenceEvaluator::ExpandParameters(std::string_view text) const
{
    return ReplaceSequences(text, [this](std::string_view sequence) {
        const std::string* parameter = FindParameter(InsideOf(sequence));
        return parameter ? *parameter : std::string(sequence);
    });
}

PathResult SequenceEvaluator::EvaluateText(std::string_view text)
{
    if (text.starts_with(SequenceStart) && FindSequenceEnd(text, 0) == text.size())
        return Evaluate(InsideOf(text));
    return TextResult(Expand(text));
}

PathResult SequenceEvaluator::Evaluate(std::string_view text)
{
    const DepthCount depth(m_Depth);
    const auto path = ReadScriptPath(text);
    if (!path)
        return {PathOutcome::NoPath, {}};
    if (m_Depth > MostNested)
        return {PathOutcome::None, {}};

    const PathStep& first = path->front();
    const auto variable = Variables.find(first.Name);
    if (variable != Variables.end() && !FindParameter(first.Name) && path->size() == 2
        && path->back().Kind == PathStepKind::Method)
        return CallVariable(variable->second, path->back());

    const PathResult start = StartAt(first);
    return start.Outcome == PathOutcome::Value ? Follow(*path, 1, start.Value) : start;
}

PathResult SequenceEvaluator::EvaluateOn(const _MvTypeVar& object, std::string_view text)
{
    const DepthCount depth(m_Depth);
    auto path = ReadScriptPath(text);
    if (!path)
        return {PathOutcome::NoPath, {}};
    if (m_Depth > MostNested)
        return {PathOutcome::None, {}};

    path->front().Kind = PathStepKind::Member;
    return Follow(*path, 0, object);
}

std::string SequenceEvaluator::TextOf(const _MvTypeVar& value)
{
    if (!value.Type)
        return std::string(NoValue);
    if (const HostValueType* own = m_Types.AsOwn(value.Type))
        return own->Kind() == HostValueKind::String && !value.Value.Text ? std::string(NoValue)
                                                                         : own->TextOf(value.Value);
    char buffer[4096] = "";
    return value.Type->ToText(value.Value, buffer, sizeof buffer) ? std::string(buffer) : std::string(NoValue);
}

const std::string* SequenceEvaluator::FindParameter(std::string_view name) const
{
    const RunningAtom* atom = m_Atoms.Running();
    if (!atom)
        return nullptr;

    const auto found = atom->Parameters.find(name);
    return found != atom->Parameters.end() ? &found->second : nullptr;
}

PathResult SequenceEvaluator::StartAt(const PathStep& step)
{
    if (const std::string* parameter = FindParameter(step.Name))
        return TextResult(*parameter);
    if (const auto variable = Variables.find(step.Name); variable != Variables.end())
        return TextResult(variable->second);
    if (const auto object = Objects.find(step.Name); object != Objects.end())
        return AskObject(object->second, step);
    return {PathOutcome::Unknown, {}};
}

PathResult SequenceEvaluator::AskObject(TopLevelObjectHandler handler, const PathStep& step)
{
    std::vector<std::string> arguments = EvaluateArguments(step);
    const RunningAtom* atom = m_Atoms.Running();
    if (atom && atom->Self && step.Name == "UIElement" && !arguments.empty() && arguments[0] == "this"
        && !step.Arguments[0].IsQuoted) {
        const TeskElement* self = ElementOf(*atom->Self);
        arguments[0] = std::to_string(self ? self->ID : 0);
    }

    PathResult result;
    auto argv = ArgumentPointers(arguments);
    const bool answered = handler(static_cast<int>(arguments.size()), argv.data(), result.Value);
    result.Outcome = answered && result.Value.Type ? PathOutcome::Value : PathOutcome::None;
    return result;
}

PathResult SequenceEvaluator::CallVariable(std::string& variable, const PathStep& step)
{
    if (step.Name != "Set")
        return {PathOutcome::Unknown, {}};

    const std::vector<std::string> arguments = EvaluateArguments(step);
    if (arguments.empty())
        return {PathOutcome::None, {}};

    variable = arguments[0];
    return TextResult(variable);
}

PathResult SequenceEvaluator::Follow(const ScriptPath& path, std::size_t first, const _MvTypeVar& start)
{
    HeldReference held(m_References, start);
    for (std::size_t index = first; index < path.size(); ++index) {
        const PathOutcome outcome = Take(path[index], held.Value);
        if (outcome != PathOutcome::Value)
            return {outcome, {}};
    }
    return {PathOutcome::Value, held.Value};
}

PathOutcome SequenceEvaluator::Take(const PathStep& step, _MvTypeVar& value)
{
    std::vector<std::string> arguments = EvaluateArguments(step);
    if (!value.Type)
        return PathOutcome::None;

    auto argv = ArgumentPointers(arguments);
    const int argc = static_cast<int>(arguments.size());
    if (step.Kind == PathStepKind::Method)
        return OutcomeOf(value.Type->DispatchMethod(value.Value, step.Name.c_str(), argc, argv.data()));

    _MvTypeVar result;
    const PathOutcome outcome =
        OutcomeOf(value.Type->DispatchMember(value.Value, step.Name.c_str(), argc, argv.data(), result));
    value = result;
    return outcome == PathOutcome::Value && !result.Type ? PathOutcome::None : outcome;
}

std::vector<std::string> SequenceEvaluator::EvaluateArguments(const PathStep& step)
{
    std::vector<std::string> arguments;
    for (const PathArgument& argument : step.Arguments)
        arguments.push_back(argument.IsQuoted ? ExpandParameters(argument.Text) : Expand(argument.Text));
    return arguments;
}

PathResult SequenceEvaluator::TextResult(std::string_view text)
{
    _MvTypeVar value;
    value.Value.Text = m_Texts.Keep(text);
    value.Type = &m_Types.Own(HostValueKind::String);
    return {PathOutcome::Value, value};
}
