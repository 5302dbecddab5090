// Typing and pasting in the reference host: what SDL tells of keys and texts, and what an entry takes from it.

#include "host/display/InputRouter.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskTextEntry.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

// An interface with one entry, which has the keyboard, behind SDL's events. There is a display that shows nothing.
class TypedInterface
{
public:
    explicit TypedInterface(HostedInterface& ui) : m_UI(ui), m_Input(ui.Session().System())
    {
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        EXPECT_EQ(0, SDL_Init(SDL_INIT_VIDEO)) << SDL_GetError();
        SDL_StartTextInput();
        ui.Load("<textentry name=\"E\"><Width>200</Width><Height>20</Height><MaxLength>4096</MaxLength></textentry>");
        g_UIManager.SetFocusElement(&ui.Element("E"));
        Pump();
    }

    ~TypedInterface() { SDL_Quit(); }
    TypedInterface(const TypedInterface&) = delete;
    TypedInterface& operator=(const TypedInterface&) = delete;

    // Queues events; nothing is taken until Pump.
    void Down(SDL_Scancode place, SDL_Keycode key, bool isRepeat = false) { Key(SDL_KEYDOWN, place, key, isRepeat); }
    void Up(SDL_Scancode place, SDL_Keycode key) { Key(SDL_KEYUP, place, key, false); }

    void Text(const char* text)
    {
        SDL_Event event = {};
        event.type = SDL_TEXTINPUT;
        std::strncpy(event.text.text, text, sizeof(event.text.text) - 1);
        SDL_PushEvent(&event);
    }

    // A key that is pressed and released.
    void Type(SDL_Scancode place, SDL_Keycode key, const char* text)
    {
        Down(place, key);
        if (*text)
            Text(text);
        Up(place, key);
    }

    void Pump()
    {
        SDL_Event event;
        while (SDL_PollEvent(&event))
            m_Input.Handle(event);
    }

    std::string Entered()
    {
        Pump();
        return Entry().Text.Bytes();
    }

    TeskTextEntry& Entry() { return dynamic_cast<TeskTextEntry&>(m_UI.Element("E")); }

private:
    static void Key(u32 type, SDL_Scancode place, SDL_Keycode key, bool isRepeat)
    {
        SDL_Event event = {};
        event.type = type;
        event.key.keysym.scancode = place;
        event.key.keysym.sym = key;
        event.key.repeat = isRepeat ? 1 : 0;
        SDL_PushEvent(&event);
    }

    HostedInterface& m_UI;
    host::InputRouter m_Input;
};

void WithTyping(const std::function<void(HostedInterface& ui, TypedInterface& keys)>& body)
{
    WithInterface([&](HostedInterface& ui) {
        TypedInterface keys(ui);
        body(ui, keys);
        EXPECT_EQ("", ui.Lines());
    });
}

} // namespace

TEST(HostedTextInputDeathTest, KeysGiveWhatTheLayoutOfTheUserGives)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Type(SDL_SCANCODE_Q, SDLK_a, "a"); // a French layout
        keys.Type(SDL_SCANCODE_2, static_cast<SDL_Keycode>(0xe9), "\xc3\xa9");
        keys.Type(SDL_SCANCODE_E, SDLK_e, "\xe2\x82\xac"); // with AltGr
        EXPECT_EQ("a\xc3\xa9\xe2\x82\xac", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, CharactersOfEveryScriptCanBeTyped)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Type(SDL_SCANCODE_A, static_cast<SDL_Keycode>(0x444), "\xd1\x84"); // Cyrillic
        keys.Type(SDL_SCANCODE_S, static_cast<SDL_Keycode>(0x5d3), "\xd7\x93"); // Hebrew
        keys.Type(SDL_SCANCODE_D, SDLK_d, "\xf0\x9f\x99\x82"); // beyond the 16 bits of a unit
        keys.Type(SDL_SCANCODE_F, SDLK_f, "\xc2\x81"); // a character that the code page has no byte for
        EXPECT_EQ("\xd1\x84\xd7\x93\xf0\x9f\x99\x82\xc2\x81", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, AKeyMayGiveSeveralCharacters)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Type(SDL_SCANCODE_A, SDLK_a, "^q"); // a dead key that found no letter
        keys.Type(SDL_SCANCODE_B, SDLK_b, "\xd9\x84\xd8\xa7!");
        EXPECT_EQ("^q\xd9\x84\xd8\xa7!", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, ADeadKeyGivesNothingUntilItsLetterComes)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Type(SDL_SCANCODE_LEFTBRACKET, SDLK_CARET, "");
        EXPECT_EQ("", keys.Entered());
        EXPECT_EQ(0u, keys.Entry().Repeat.HeldKey);
        keys.Type(SDL_SCANCODE_E, SDLK_e, "\xc3\xaa");
        EXPECT_EQ("\xc3\xaa", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, TheTextOfAKeyDoesNotGoToTheModifierBeforeIt)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Down(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
        keys.Type(SDL_SCANCODE_A, SDLK_a, "A");
        keys.Up(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
        keys.Type(SDL_SCANCODE_B, SDLK_b, "b");
        EXPECT_EQ("Ab", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, AnInputMethodBringsItsTextsWithoutKeys)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Text("\xe6\x97\xa5\xe6\x9c\xac");
        EXPECT_EQ("\xe6\x97\xa5\xe6\x9c\xac", keys.Entered());
        EXPECT_EQ(0u, keys.Entry().Repeat.HeldKey);

        keys.Down(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT); // a key that is held does not matter
        keys.Text("\xe8\xaa\x9e");
        keys.Up(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
        keys.Down(SDL_SCANCODE_LEFT, SDLK_LEFT);
        keys.Text("x");
        keys.Up(SDL_SCANCODE_LEFT, SDLK_LEFT);
        EXPECT_EQ("\xe6\x97\xa5\xe6\x9c\xac\xe8\xaax\x9e", keys.Entered()); // Left goes back by one byte
    });
}

