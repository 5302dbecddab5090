#include "teskara/markup/SkinScope.h"

#include "teskara/markup/TeskSkin.h"

SkinScope::SkinScope(TeskSkin* skin)
    : m_Saved(g_UIManager.CurrentSkin), m_SavedLife(g_UIManager.ShareSkin(m_Saved)),
      m_SavedIsOurs(!m_SavedLife.expired())
{
    if (skin)
        g_UIManager.CurrentSkin = skin;
}

SkinScope::~SkinScope()
{
    const bool died = m_SavedIsOurs && m_SavedLife.expired();
    g_UIManager.CurrentSkin = died ? nullptr : m_Saved;
}
