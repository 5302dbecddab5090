#include "tests/fuzz/HistoryModel.h"

void HistoryModel::Add(const std::string& line)
{
    if (m_Slots.empty())
        return;

    m_Slots[Write] = line;
    ++Write;
    if (Count < Write)
        ++Count;
    if (Write == m_Slots.size())
        Write = 0;
    Read = Write;
}

void HistoryModel::Show(const std::string& line)
{
    Field.Text = line.substr(0, Field.MaxLength);
    Field.Caret = Field.Text.size();
}

void HistoryModel::Clear()
{
    Field.Text.clear();
    Field.Caret = 0;
}

// The blank line is there from the start, and a lone "!" may run it.
void HistoryModel::Enter()
{
    if (Field.Text.empty())
        return;

    if (Field.Text != "!")
        Add(Field.Text);
    else if (Count == 0)
        return;
    else
        Show(m_Slots[Count - 1]);
    Commands.push_back(Field.Text);
    Clear();
}

void HistoryModel::Escape()
{
    if (Field.Caret != 0)
        Clear();
}

void HistoryModel::Up()
{
    if (Count == 0)
        return;

    Read = Read == 0 ? Count - 1 : Read - 1;
    Show(m_Slots[Read]);
}

void HistoryModel::Down()
{
    if (Count == 0)
        return;

    Read = Read + 1 >= Count ? 0 : Read + 1;
    Show(m_Slots[Read]);
}

void HistoryModel::Paste(const std::string& text)
{
    for (const char byte : text) {
        if (byte == '\n' || byte == '\r')
            Enter();
        else
            Field.Insert(byte);
    }
}
