#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <cstdio>
#include <string>

// Every call that the toolkit makes to the operating system. Nothing else in the toolkit knows the system it runs on,
// so a program can replace this table: tests set the clock, a host without a native keyboard layout translates keys,
// a recorder stands in between. All operations run on the thread that drives the toolkit. One that throws has failed.
class TESKARA_EXPORT Platform
{
public:
    virtual ~Platform() = default;

    // Milliseconds of a clock that never goes back; wraps after 2^32.
    virtual u32 GetTickCount() = 0;

    // Whether a toggle key (20 Caps Lock, 144 Num Lock; Windows virtual-key codes) is on.
    virtual bool IsKeyToggled(u32 key) = 0;

    // Translates a key press to bytes of the ANSI code page. keyState: 256 bytes, 0x80 held, 1 toggled.
    // Writes at most two bytes and returns how many; 0 if the key gives no character.
    virtual int ToAscii(u32 key, const u8* keyState, char* characters) = 0;

    // One byte of the ANSI code page as a UTF-16 unit.
    virtual char16_t AnsiToWide(u8 character) = 0;

    // Opens a regular file for reading bytes. path: UTF-16, terminated. Null if it cannot be opened or is no regular
    // file.
    virtual std::FILE* OpenFile(const char16_t* path) = 0;

    // Whether something of that name exists. path: UTF-16, terminated.
    virtual bool FileExists(const char16_t* path) = 0;

    // Full path of the toolkit's module, UTF-8; empty if unknown.
    virtual std::string GetModulePath() = 0;

    // Writes a text for a developer who watches the process; the text brings its own line end.
    virtual void WriteDebugOutput(const char* text) = 0;

    // A bounded text would have passed its bound. The default prints one line and ends the process; a host may return
    // instead, and the text is then cut to what fits.
    virtual void RangeFailure() = 0;

    // The clipboard. Open first, close last. A text is bytes that mean what the system's own texts mean; it goes in and
    // comes out as it is. Reading gives false if there is no text.
    virtual bool OpenClipboard() = 0;
    virtual void CloseClipboard() = 0;
    virtual bool EmptyClipboard() = 0;
    virtual bool SetClipboardText(const std::string& text) = 0;
    virtual bool GetClipboardText(std::string& text) = 0;
};

// The table in force. Never null: until a host sets its own, the system's.
TESKARA_EXPORT Platform& CurrentPlatform();

// Replaces the table; null goes back to the system's own. The table is borrowed and must outlive its use.
TESKARA_EXPORT void SetPlatform(Platform* platform);

// The operating system's own table, to build upon.
TESKARA_EXPORT Platform& SystemPlatform();
