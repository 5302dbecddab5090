#include "tests/fuzz/EntrySteps.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskTextEntry.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TextHost.h"
#include "tests/fuzz/TextModel.h"

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

namespace {

constexpr u32 Width = 60;
constexpr u32 Tab = 9;

// Counts the changes that its child tells.
class Listener final : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        if (code != NotifyTextChanged)
            return;

        const auto* entry = dynamic_cast<TeskTextEntry*>(source);
        if (!entry || reinterpret_cast<std::uintptr_t>(entry->Text.Bytes()) != value)
            std::abort();
        ++Changes;
    }

    u64 Changes = 0;
};

// The entry under test and what it should be.
struct Scene {
    const Listener& Parent;
    TeskTextEntry& Entry;
    TextModel Model;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Any byte has a number of its own near the ends of what keys may be.
u32 KeyFrom(u8 byte)
{
    constexpr u32 special[] = {13, 45, 86, 108, 255, 256, 0x80000000, 0xffffffff};
    return byte >= 0xf0 ? special[byte & 7u] : byte;
}

// So many bytes as fit, or too many.
std::string TextFrom(Decisions& bytes)
{
    const std::size_t length = bytes.Next() * (bytes.Next() % 18u);
    return std::string(length, static_cast<char>(bytes.Next() | 1));
}

void PressKey(Scene& scene, Decisions& bytes)
{
    const u32 key = KeyFrom(bytes.Next());
    if (key == Tab)
        return;
    const bool taken = scene.Model.KeyDown(key);
    Require(scene.Entry.OnKeyDown(key) == taken, "a key was taken or not");
}

void ReleaseKey(Scene& scene, Decisions& bytes)
{
    const u32 key = KeyFrom(bytes.Next());
    scene.Model.KeyUp(key);
    scene.Entry.OnKeyUp(key);
}

void SetModifiers(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    scene.Model.Shift = g_UIManager.ShiftDown = (byte & 1) != 0;
    scene.Model.Control = g_UIManager.CtrlDown = (byte & 2) != 0;
}

void Insert(Scene& scene, Decisions& bytes)
{
    const char byte = static_cast<char>(bytes.Next());
    scene.Model.Insert(byte);
    scene.Entry.InsertCharacter(byte);
}

void SetText(Scene& scene, Decisions& bytes)
{
    const std::string text = TextFrom(bytes);
    scene.Model.SetText(text);
    scene.Entry.SetText(text.c_str());
}

void SetMaxLength(Scene& scene, Decisions& bytes)
{
    constexpr u32 ends[] = {0, 1, 4095, 4096, 4097, 0x7fffffff, 0x80000000, 0xffffffff};
    const u8 byte = bytes.Next();
    scene.Entry.MaxLength = byte >= 0xf8 ? ends[byte & 7u] : byte;
    scene.Model.MaxLength = scene.Entry.MaxLength;
}

void SetClipboard(Scene& scene, Decisions& bytes)
{
    std::string text;
    for (u32 left = bytes.Next() % 16u; left > 0; --left)
        text += static_cast<char>(bytes.Next());
    scene.Model.Clipboard = StartedTextHost().Quiet.Clipboard = text;
}

void Press(Scene& scene, Decisions& bytes)
{
    _Point2i point = {bytes.Next() * 4 - 20, 5};
    scene.Model.PressAt(static_cast<u32>(point.x - scene.Entry.AbsoluteX) + scene.Entry.Border);
    scene.Entry.OnLMouseDown(point);
}

void SetFocus(Scene& scene, Decisions& bytes)
{
    const bool focuses = bytes.Next() % 4 != 0;
    g_UIManager.SetFocusElement(focuses ? &scene.Entry : nullptr);
    if (focuses)
        scene.Model.HasFocus = true;
    else
        scene.Model.LoseFocus();
}

void PassTime(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    u32& ticks = StartedTextHost().Quiet.Ticks;
    ticks += byte >= 0xf8 ? u32{byte} << 24 : byte * 4u;
    scene.Model.Tick = ticks;
}

void DrawFrame(Scene& scene, Decisions&)
{
    scene.Model.Frame();
    g_UIManager.Render();
}

void SetLook(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    scene.Model.IsMasked = byte % 2 == 0;
    scene.Entry.PasswordCharacter = scene.Model.IsMasked ? '*' : '\0';
    scene.Entry.Border = byte % 16;
}

// clang-format off
constexpr Step Steps[] = {
    {"key",        PressKey},
    {"release",    ReleaseKey},
    {"modifiers",  SetModifiers},
    {"insert",     Insert},
    {"backspace",  [](Scene& scene, Decisions&) { scene.Model.Backspace(); scene.Entry.HandleBackspace(); }},
    {"delete",     [](Scene& scene, Decisions&) { scene.Model.Delete(); scene.Entry.HandleDelete(); }},
    {"set text",   SetText},
    {"max length", SetMaxLength},
    {"clipboard",  SetClipboard},
    {"press",      Press},
    {"focus",      SetFocus},
    {"time",       PassTime},
    {"frame",      DrawFrame},
    {"look",       SetLook},
};
// clang-format on

void Compare(const Scene& scene)
{
    const CaretText& text = scene.Entry.Text;
    const TextModel& model = scene.Model;
    Require(text.TextLength == model.Text.size(), "the lengths differ");
    Require(std::memcmp(text.Bytes(), model.Text.c_str(), model.Text.size() + 1) == 0, "the texts differ");
    Require(text.CaretPos == model.Caret, "the carets differ");
    Require(text.InsertMode == model.Inserts, "the modes differ");
    Require(scene.Entry.FirstVisible == model.FirstVisible, "one is scrolled further");
    Require(scene.Entry.Repeat.HeldKey == model.HeldKey, "the held keys differ");
    Require(scene.Entry.IsFocus() == model.HasFocus, "one has the focus");
    Require(scene.Parent.Changes == model.Changes, "the parent heard of more or fewer changes");
}

} // namespace

void RunEntrySteps(Decisions& bytes)
{
    static TeskFactory<Listener> factory("listener");
    g_UIManager.Render();
    auto& parent = MakeOnScreen<Listener>("listener", "l", nullptr);
    auto* entry = dynamic_cast<TeskTextEntry*>(g_UIManager.LoadElement(&parent, "textentry", "e"));
    Require(entry, "the entry was not made");
    _CreateTextEntry record;
    record.MaxLength = bytes.Next() * 17u;
    record.Width = Width;
    record.Height = 20;
    entry->Create(record, nullptr);
    Scene scene = {parent, *entry, TextModel(entry->MaxLength, Width)};
    scene.Model.Tick = StartedTextHost().Quiet.Ticks;
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step) {
        Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
        Compare(scene);
    }
}
