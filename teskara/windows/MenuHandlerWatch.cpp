#include "teskara/windows/MenuHandlerWatch.h"

#include "teskara/windows/CContextMenuHandler.h"

#include <utility>

MenuHandlerWatch::MenuHandlerWatch(CContextMenuHandler* handler) : m_Handler(handler)
{
    if (m_Handler)
        m_Outer = std::exchange(m_Handler->m_Watches, this);
}

MenuHandlerWatch::~MenuHandlerWatch()
{
    if (m_Handler)
        m_Handler->m_Watches = m_Outer;
}
