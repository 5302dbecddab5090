#pragma once

#include "teskara/core/CUIManager.h"

#include <memory>

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
    TeskSkin* m_Saved;
    std::weak_ptr<TeskSkin> m_SavedLife; // empty for a skin that is not the manager's
    bool m_SavedIsOurs;
};
