#include "teskara/script/ContainerWatch.h"

#include "teskara/script/MvContainer.h"

ContainerWatch::ContainerWatch(MvContainer& container) : m_Container(&container), m_Next(container.m_Watches)
{
    if (m_Next)
        m_Next->m_Previous = this;
    container.m_Watches = this;
}

ContainerWatch::~ContainerWatch()
{
    if (!m_Container)
        return;

    (m_Previous ? m_Previous->m_Next : m_Container->m_Watches) = m_Next;
    if (m_Next)
        m_Next->m_Previous = m_Previous;
}
