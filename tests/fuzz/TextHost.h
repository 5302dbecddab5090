#pragma once

#include "tests/fuzz/ChaosHost.h"

#include <map>
#include <string>
#include <vector>

class TeskConsole;

// The host of the models of texts. It does as it is asked, keeps what is drawn, by its place on the screen, and the
// commands that it is to run, counts the lines that are printed, and empties a console when one is.
class TextHost final : public ChaosHost
{
public:
    void StartAnew();

    int ExecuteCommand(const char* text) override;
    bool OpenClipboard() override { return Opens; }
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) override;

    std::map<i32, std::string> Drawn;
    std::vector<std::string> Commands;
    u64 Lines = 0; // printed
    TeskConsole* Told = nullptr; // null for none
    bool Opens = true;
    QuietPlatform Quiet;

protected:
    bool Refuses() override { return false; }
    void CalledOut(CallOut place, TeskElement* self) override;
};

// The host of all inputs, with the toolkit started on it and its platform.
TextHost& StartedTextHost();
