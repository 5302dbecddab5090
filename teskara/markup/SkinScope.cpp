#include "teskara/markup/SkinScope.h"

#include "teskara/markup/TeskSkin.h"

SkinScope::SkinScope(TeskSkin* skin) : m_Saved(g_UIManager.CurrentSkin)
{
    if (skin)
        g_UIManager.CurrentSkin = skin;
}

SkinScope::~SkinScope()
{
    g_UIManager.CurrentSkin = m_Saved.Get();
}
