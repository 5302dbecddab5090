#include "tests/unit/reentrancy/Ways.h"

#include "teskara/core/CUIManager.h"
#include "tests/unit/reentrancy/Scene.h"

namespace Ways {

void Load()
{
    LoadScene();
}

void Frame()
{
    g_UIManager.Render();
}

void DeleteSelf()
{
    Delete(SelfName);
}

void DeleteGrandparent()
{
    Delete("Grand");
}

void DeleteOwnChild()
{
    DeletePart("Child");
}

void ResetAll()
{
    g_UIManager.Reset();
}

void UnloadFile()
{
    g_UIManager.UnloadInterfaceXML(SceneFile);
}

void ReplaceByLoad()
{
    g_UIManager.LoadInterfaceXML(SceneFile, "Grand", "Grand", true, nullptr);
}

} // namespace Ways
