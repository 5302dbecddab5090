#pragma once

#include "teskara/controls/TeskGauge.h"
#include "teskara/element/TeskDataSequence.h"

// A gauge that follows a number of the host in every frame.
class TESKARA_EXPORT TeskVariableGauge : public TeskGauge
{
public:
    using TeskGauge::TeskGauge;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;

    TeskDataSequence Data; // evaluates to the number
    float Offset = 0; // the number that the gauge shows as 0

private:
    bool FollowData();
};
