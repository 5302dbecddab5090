#include "teskara/text/LinePool.h"

CTextEditLine& LinePool::Take()
{
    if (CTextEditLine* line = m_Free) {
        m_Free = line->Next;
        line->Next = nullptr;
        return *line;
    }
    if (m_Used == LinesInBlock) {
        m_Blocks.push_back(std::make_unique<CTextEditLine[]>(LinesInBlock));
        m_Used = 0;
    }
    return m_Blocks.back()[m_Used++];
}

void LinePool::Give(CTextEditLine& line)
{
    line.Reset();
    line.Next = m_Free;
    m_Free = &line;
}

void LinePool::Clear()
{
    m_Blocks.clear();
    m_Used = LinesInBlock;
    m_Free = nullptr;
}
