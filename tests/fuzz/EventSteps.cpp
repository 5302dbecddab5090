#include "tests/fuzz/EventSteps.h"

#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/fuzz/DialogActs.h"
#include "tests/fuzz/EventHost.h"
#include "tests/fuzz/EventScene.h"
#include "tests/fuzz/FreshState.h"
#include "tests/fuzz/HostileActs.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>

namespace {

constexpr std::size_t MostSteps = 40;
constexpr std::size_t StepsBetweenChecks = 8;

EventHost* g_Host = nullptr;

EventHost& Host()
{
    return *g_Host;
}

void Require(const std::string& fault)
{
    if (fault.empty())
        return;

    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}

struct Step {
    const char* Name;
    void (*Run)(Decisions& bytes);
};

void Move(Decisions& bytes)
{
    _Point2i point = PointFrom(bytes.Next());
    g_UIManager.OnMouseMove(point);
}

void MoveFine(Decisions& bytes)
{
    _Point2i point = g_UIManager.MousePosition;
    const u8 distance = bytes.Next();
    point.x = static_cast<i32>(static_cast<u32>(point.x) + (distance & 15u) - 8);
    point.y = static_cast<i32>(static_cast<u32>(point.y) + (distance >> 4) - 8);
    g_UIManager.OnMouseMove(point);
}

void DoubleClick(Decisions&)
{
    for (int press = 0; press < 2; ++press) {
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
    }
}

u32 KeyFrom(u8 byte)
{
    constexpr u32 ends[] = {16, 17, 18, 255, 256, 0x7fffffff, 0x80000000, 0xffffffff};
    return byte >= 0xf8 ? ends[byte & 7u] : byte;
}

void Resize(Decisions& bytes)
{
    const int width = NumberFrom(bytes.Next());
    Host().SetDisplaySize(width, NumberFrom(bytes.Next()));
}

void Arm(Decisions& bytes, u8 times)
{
    const u8 place = bytes.Next();
    const u8 act = bytes.Next();
    Host().Arm(place, act, bytes.Next(), times);
}

// An act of the host itself, between two events.
void Act(Decisions& bytes)
try {
    TeskElement* element = FindByPlace(bytes.Next());
    const u8 act = bytes.Next();
    const u8 argument = bytes.Next();
    if (element)
        Perform(act, *element, argument);
} catch (...) {
    return;
}

// What was deleted comes back. A scene that is there stays, since loading is what takes the time of an input.
void LoadAgain(Decisions&)
{
    if (g_UIManager.Screen && !g_UIManager.Screen->FirstChild)
        g_UIManager.LoadInterfaceXML("f", true, nullptr);
}

// clang-format off
constexpr Step Steps[] = {
    {"frame",         [](Decisions&) { g_UIManager.Render(); }},
    {"move",          Move},
    {"move fine",     MoveFine},
    {"left down",     [](Decisions&) { g_UIManager.OnLMouseDown(); }},
    {"left up",       [](Decisions&) { g_UIManager.OnLMouseUp(); }},
    {"right down",    [](Decisions&) { g_UIManager.OnRMouseDown(); }},
    {"right up",      [](Decisions&) { g_UIManager.OnRMouseUp(); }},
    {"double click",  DoubleClick},
    {"wheel",         [](Decisions& bytes) { g_UIManager.OnMouseWheel(NumberFrom(bytes.Next())); }},
    {"key down",      [](Decisions& bytes) { g_UIManager.OnKeyDown(KeyFrom(bytes.Next())); }},
    {"key up",        [](Decisions& bytes) { g_UIManager.OnKeyUp(KeyFrom(bytes.Next())); }},
    {"time",          [](Decisions& bytes) { Host().Quiet.Ticks += bytes.Next() * 16u; }},
    {"long time",     [](Decisions& bytes) { Host().Quiet.Ticks += u32{bytes.Next()} << 24; }},
    {"resize",        Resize},
    {"arm once",      [](Decisions& bytes) { Arm(bytes, 1); }},
    {"arm for long",  [](Decisions& bytes) { Arm(bytes, 20); }},
    {"refuse each",   [](Decisions& bytes) { Host().RefuseEach(bytes.Next()); }},
    {"forget mouse",  [](Decisions&) { g_UIManager.ResetMouseState(); }},
    {"act",           Act},
    {"focus",         [](Decisions& bytes) { g_UIManager.SetFocusElement(FindByPlace(bytes.Next())); }},
    {"load again",    LoadAgain},
    {"open a menu",   [](Decisions& bytes) { OpenFuzzMenu(bytes.Next()); }},
    {"show a box",    [](Decisions& bytes) { ShowFuzzBox(bytes.Next()); }},
};
// clang-format on

constexpr u8 StepMask = 0x1f;
static_assert(std::size(Steps) <= StepMask + 1u);

} // namespace

void StartOn(EventHost& host, Platform& platform)
{
    g_Host = &host;
    SetPlatform(&platform);
    F1(&host)->Initialize();
}

void BeginEvents(Decisions& bytes, const std::function<void()>& beforeLoad)
{
    Host().StartAnew();
    ForgetInput();
    SetUpEventScene(Host(), bytes);
    if (beforeLoad)
        beforeLoad();
    g_UIManager.LoadInterfaceXML("f", true, nullptr);
}

void RunEventSteps(Decisions& bytes, const std::function<void()>& beforeEach)
{
    for (std::size_t step = 1; step <= MostSteps && !bytes.IsUsedUp(); ++step) {
        if (beforeEach)
            beforeEach();
        const u8 number = bytes.Next() & StepMask;
        if (number < std::size(Steps))
            Steps[number].Run(bytes);
        if (step % StepsBetweenChecks == 0)
            Require(FindTreeFault().value_or(""));
    }
    Require(FindTreeFault().value_or(""));
}

void EndEvents()
{
    Host().StartAnew();
    EndFuzzMenus();
    EndFuzzScript();
    g_UIManager.Reset();
    Require(g_UIManager.Screen && !g_UIManager.Screen->FirstChild && g_UIManager.ElementsByID.size() == 1
            ? ""
            : "there is more than the screen after a reset");
    Require(Host().Books.Imbalance());
}
