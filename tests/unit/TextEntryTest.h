#pragma once

#include "teskara/text/TeskTextEntry.h"
#include "tests/unit/PressTest.h"

#include <string>
#include <string_view>

// Tests of text entries.
class TextEntryTest : public PressTest
{
protected:
    // Makes an entry under the listener.
    TeskTextEntry& MakeEntry(const std::string& markup = "<MaxLength>20</MaxLength>")
    {
        return Make<TeskTextEntry>("textentry", markup + "<OnChange>change</OnChange>");
    }

    // Loads the entry "E" under the screen, 100 by 20 at 10, 50, and gives it the keyboard.
    TeskTextEntry& LoadEntry(const std::string& markup = {})
    {
        TeskTextEntry& entry = Unfocused(markup);
        Focus(entry);
        return entry;
    }

    TeskTextEntry& Unfocused(const std::string& markup = {})
    {
        Load("<textentry name='E'><X>10</X><Y>50</Y><Width>100</Width><Height>20</Height><MaxLength>4096</MaxLength>"
             "<BackgroundColor>ff000000</BackgroundColor><CaretOuterColor>ff0000aa</CaretOuterColor>"
             "<CaretInnerColor>ff0000bb</CaretInnerColor>"
            + markup + "</textentry>");
        Host.TakeCalls();
        return As<TeskTextEntry>("E");
    }

    static void Focus(TeskTextEntry& entry) { g_UIManager.SetFocusElement(&entry); }

    static void Type(TeskTextEntry& entry, std::string_view text)
    {
        for (const char byte : text)
            entry.InsertCharacter(byte);
    }
};