TEST(HostedTextInputDeathTest, AKeyThatHasNoCodeStillGivesItsText)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Down(SDL_SCANCODE_INTERNATIONAL1, static_cast<SDL_Keycode>(0x5c));
        keys.Text("\\");
        keys.Down(SDL_SCANCODE_INTERNATIONAL1, static_cast<SDL_Keycode>(0x5c), true);
        keys.Text("\\");
        keys.Up(SDL_SCANCODE_INTERNATIONAL1, static_cast<SDL_Keycode>(0x5c));
        EXPECT_EQ("\\\\", keys.Entered()); // nobody else repeats it
    });
}

TEST(HostedTextInputDeathTest, AHeldKeyIsRepeatedByTheEntryAlone)
{
    WithTyping([](HostedInterface& ui, TypedInterface& keys) {
        keys.Down(SDL_SCANCODE_A, static_cast<SDL_Keycode>(0x444));
        keys.Text("\xd1\x84");
        for (int repeat = 0; repeat < 5; ++repeat) {
            keys.Down(SDL_SCANCODE_A, static_cast<SDL_Keycode>(0x444), true);
            keys.Text("\xd1\x84");
        }
        EXPECT_EQ("\xd1\x84", keys.Entered());
        ui.Frame(251);
        EXPECT_EQ("\xd1\x84\xd1\x84", keys.Entered());
        keys.Up(SDL_SCANCODE_A, static_cast<SDL_Keycode>(0x444));
        keys.Pump();
        ui.Frame(1000);
        EXPECT_EQ("\xd1\x84\xd1\x84", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, KeysThatEditAreNotTexts)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        keys.Type(SDL_SCANCODE_A, SDLK_a, "a");
        keys.Type(SDL_SCANCODE_B, SDLK_b, "b");
        keys.Type(SDL_SCANCODE_LEFT, SDLK_LEFT, "");
        keys.Type(SDL_SCANCODE_BACKSPACE, SDLK_BACKSPACE, "");
        keys.Type(SDL_SCANCODE_KP_7, SDLK_KP_7, "7"); // with Num Lock
        keys.Type(SDL_SCANCODE_KP_8, SDLK_KP_8, ""); // without
        keys.Type(SDL_SCANCODE_F5, SDLK_F5, "");
        keys.Type(SDL_SCANCODE_RETURN, SDLK_RETURN, "");
        EXPECT_EQ("7b", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, WithoutTextInputKeysAreThoseOfAnAmericanKeyboard)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        SDL_StopTextInput();
        keys.Type(SDL_SCANCODE_A, SDLK_a, "");
        keys.Down(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
        keys.Type(SDL_SCANCODE_A, SDLK_a, "");
        keys.Type(SDL_SCANCODE_1, SDLK_1, "");
        keys.Up(SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
        EXPECT_EQ("aA!", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, TheClipboardOfTheDisplayIsPastedAsItIs)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        SDL_SetClipboardText("gr\xc3\xbc\xc3\x9f\n\xe6\x97\xa5");
        keys.Down(SDL_SCANCODE_LCTRL, SDLK_LCTRL);
        keys.Type(SDL_SCANCODE_V, SDLK_v, "");
        keys.Up(SDL_SCANCODE_LCTRL, SDLK_LCTRL);
        EXPECT_EQ("gr\xc3\xbc\xc3\x9f\xe6\x97\xa5", keys.Entered());
        SDL_SetClipboardText("");
        keys.Entry().PasteClipboard();
        EXPECT_EQ("gr\xc3\xbc\xc3\x9f\xe6\x97\xa5", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, WhatIsCopiedIsTextForTheDisplay)
{
    WithTyping([](HostedInterface& ui, TypedInterface& keys) {
        host::HostPlatform& system = ui.Session().System();
        EXPECT_TRUE(system.OpenClipboard());
        EXPECT_TRUE(system.SetClipboardText("a\xff\xc3\xbc")); // a byte that is no text becomes a mark for it
        system.CloseClipboard();
        char* text = SDL_GetClipboardText();
        EXPECT_STREQ("a\xef\xbf\xbd\xc3\xbc", text);
        SDL_free(text);
        EXPECT_TRUE(system.EmptyClipboard());
        EXPECT_FALSE(SDL_HasClipboardText());
        EXPECT_EQ("", keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, TenMegabytesOfTheClipboardArePasted)
{
    WithTyping([](HostedInterface&, TypedInterface& keys) {
        SDL_SetClipboardText(std::string(10'000'000, 'x').c_str());
        keys.Entry().PasteClipboard();
        EXPECT_EQ(std::string(4096, 'x'), keys.Entered());
    });
}

TEST(HostedTextInputDeathTest, WithoutADisplayTheHostHasAClipboardOfItsOwn)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<textentry name=\"E\"><MaxLength>20</MaxLength></textentry>");
        auto& entry = dynamic_cast<TeskTextEntry&>(ui.Element("E"));
        entry.PasteClipboard();
        EXPECT_STREQ("", entry.Text.Bytes());
        ui.Session().System().SetClipboardText(std::string("a\xff\x01z\0never", 10));
        entry.PasteClipboard();
        EXPECT_STREQ("a\xff\x01z", entry.Text.Bytes());
    });
}
