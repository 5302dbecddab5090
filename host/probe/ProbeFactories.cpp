#include "host/probe/ProbeFactories.h"

#include "host/probe/ProbeOutput.h"
#include "host/probe/ValueText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"

namespace {

ProbeOutput* g_ListenerOutput = nullptr;

std::string NotificationValueText(u32 code, u64 value)
{
    const auto* pointer = reinterpret_cast<const char*>(value);
    switch (code) {
    case NotifyTextChanged:
    case NotifyChildGoing:
        return QuotedOrNull(pointer);
    case NotifyFontChanged:
        return "*";
    default:
        return std::to_string(value);
    }
}

class ListenerElement : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        g_ListenerOutput->Line("Notify " + std::to_string(code) + " from " + ElementText(source)
            + " value=" + NotificationValueText(code, value));
    }
};

} // namespace

ProbeFactories::ProbeFactories(ProbeOutput& output)
    : m_Listeners(std::make_unique<TeskFactory<ListenerElement>>("listener"))
{
    g_ListenerOutput = &output;
}

ProbeFactories::~ProbeFactories() = default;

void ProbeFactories::Register(const std::string& kind, u32 version)
{
    m_Plain.push_back(std::make_unique<TeskFactory<TeskElement>>(kind.c_str(), version));
}
