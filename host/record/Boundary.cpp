#include "host/record/Boundary.h"

namespace host {

namespace {

Boundary* g_Current = nullptr;

} // namespace

Boundary::Boundary() : m_Host(*this), m_System(*this)
{
    g_Current = this;
}

Boundary::~Boundary()
{
    g_Current = nullptr;
}

void Boundary::Attach(HostObject& host, Platform& system)
{
    m_Host.SetInner(host);
    m_System.SetInner(system);
}

Boundary* Boundary::Current()
{
    return g_Current;
}

} // namespace host
