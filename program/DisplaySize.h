#pragma once

#include <string>

// A size as it is given on the command line: WxH, as in 960x640.
struct DisplaySize {
    int Width = 1200;
    int Height = 675;

    // Reads a size. False, and the size as it was, if the text is none; each side is 1 to 8192.
    bool Read(const std::string& text);
};
