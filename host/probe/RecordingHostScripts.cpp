// Scripts, commands, objects, types and data sequences of the recording host.

#include "host/probe/RecordingHost.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace {

// An element while it lives, and while it is being destroyed; any other object is a star.
std::string ObjectText(const void* object)
{
    const auto& elements = g_UIManager.ElementsByID;
    const auto found =
        std::find_if(elements.begin(), elements.end(), [object](const auto& entry) { return entry.second == object; });
    return found != elements.end() && object ? ElementText(found->second) : "*";
}

std::string SelfText(const _MvTypeVar& self, const HostTypes& types)
{
    const TeskElement* element = ElementOf(self);
    return "this=" + (element ? ElementText(element) : TypedValueText(self, types));
}

} // namespace

HostScript* RecordingHost::GetCurrentScript()
{
    TracedCall call(m_Session.Output, HostOperation::GetCurrentScript);
    ProbeScript* script =
        m_Session.Refusals.Refuses(HostOperation::GetCurrentScript) ? nullptr : m_Session.Scripts.Current();
    if (!script)
        call.Returns("null");
    return script;
}

void RecordingHost::AddCommand(const char* name, CommandHandler handler, int parse, int hidden)
{
    TracedCall(m_Session.Output, HostOperation::AddCommand).Text(name).Number(parse).Number(hidden);
    if (!m_Session.Refusals.Refuses(HostOperation::AddCommand))
        m_Session.Commands.Add(name, handler);
}

void RecordingHost::RemoveCommand(const char* name)
{
    TracedCall(m_Session.Output, HostOperation::RemoveCommand).Text(name);
    m_Session.Commands.Remove(name);
}

int RecordingHost::ExecuteCommand(const char* text)
{
    TracedCall call(m_Session.Output, HostOperation::ExecuteCommand);
    call.Text(text);
    const bool refused = m_Session.Refusals.Refuses(HostOperation::ExecuteCommand) || !text;
    const int result = refused ? -1 : m_Session.Commands.Execute(std::string(text));
    call.Returns(std::to_string(result));
    return result;
}

int RecordingHost::DataParse(const char* text, char* output, u32 size)
{
    TracedCall call(m_Session.Output, HostOperation::DataParse);
    call.Text(text);
    if (m_Session.Refusals.Refuses(HostOperation::DataParse) || !text || !size)
        return -1;

    CopyText(output, size, m_Session.Sequences.Expand(std::string(text)));
    call.ReturnsText(output);
    return 0;
}

void RecordingHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    TracedCall(m_Session.Output, HostOperation::AddTopLevelObject).Text(name);
    if (name && handler && !m_Session.Refusals.Refuses(HostOperation::AddTopLevelObject))
        m_Session.Sequences.Objects[name] = handler;
}

void RecordingHost::RemoveTopLevelObject(const char* name)
{
    TracedCall(m_Session.Output, HostOperation::RemoveTopLevelObject).Text(name);
    if (name)
        m_Session.Sequences.Objects.erase(name);
}

void RecordingHost::AddType(MvTypeDefinition* type)
{
    TracedCall(m_Session.Output, HostOperation::AddType).Argument(TypeText(type));
    if (type && !m_Session.Refusals.Refuses(HostOperation::AddType))
        m_Session.Types.Add(type);
}

void RecordingHost::RemoveType(MvTypeDefinition* type)
{
    TracedCall(m_Session.Output, HostOperation::RemoveType).Argument(TypeText(type));
    m_Session.Types.Remove(type);
    m_Session.References.ForgetType(type);
}

MvTypeDefinition* RecordingHost::FindType(const char* name)
{
    TracedCall call(m_Session.Output, HostOperation::FindType);
    MvTypeDefinition* type =
        m_Session.Refusals.Refuses(HostOperation::FindType) ? nullptr : m_Session.Types.FindOwn(name);
    call.Text(name).Returns(TypeText(type));
    return type;
}

