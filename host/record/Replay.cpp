#include "host/record/Replay.h"

#include "host/record/ItemText.h"
#include "host/record/RecordingFormat.h"
#include "host/record/ToolkitCalls.h"
#include "teskara/core/CUIManager.h"

namespace host {

namespace {

using namespace RecordingFormat;

constexpr std::size_t HeadSize = 2; // operation and phase
constexpr std::size_t LatestShown = 8;
constexpr u32 Deepest = 500; // calls inside each other

Operation OperationOf(std::string_view item)
{
    return item.size() < HeadSize ? Operation::Count : static_cast<Operation>(item[0]);
}

Phase PhaseOf(std::string_view item)
{
    return item.size() < HeadSize ? Finish : static_cast<Phase>(item[1]);
}

bool IsBeginning(std::string_view item)
{
    return PhaseOf(item) == WholeCall || PhaseOf(item) == Begin;
}

} // namespace

bool Replay::Run(const std::filesystem::path& file)
{
    m_Reader.Open(file);
    SetPlatform(&System());
    while (!m_IsStopped && TakeItem()) {
        if (PhaseOf(m_Item) == Finish)
            break;
        PlayCall();
        Names().ForgetKept();
    }
    m_IsStopped = true; // what else the toolkit asks is answered by nobody
    F1(nullptr);
    SetPlatform(nullptr);
    return m_Report.empty();
}

void Replay::Cross(Operation operation, std::span<const Field> fields, Passage passage)
{
    const bool enters = EntersToolkit(operation);
    if (m_IsStopped || enters == m_InToolkit)
        return;

    ++m_Calls;
    if (++m_Depth > Deepest)
        return Stop("holds calls that are nested too deep");
    if (enters)
        EnterToolkit(operation, fields, passage);
    else
        AnswerToolkit(operation, fields);
    --m_Depth;
}

// Makes the call of the host's that was taken.
void Replay::PlayCall()
{
    const Operation operation = OperationOf(m_Item);
    if (operation == Operation::Render)
        ++m_Frames;
    if (!IsBeginning(m_Item) || !Toolkit::Repeat(operation))
        Stop("holds a call that cannot be made: " + DescribeItem(m_Item));
}

void Replay::EnterToolkit(Operation operation, std::span<const Field> fields, Passage passage)
{
    ItemView bytes(std::string_view(m_Item).substr(HeadSize));
    if (!ReadFields(fields, false, bytes))
        return Stop("holds a call that cannot be made: " + DescribeItem(m_Item));

    const bool isWhole = PhaseOf(m_Item) == WholeCall;
    const std::string item = isWhole ? m_Item : std::string();
    const std::size_t resultsAt = m_Item.size() - bytes.Rest().size();
    m_InToolkit = true;
    passage();
    m_InToolkit = false;
    if (m_IsStopped || (!isWhole && !TakeItem()))
        return;

    m_Made.Clear();
    m_Made.PutBytes(isWhole ? std::string_view(item).substr(0, resultsAt)
                            : std::string{static_cast<char>(operation), static_cast<char>(End)});
    MakeFields(fields, true);
    if (isWhole)
        m_Item = item;
    if (m_Made.View() != m_Item)
        Differ();
}

void Replay::AnswerToolkit(Operation operation, std::span<const Field> fields)
{
    m_Made.Clear();
    m_Made.PutByte(static_cast<u8>(operation));
    m_Made.PutByte(WholeCall);
    MakeFields(fields, false);
    if (!TakeItem())
        return;

    const std::string_view made = m_Made.View();
    const bool isSame = IsBeginning(m_Item) && OperationOf(m_Item) == operation
        && std::string_view(m_Item).substr(HeadSize).starts_with(made.substr(HeadSize));
    const std::size_t behind = isSame ? made.size() : 0;
    const bool isWhole = PhaseOf(m_Item) == WholeCall;
    if (!isSame || (isWhole ? m_Item.size() == behind || m_Item[behind] != Results : m_Item.size() != behind))
        return Differ();

    if (!isWhole)
        PlayCallsInside(operation);
    if (m_IsStopped)
        return;
    ItemView bytes(std::string_view(m_Item).substr(isWhole ? behind : HeadSize));
    if (bytes.TakeByte() != Results || !ReadFields(fields, true, bytes) || !bytes.IsAtEnd())
        Stop("holds an answer that cannot be given: " + DescribeItem(m_Item));
}

// The calls that the host made before it answered, up to the item with its answer.
void Replay::PlayCallsInside(Operation operation)
{
    m_InToolkit = false;
    while (TakeItem() && !(PhaseOf(m_Item) == End && OperationOf(m_Item) == operation) && !m_IsStopped)
        PlayCall();
    m_InToolkit = true;
}

// False: there is no next item, and the replay has stopped.
bool Replay::TakeItem()
{
    std::string_view item;
    if (m_IsStopped)
        return false;
    if (!m_Reader.Next(item)) {
        Stop(m_Reader.Fault().empty() ? "breaks off" : m_Reader.Fault());
        return false;
    }
    m_Item = item;
    if (IsBeginning(item)) {
        m_Latest.push_back({m_Depth, m_Item});
        if (m_Latest.size() > LatestShown + 1)
            m_Latest.pop_front();
    }
    return true;
}

bool Replay::ReadFields(std::span<const Field> fields, bool results, ItemView& bytes)
{
    for (const Field& field : fields)
        if (field.IsResult == results && !field.Form->Read(field.Value, bytes, Names()))
            return false;
    return !bytes.IsBroken();
}

void Replay::MakeFields(std::span<const Field> fields, bool results)
{
    if (results)
        m_Made.PutByte(Results);
    for (const Field& field : fields)
        if (field.IsResult == results)
            field.Form->Write(field.Value, m_Made, Names());
}

void Replay::Stop(const std::string& why)
{
    m_IsStopped = true;
    m_Report = why;
    if (m_Calls > 0)
        m_Report += ", in frame " + std::to_string(m_Frames);
}

// Shows what was recorded and what came instead, and the calls before it.
void Replay::Differ()
{
    const std::string recorded = DescribeItem(m_Item);
    if (IsBeginning(m_Item) && !m_Latest.empty() && m_Latest.back().Bytes == m_Item)
        m_Latest.pop_back();
    m_IsStopped = true;
    m_Report = "differs in frame " + std::to_string(m_Frames) + ", in call " + std::to_string(m_Calls)
        + ":\n  recorded  " + recorded + "\n  replayed  " + DescribeItem(m_Made.View()) + "\nbefore it:";
    for (const LatestItem& item : m_Latest)
        m_Report += "\n  " + std::string(std::size_t{2} * item.Depth, ' ') + DescribeItem(item.Bytes);
}

} // namespace host
