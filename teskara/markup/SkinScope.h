#pragma once

#include "teskara/core/CUIManager.h"

#include <memory>

// Tells whether a skin outlived a call during which scripts could run.
class SkinWatch
{
public:
    explicit SkinWatch(TeskSkin* skin)
        : m_Skin(skin), m_Life(g_UIManager.ShareSkin(skin)), m_IsManaged(!m_Life.expired())
    {
    }

    // The skin, or null if it has died.
    TeskSkin* Get() const { return m_IsManaged && m_Life.expired() ? nullptr : m_Skin; }

private:
    TeskSkin* m_Skin;
    std::weak_ptr<TeskSkin> m_Life; // empty for a skin that is not the manager's
    bool m_IsManaged;
};

// Puts a skin in force for the length of a scope and then puts back the one before it. A skin that died meanwhile is
// not put back. A null skin leaves the one in force.
class SkinScope
{
public:
    explicit SkinScope(TeskSkin* skin);
    ~SkinScope();
    SkinScope(const SkinScope&) = delete;
    SkinScope& operator=(const SkinScope&) = delete;

private:
    SkinWatch m_Saved;
};
