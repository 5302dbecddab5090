#pragma once

namespace host {

// A rectangle in pixels of the target.
struct PixelRect {
    float Left = 0;
    float Top = 0;
    float Right = 0;
    float Bottom = 0;

    float Width() const { return Right - Left; }
    float Height() const { return Bottom - Top; }
    bool IsEmpty() const { return Left >= Right || Top >= Bottom; }

    bool Contains(const PixelRect& other) const
    {
        return Left <= other.Left && Top <= other.Top && Right >= other.Right && Bottom >= other.Bottom;
    }
    bool Meets(const PixelRect& other) const
    {
        return Left < other.Right && other.Left < Right && Top < other.Bottom && other.Top < Bottom;
    }
};

} // namespace host
