#include "host/record/Recorder.h"

#include "host/record/RecordingFormat.h"

namespace host {

namespace {

using namespace RecordingFormat;

// Where an item has its phase, behind its operation.
constexpr std::size_t PhaseAt = 1;

void PutHead(ItemBytes& item, Operation operation, Phase phase)
{
    item.Clear();
    item.PutByte(static_cast<u8>(operation));
    item.PutByte(phase);
}

} // namespace

Recorder::~Recorder()
{
    Close();
}

bool Recorder::Open(const std::filesystem::path& file)
{
    m_IsOpen = m_Writer.Open(file);
    return m_IsOpen;
}

bool Recorder::Close()
{
    if (!m_IsOpen)
        return false;

    m_IsOpen = false;
    PutHead(m_Pending, Operation::Count, Finish);
    m_Writer.Put(m_Pending.View());
    m_Writer.Flush();
    return m_Writer.IsGood();
}

// Calls that host code makes to itself, through code of the toolkit's that serves it as a library, are none of ours.
void Recorder::Cross(Operation operation, std::span<const Field> fields, Passage passage)
{
    const bool enters = EntersToolkit(operation);
    if (!m_IsOpen || enters == m_InToolkit)
        return passage();

    PutPending();
    PutHead(m_Pending, operation, WholeCall);
    PutFields(fields, false);
    m_IsPending = true;
    if (m_Depth == 0) {
        PutPending();
        m_Writer.Flush();
    }
    Scripts().ShareDialogs();
    m_InToolkit = enters;
    ++m_Depth;
    try {
        passage();
    } catch (...) { // an operation that throws has failed
    }
    --m_Depth;
    m_InToolkit = !enters;
    Scripts().ShareDialogs();

    if (!m_IsPending)
        PutHead(m_Pending, operation, End);
    PutFields(fields, true);
    m_Writer.Put(m_Pending.View());
    m_IsPending = false;
    if (m_Depth == 0)
        Names().ForgetKept();
}

void Recorder::PutFields(std::span<const Field> fields, bool results)
{
    if (results)
        m_Pending.PutByte(Results);
    for (const Field& field : fields)
        if (field.IsResult == results)
            field.Form->Write(field.Value, m_Pending, Names());
}

// Another call begins inside the pending one: that one has its beginning and its end apart.
void Recorder::PutPending()
{
    if (!m_IsPending)
        return;

    m_Pending.SetByte(PhaseAt, Begin);
    m_Writer.Put(m_Pending.View());
    m_IsPending = false;
}

} // namespace host