void RecordingHost::InvalidateTransientObject(u32 classID, void* object)
{
    TracedCall(m_Session.Output, HostOperation::InvalidateTransientObject).Number(classID).Argument("*");
    m_Session.References.Invalidate(object);
}

u32 RecordingHost::RegisterTransientClass(const char* name)
{
    TracedCall call(m_Session.Output, HostOperation::RegisterTransientClass);
    const u32 id = m_Session.Refusals.Refuses(HostOperation::RegisterTransientClass) ? 0 : AddClass();
    call.Text(name).Returns(std::to_string(id));
    return id;
}

const char* RecordingHost::CompleteCommandLine(const char* text, bool shift)
{
    TracedCall call(m_Session.Output, HostOperation::CompleteCommandLine);
    call.Text(text).Argument(BoolText(shift));
    const auto found = m_Completions.find(text ? text : "");
    const bool none = found == m_Completions.end() || m_Session.Refusals.Refuses(HostOperation::CompleteCommandLine);
    const char* completed = none ? nullptr : m_Session.Texts.Keep(found->second);
    call.ReturnsText(completed);
    return completed;
}

bool RecordingHost::Calculate(const char* text, double& result)
{
    TracedCall call(m_Session.Output, HostOperation::Calculate);
    call.Text(text).ReturnsBool(false);
    const auto number = ReadDecimal(text ? text : "");
    if (m_Session.Refusals.Refuses(HostOperation::Calculate) || !number)
        return false;

    result = *number;
    call.Returns(DoubleText(result));
    return true;
}

void RecordingHost::PrintLine(const char* format, ...)
{
    if (!m_Session.Output.Traces(OperationGroup(HostOperation::PrintLine)) || !format)
        return;

    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(static_cast<std::size_t>(std::max(length, 0)) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    va_end(arguments);
    text.pop_back();
    m_Session.Output.Line("PrintLine " + Quoted(text));
}

HostScriptInterface* RecordingHost::GetScriptInterface()
{
    TracedCall call(m_Session.Output, HostOperation::GetScriptInterface);
    if (!m_Session.Refusals.Refuses(HostOperation::GetScriptInterface))
        return &m_ScriptInterface;

    call.Returns("null");
    return nullptr;
}

u32 RecordingHost::CompileAtom(const char* source, u32 length)
{
    TracedCall call(m_Session.Output, HostOperation::CompileAtom);
    const std::string text(source ? source : "", source ? length : 0);
    call.Text(text.c_str());
    const u32 atom = m_Session.Refusals.Refuses(HostOperation::CompileAtom) ? 0 : m_Session.Atoms.Compile(text);
    call.ReturnsId("atom", atom);
    return atom;
}

void RecordingHost::ReleaseAtom(u32 atom)
{
    TracedCall(m_Session.Output, HostOperation::ReleaseAtom).Id("atom", atom);
    m_Session.Atoms.Release(atom);
}

int RecordingHost::ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, u32, char* output, u32 size)
{
    std::string text;
    if (!RunAtom(HostOperation::ExecuteAtomForText, atom, argc, argv, self, &text))
        return -1;

    CopyText(output, size, text);
    return 0;
}

int RecordingHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    return RunAtom(HostOperation::ExecuteAtom, atom, argc, argv, self, nullptr) ? 0 : -1;
}

// text: where the atom's text goes, which then is the call's result; null if it is not asked for.
bool RecordingHost::RunAtom(
    HostOperation operation, u32 atom, int argc, char** argv, _MvTypeVar* self, std::string* text)
{
    TracedCall call(m_Session.Output, operation);
    call.Id("atom", atom);
    if (call.IsTraced()) {
        call.Argument(ArgumentListText(argc, argv));
        if (self)
            call.Argument(SelfText(*self, m_Session.Types));
    }
    if (m_Session.Refusals.Refuses(operation))
        return false;

    std::vector<std::string> arguments;
    for (int index = 0; index < argc; ++index)
        arguments.emplace_back(argv[index] ? argv[index] : "");
    std::string result;
    const bool ran = m_Session.Atoms.Run(atom, arguments, self, result);
    if (text && ran) {
        call.Returns(Quoted(result));
        *text = result;
    }
    return ran;
}

