#include "teskara/script/MvContainer.h"

#include "teskara/core/HostCalls.h"
#include "teskara/script/ContainerWatch.h"

#include <utility>

namespace {

// The host's class of containers. Another host has another one.
u32 ContainerClass()
{
    static HostScriptInterface* host = nullptr;
    static u32 id = 0;
    if (id == 0 || host != Host::g_ScriptHost)
        id = Host::RegisterTransientClass2("internal_pointer");
    host = Host::g_ScriptHost;
    return id;
}

} // namespace

MvContainer::MvContainer(const char* typeName) : MvIteratable(typeName)
{
    ContainerClass(); // stands before any script can hold the container
}

MvContainer::~MvContainer()
{
    Retire();
    EndWatches(); // those that began since, while the host or a type was called
}

void MvContainer::Retire()
{
    if (std::exchange(m_IsRetired, true))
        return;

    EndWatches();
    Host::InvalidateTransientObject2(ContainerClass(), this);
}

void MvContainer::EndWatches()
{
    while (ContainerWatch* watch = m_Watches) {
        m_Watches = watch->m_Next;
        watch->m_Container = nullptr;
    }
}
