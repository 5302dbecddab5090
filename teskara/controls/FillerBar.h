#pragma once

#include "teskara/core/Types.h"

// How the bar of a filler lies along its track: in one piece that grows with the value, or in steps of one length that
// are filled one after the other. In single precision.
class FillerBar
{
public:
    struct Piece {
        u32 Begin; // pixels from the start of the track
        u32 Length;
        float Shown; // share of the image's width
    };

    // extent: of the track, in pixels. repeat: how many steps; 0 counts as 1. fill: how much of the bar is to be seen,
    // above 0. Where there are more steps than pixels, none can be seen.
    FillerBar(u32 extent, u32 repeat, float fill);

    // Hands each piece to use(const Piece&), from the start on. The last one of several steps comes twice: looks that
    // shine through rely on it.
    template <class Use> void ForEachPiece(Use use) const
    {
        Piece piece = {0, m_StepLength, 1};
        float left = m_Fill;
        for (u32 step = 0; step < m_StepCount; ++step) {
            piece.Begin = step * m_StepLength;
            const bool isLast = m_StepFill >= left || !m_IsRepeated;
            if (isLast)
                Cut(piece, left);
            use(piece);
            if (isLast)
                break;
            left -= m_StepFill;
        }
        if (m_IsRepeated && m_StepCount != 0)
            use(piece);
    }

private:
    void Cut(Piece& piece, float left) const;

    bool m_IsRepeated;
    u32 m_StepLength;
    u32 m_StepCount; // of those that may be drawn
    float m_StepFill;
    float m_Fill;
};
