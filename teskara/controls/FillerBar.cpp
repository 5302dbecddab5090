#include "teskara/controls/FillerBar.h"

#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/QuietFloats.h"

#include <algorithm>

FillerBar::FillerBar(u32 extent, u32 repeat, float fill)
    : m_IsRepeated(repeat > 1), m_StepLength(m_IsRepeated ? extent / repeat : extent),
      m_StepCount(std::max(repeat, 1u)), m_StepFill(1 / static_cast<float>(m_StepCount)), m_Fill(fill)
{
    m_StepCount = std::min(m_StepCount, Limits::FillerSteps);
    if (m_IsRepeated && m_StepLength == 0)
        m_StepCount = 0;
}

// left: how much is still to be filled when the piece's turn comes.
void FillerBar::Cut(Piece& piece, float left) const
{
    const QuietFloats quiet;
    piece.Shown = left / m_StepFill;
    piece.Length = TruncateToU32(static_cast<float>(m_StepLength) * piece.Shown);
}
