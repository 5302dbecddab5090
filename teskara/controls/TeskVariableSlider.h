#pragma once

#include "teskara/controls/TeskSlider.h"
#include "teskara/element/TeskDataSequence.h"

// A slider over a variable of the host: it follows the variable in every frame but while it is dragged, and writes each
// value that it is given back. A variable that could never be read is not written.
class TESKARA_EXPORT TeskVariableSlider : public TeskSlider
{
public:
    using TeskSlider::TeskSlider;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    void SetValue(unsigned int value) override;

    TeskDataSequence Data; // evaluates to the variable
    utf8string VariableName; // empty for none
    float Offset = 0; // of the variable while the slider stands at 0
    float VariableRange = 0; // how much more it is when the slider stands at its range
    bool Initialized = false; // the variable has been read

private:
    bool FollowVariable();
    void WriteVariable();
    u32 ValueFor(float variable) const;
    float VariableValue() const;
};
