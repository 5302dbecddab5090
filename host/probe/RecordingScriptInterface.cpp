#include "host/probe/RecordingScriptInterface.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/TypedValue.h"
#include "host/probe/ValueText.h"

namespace {

// A query holds unless its text says zero, FALSE or NULL.
bool Holds(const std::string& text)
{
    const auto number = ReadDecimal(text);
    return !(number && *number == 0) && text != "FALSE" && text != "NULL";
}

} // namespace

bool RecordingScriptInterface::ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag)
{
    TracedCall call(m_Session.Output, HostOperation::ParseTypedValue);
    call.Text(text).Number(flag).ReturnsBool(false);
    if (m_Session.Refusals.Refuses(HostOperation::ParseTypedValue) || !text)
        return false;

    const PathResult read = m_Session.Sequences.Evaluate(text);
    if (read.Outcome != PathOutcome::Value)
        return false;

    result = read.Value;
    if (call.IsTraced())
        call.Returns(TypedValueText(result, m_Session.Types));
    return true;
}

MvTypeDefinition* RecordingScriptInterface::FindTypeByName(const char* name, u32 unused1, u32 unused2)
{
    TracedCall call(m_Session.Output, HostOperation::FindTypeByName);
    call.Text(name).Number(unused1).Number(unused2);
    MvTypeDefinition* type =
        m_Session.Refusals.Refuses(HostOperation::FindTypeByName) ? nullptr : m_Session.Types.Find(name);
    call.Returns(TypeText(type));
    return type;
}

char* RecordingScriptInterface::MakeTempBuffer(std::size_t size, const char* text)
{
    TracedCall call(m_Session.Output, HostOperation::MakeTempBuffer);
    call.Number(static_cast<i64>(size)).Text(text);
    constexpr std::size_t LargestBuffer = 1u << 24;
    if (m_Session.Refusals.Refuses(HostOperation::MakeTempBuffer) || size > LargestBuffer) {
        call.Returns("null");
        return nullptr;
    }

    char* buffer = m_Session.Texts.Keep(size + 1, text ? text : "");
    call.ReturnsText(buffer);
    return buffer;
}

u32 RecordingScriptInterface::RegisterTransientClass2(const char* name)
{
    TracedCall call(m_Session.Output, HostOperation::RegisterTransientClass2);
    const u32 id = m_Session.Refusals.Refuses(HostOperation::RegisterTransientClass2) ? 0 : m_Host.AddClass();
    call.Text(name).Returns(std::to_string(id));
    return id;
}

void RecordingScriptInterface::InvalidateTransientObject2(u32 classID, void* object)
{
    TracedCall(m_Session.Output, HostOperation::InvalidateTransientObject2).Number(classID).Argument("*");
    m_Session.References.Invalidate(object);
}

u32 RecordingScriptInterface::CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra)
{
    TracedCall call(m_Session.Output, HostOperation::CreateQuery);
    call.Argument(TypeText(owner)).Text(text).Number(extra).Returns("0");
    if (m_Session.Refusals.Refuses(HostOperation::CreateQuery) || !text || !ReadScriptPath(text))
        return 0;

    m_Queries[++m_LastQuery] = text;
    call.Returns(std::to_string(m_LastQuery));
    return m_LastQuery;
}

bool RecordingScriptInterface::EvaluateQuery(u32 query, _MvTypeVar& object, bool& result)
{
    TracedCall call(m_Session.Output, HostOperation::EvaluateQuery);
    call.Number(query);
    if (call.IsTraced())
        call.Argument(TypedValueText(object, m_Session.Types));
    call.ReturnsBool(false);

    const auto found = m_Queries.find(query);
    if (m_Session.Refusals.Refuses(HostOperation::EvaluateQuery) || found == m_Queries.end())
        return false;

    const std::string text = found->second;
    const PathResult read = m_Session.Sequences.EvaluateOn(object, text);
    result = read.Outcome == PathOutcome::Value && Holds(m_Session.Sequences.TextOf(read.Value));
    call.ReturnsBool(result);
    return true;
}

void RecordingScriptInterface::FreeQuery(u32 query)
{
    TracedCall(m_Session.Output, HostOperation::FreeQuery).Number(query);
    m_Queries.erase(query);
}
