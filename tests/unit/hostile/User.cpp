#include "tests/unit/hostile/User.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/TeskElement.h"
#include "teskara/text/TextKeys.h"

namespace {

constexpr u32 KeyShift = 16;
constexpr u32 KeyControl = 17;

void TypeHolding(u32 modifier, std::initializer_list<u32> keys)
{
    g_UIManager.OnKeyDown(modifier);
    for (const u32 key : keys)
        User::Type(key);
    g_UIManager.OnKeyUp(modifier);
}

} // namespace

namespace User {

void MoveTo(i32 x, i32 y, i32 right, i32 down)
{
    _Point2i point = {WrapAdd(x, right), WrapAdd(y, down)};
    g_UIManager.OnMouseMove(point);
}

void PointAt(const char* name)
{
    if (const TeskElement* element = g_UIManager.FindElement(name)) {
        const i32 x = element->AbsoluteX;
        const i32 y = element->AbsoluteY;
        MoveTo(x, y, 4, 3); // nobody hears of a mouse that stays where it is
        MoveTo(x, y, 3, 3);
    }
}

void PressLeft()
{
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
}

void Type(u32 key)
{
    g_UIManager.OnKeyDown(key);
    g_UIManager.OnKeyUp(key);
}

void TypeWithControl(std::initializer_list<u32> keys)
{
    TypeHolding(KeyControl, keys);
}

void ClickOn(const char* name)
{
    if (g_UIManager.FindElement(name)) {
        PointAt(name);
        PressLeft();
    }
}

void FocusOn(TeskElement* element)
{
    if (element)
        g_UIManager.SetFocusElement(element);
}

void UseMouseAt(i32 x, i32 y)
{
    MoveTo(x, y);
    PressLeft();
    PressLeft();
    g_UIManager.OnLMouseDown();
    MoveTo(x, y, 10, 7);
    MoveTo(x, y, 40, 40);
    g_UIManager.OnLMouseUp();
    g_UIManager.OnRMouseDown();
    g_UIManager.OnRMouseUp();
    g_UIManager.OnMouseWheel(-120);
    g_UIManager.OnMouseWheel(120);
}

void UseMouseOn(const TeskElement* element)
{
    if (element) {
        const i32 x = element->AbsoluteX;
        const i32 y = element->AbsoluteY;
        UseMouseAt(WrapAdd(x, 5), WrapAdd(y, 5));
        UseMouseAt(WrapAdd(x, 35), WrapAdd(y, 25));
    }
}

void TypeEverything()
{
    for (const u32 key : {u32{'H'}, u32{'i'}, u32{' '}, u32{0xe4}, u32{KeyHome}, u32{KeyRight}, u32{KeyInsert},
             u32{'x'}, u32{KeyDelete}, u32{KeyBackspace}, u32{KeyEnd}, u32{KeyUp}, u32{KeyDown}, u32{KeyPageUp},
             u32{KeyPageDown}, u32{KeyEnter}, u32{'c'}, u32{'o'}, u32{'m'}, u32{KeyTab}, u32{KeyEscape}})
        Type(key);
    TypeHolding(KeyShift, {KeyHome, KeyTab, KeyLeft});
    TypeWithControl({KeyA, KeyC, KeyEnd, KeyV, KeyHome});
}

} // namespace User
