// What a program asks of the toolkit as plain functions: its life, its files and its input.

#include "teskara/flat/FlatLife.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/flat/FlatElement.h"
#include "teskara/flat/FlatGuard.h"
#include "teskara/flat/FlatHost.h"
#include "teskara/flat/FlatPlatform.h"

#include <array>

namespace {

// In the order of their numbers.
constexpr std::array AnswerTexts = {
    "The toolkit took the table.",
    "There is no table.",
    "The table is laid out for another version of the toolkit.",
    "The table has a size that no table has.",
    "The table has operations that this version of the toolkit does not know.",
    "The toolkit has a host already.",
    "The toolkit was stopped, and stays so until its library is loaded anew.",
    "There was not enough memory to start the toolkit.",
};
static_assert(AnswerTexts.size() == TESKARA_NO_MEMORY + 1);

// A program that ends without having stopped the toolkit is not called any more.
class ProgramHost : public FlatHost
{
public:
    ~ProgramHost() override
    {
        if (Host::g_Host == this)
            F1(nullptr);
    }
};

class ProgramPlatform : public FlatPlatform
{
public:
    ~ProgramPlatform() override
    {
        if (&CurrentPlatform() == this)
            SetPlatform(nullptr);
    }
};

// Both are made when they are first needed, so that they end before the toolkit does.
ProgramHost& TheHost()
{
    static ProgramHost host;
    return host;
}

ProgramPlatform& ThePlatform()
{
    static ProgramPlatform platform;
    return platform;
}

void Stop()
{
    if (!RunningFlatHost())
        return;
    g_UIManager.Shutdown();
    F1(nullptr);
}

// The program may stop the toolkit again while it is asked to register something.
teskara_answer Start(const teskara_host* table)
{
    if (g_UIManager.ShuttingDown)
        return TESKARA_STOPPED;
    if (Host::g_Host)
        return TESKARA_RUNNING;
    const teskara_answer answer = TheHost().SetTable(table);
    if (answer != TESKARA_OK)
        return answer;

    F1(&TheHost())->Initialize();
    if (g_UIManager.ShuttingDown)
        return TESKARA_STOPPED;
    if (g_UIManager.Screen)
        return TESKARA_OK;
    Stop();
    return TESKARA_NO_MEMORY;
}

teskara_answer UsePlatform(const teskara_platform* table)
{
    const teskara_answer answer = table ? ThePlatform().SetTable(table) : TESKARA_OK;
    if (answer == TESKARA_OK)
        SetPlatform(table ? &ThePlatform() : nullptr);
    return answer;
}

TeskSkin* SkinOf(const char* name)
{
    return name ? g_UIManager.FindSkin(name) : nullptr;
}

} // namespace

FlatHost* RunningFlatHost()
{
    return Host::g_Host && Host::g_Host == &TheHost() ? &TheHost() : nullptr;
}

const char* teskara_answer_text(teskara_answer answer)
{
    const auto index = static_cast<std::size_t>(answer);
    return index < AnswerTexts.size() ? AnswerTexts[index] : "No answer has this number.";
}

teskara_answer teskara_set_platform(const teskara_platform* platform)
{
    return Guarded(TESKARA_NO_MEMORY, [platform] { return UsePlatform(platform); });
}

// --- Life and frames

uint32_t teskara_version(void)
{
    return g_UIManager.GetVersion();
}

teskara_answer teskara_start(const teskara_host* host)
{
    return Guarded(TESKARA_NO_MEMORY, [host] { return Start(host); });
}

void teskara_stop(void)
{
    Guarded([] { Stop(); });
}

void teskara_render(void)
{
    Guarded([] { g_UIManager.Render(); });
}

void teskara_reset(void)
{
    Guarded([] { g_UIManager.Reset(); });
}

// --- Interface files

bool teskara_load(const char* file, bool replace, const char* skin)
{
    return Guarded(false, [&] { return g_UIManager.LoadInterfaceXML(file, replace, SkinOf(skin)); });
}

bool teskara_load_into(
    uint32_t parent, const char* file, const char* element, const char* new_name, bool replace, const char* skin)
{
    return Guarded(false, [&] {
        TeskElement* place = ElementOrScreen(parent);
        if (!element)
            return g_UIManager.LoadInterfaceXML(place, file, replace, SkinOf(skin));
        const char* name = new_name ? new_name : element;
        return g_UIManager.LoadInterfaceXML(place, file, element, name, replace, SkinOf(skin));
    });
}

bool teskara_unload(const char* file)
{
    return Guarded(false, [&] { return g_UIManager.UnloadInterfaceXML(file); });
}

bool teskara_add_template(const char* name, const char* markup)
{
    return Guarded(false, [&] { return g_UIManager.AddTemplate(name, markup) != nullptr; });
}

void teskara_remove_template(const char* name)
{
    Guarded([&] { g_UIManager.RemoveTemplate(name); });
}

void teskara_remove_skin(const char* name)
{
    Guarded([&] { g_UIManager.RemoveSkin(name); });
}

// --- Input

bool teskara_mouse_move(int32_t x, int32_t y)
{
    _Point2i position = {x, y};
    return Guarded(false, [&] { return g_UIManager.OnMouseMove(position); });
}

bool teskara_left_down(void)
{
    return Guarded(false, [] { return g_UIManager.OnLMouseDown(); });
}

bool teskara_left_up(void)
{
    return Guarded(false, [] { return g_UIManager.OnLMouseUp(); });
}

bool teskara_right_down(void)
{
    return Guarded(false, [] { return g_UIManager.OnRMouseDown(); });
}

bool teskara_right_up(void)
{
    return Guarded(false, [] { return g_UIManager.OnRMouseUp(); });
}

bool teskara_mouse_wheel(int32_t offset)
{
    return Guarded(false, [&] { return g_UIManager.OnMouseWheel(offset); });
}

bool teskara_key_down(uint32_t key)
{
    return Guarded(false, [&] { return g_UIManager.OnKeyDown(key); });
}

bool teskara_key_up(uint32_t key)
{
    return Guarded(false, [&] { return g_UIManager.OnKeyUp(key); });
}

void teskara_forget_mouse(void)
{
    g_UIManager.ResetMouseState();
}

void teskara_set_double_click_time(uint32_t most)
{
    g_UIManager.DoubleClickTime = most;
}

void teskara_set_tooltip_delay(uint32_t delay)
{
    g_UIManager.TooltipDelay = delay;
}

void teskara_set_key_repeat(uint32_t delay, uint32_t interval)
{
    g_UIManager.KeyRepeatDelay = delay;
    g_UIManager.KeyRepeatRate = interval;
}
