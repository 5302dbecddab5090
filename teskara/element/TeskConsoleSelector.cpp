#include "teskara/element/TeskConsoleSelector.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"

TeskConsoleSelector::TeskConsoleSelector(const char* name)
{
    Host::GetOutputConsole(m_Previous, sizeof(m_Previous));
    Host::SetOutputConsole(TextOrEmpty(name));
}

TeskConsoleSelector::~TeskConsoleSelector()
{
    Host::SetOutputConsole(m_Previous);
}
