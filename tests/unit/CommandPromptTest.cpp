#include "host/CommandPrompt.h"

#include "host/LineInput.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>
#include <utility>

namespace {

// Something to write into and to read from.
class Pipe
{
public:
    Pipe() { EXPECT_EQ(0, pipe(m_Ends)); }
    ~Pipe()
    {
        close(m_Ends[0]);
        Close();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int Out() const { return m_Ends[0]; }

    void Write(const std::string& text)
    {
        EXPECT_EQ(static_cast<ssize_t>(text.size()), write(m_Ends[1], text.data(), text.size()));
    }

    void Close()
    {
        if (m_Ends[1] >= 0)
            close(m_Ends[1]);
        m_Ends[1] = -1;
    }

private:
    int m_Ends[2] = {-1, -1};
};

std::string TakeOrNone(host::LineInput& input)
{
    return input.Take().value_or("none");
}

} // namespace

TEST(LineInput, LinesComeOnceTheyAreWhole)
{
    Pipe pipe;
    host::LineInput input(pipe.Out());
    EXPECT_EQ("none", TakeOrNone(input));
    pipe.Write("fir");
    EXPECT_EQ("none", TakeOrNone(input));
    pipe.Write("st\n\nthird\r\nfo");
    EXPECT_EQ("first", TakeOrNone(input));
    EXPECT_EQ("", TakeOrNone(input));
    EXPECT_EQ("third", TakeOrNone(input));
    EXPECT_EQ("none", TakeOrNone(input));
    pipe.Write("urth");
    pipe.Close();
    EXPECT_EQ("fourth", TakeOrNone(input));
    EXPECT_EQ("none", TakeOrNone(input));
    EXPECT_EQ("none", TakeOrNone(input));
}

TEST(LineInput, ALineWithoutAnEndComesInPieces)
{
    Pipe pipe;
    host::LineInput input(pipe.Out());
    const std::string part(32768, 'x');
    pipe.Write(part);
    EXPECT_EQ("none", TakeOrNone(input));
    pipe.Write(part);
    EXPECT_EQ(65536u, TakeOrNone(input).size());
    EXPECT_EQ("none", TakeOrNone(input));
}

TEST(LineInput, WhatCannotBeReadIsAtItsEnd)
{
    host::LineInput input(-1);
    EXPECT_EQ("none", TakeOrNone(input));
    EXPECT_EQ("none", TakeOrNone(input));
}

TEST(CommandPromptDeathTest, EachFrameRunsOneLineAndSaysWhatItGave)
{
    WithInterface([](HostedInterface& ui) {
        Pipe pipe;
        std::string answers;
        host::CommandPrompt prompt(ui.Host(), pipe.Out(), [&](const std::string& line) { answers += line + '\n'; });
        const auto answer = [&] {
            prompt.Advance();
            return std::exchange(answers, {});
        };
        ui.Load("<frame name='Main'/>");
        pipe.Write("UIElement -list\n  \nUI -load nosuch.xml\nnosuch\nUIElement -hide ${= 'Main'}\nUIElement -hide x");
        EXPECT_EQ("> Top-Level UI Elements\n> --------------------------\n> frame 'main' - Shown\n> = 0\n", answer());
        EXPECT_EQ("", answer());
        const std::string load = answer();
        EXPECT_NE(std::string::npos, load.find("> Could not load interface file 'nosuch.xml'\n> = -1\n")) << load;
        EXPECT_EQ("> There is no command 'nosuch'\n> = -1\n", answer());
        EXPECT_EQ("> = 0\n", answer());
        EXPECT_FALSE(ui.Element("Main").Visible);
        EXPECT_EQ("", answer());
        pipe.Close();
        EXPECT_EQ("> Could not find 'x'\n> = 0\n", answer());
        EXPECT_EQ("", answer());
        EXPECT_EQ("", ui.Lines()) << "lines go to who typed";
        ui.Host().ExecuteCommand("nosuch");
        EXPECT_EQ("command nosuch: There is no command 'nosuch'\n", ui.Lines()) << "and back again";
    });
}
