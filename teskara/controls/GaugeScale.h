#pragma once

// What a gauge makes of the values that it is given: a range from 0 on, in single precision.
class GaugeScale
{
public:
    enum class Overflow { Stops, WrapsAround };

    explicit GaugeScale(float range) : m_Range(range) { }

    // What the gauge holds afterwards. What is no number counts as 0, as do all values while the range is 0.
    float Hold(float value, Overflow overflow) const;

    // The share of the range that a value fills. A range of 0 is full.
    float ShareOf(float value) const;

private:
    float m_Range;
};
