#pragma once

#include "teskara/core/Types.h"
#include "teskara/text/CTextEditLine.h"

#include <memory>
#include <vector>

// Memory for lines, many at a time, so that the lines of a text lie next to one another.
class LinePool
{
public:
    // An empty line. Throws if there is no memory.
    CTextEditLine& Take();

    // Of this pool. Its bytes are freed now, its memory serves the next line.
    void Give(CTextEditLine& line);

    // Ends all lines.
    void Clear();

private:
    static constexpr std::size_t LinesInBlock = 256;

    std::vector<std::unique_ptr<CTextEditLine[]>> m_Blocks;
    std::size_t m_Used = LinesInBlock; // lines of the last block
    CTextEditLine* m_Free = nullptr; // linked by Next
};