u32 RecordingHost::FindAtom(const char* name)
{
    TracedCall call(m_Session.Output, HostOperation::FindAtom);
    const bool refused = m_Session.Refusals.Refuses(HostOperation::FindAtom) || !name;
    const u32 atom = refused ? 0 : m_Session.Atoms.Find(name);
    call.Text(name).ReturnsId("atom", atom);
    return atom;
}

u32 RecordingHost::PreParseSequence(const char* text, u32 keep)
{
    TracedCall call(m_Session.Output, HostOperation::PreParseSequence);
    call.Text(text).Number(keep);
    u32 sequence = 0;
    if (text && !m_Session.Refusals.Refuses(HostOperation::PreParseSequence)) {
        sequence = ++m_LastSequence;
        m_Sequences[sequence] = text;
    }
    call.ReturnsId("sequence", sequence);
    return sequence;
}

bool RecordingHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    TracedCall call(m_Session.Output, HostOperation::RetrieveOriginalText);
    call.Id("sequence", sequence).ReturnsBool(false);
    const auto found = m_Sequences.find(sequence);
    if (found == m_Sequences.end() || !size || m_Session.Refusals.Refuses(HostOperation::RetrieveOriginalText))
        return false;

    CopyText(buffer, size, found->second);
    call.ReturnsText(buffer);
    return true;
}

bool RecordingHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    TracedCall call(m_Session.Output, HostOperation::RetrieveProcessedText);
    call.Id("sequence", sequence).ReturnsBool(false);
    const auto found = m_Sequences.find(sequence);
    if (found == m_Sequences.end() || !size || m_Session.Refusals.Refuses(HostOperation::RetrieveProcessedText))
        return false;

    const std::string text = found->second;
    CopyText(buffer, size, m_Session.Sequences.Expand(text));
    call.ReturnsText(buffer);
    return true;
}

bool RecordingHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    TracedCall call(m_Session.Output, HostOperation::RetrieveProcessedResult);
    call.Id("sequence", sequence).ReturnsBool(false);
    const auto found = m_Sequences.find(sequence);
    if (found == m_Sequences.end() || m_Session.Refusals.Refuses(HostOperation::RetrieveProcessedResult))
        return false;

    const std::string text = found->second;
    const PathResult read = m_Session.Sequences.EvaluateText(text);
    if (read.Outcome != PathOutcome::Value)
        return false;

    result = read.Value;
    if (call.IsTraced())
        call.Returns(TypedValueText(result, m_Session.Types));
    return true;
}

void RecordingHost::FreeSequence(u32 sequence)
{
    TracedCall(m_Session.Output, HostOperation::FreeSequence).Id("sequence", sequence);
    m_Sequences.erase(sequence);
}

u32 RecordingHost::RegisterObjectClass(const char* name)
{
    TracedCall call(m_Session.Output, HostOperation::RegisterObjectClass);
    const u32 id = m_Session.Refusals.Refuses(HostOperation::RegisterObjectClass) ? 0 : AddClass();
    call.Text(name).Returns(std::to_string(id));
    return id;
}

void RecordingHost::InvalidateObject(u32 classID, void* object)
{
    TracedCall call(m_Session.Output, HostOperation::InvalidateObject);
    call.Number(classID);
    if (call.IsTraced())
        call.Argument(ObjectText(object));
    m_Session.References.Invalidate(object);
}

void RecordingHost::SetTypeObjectClass(MvTypeDefinition* type, u32 classID)
{
    TracedCall(m_Session.Output, HostOperation::SetTypeObjectClass).Argument(TypeText(type)).Number(classID);
}
