#include "host/files/MarkupFault.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

// What is said of a file that holds a text; empty if it is sound.
std::string FaultOf(const std::string& text)
{
    char path[] = "/tmp/teskara-fault-XXXXXX";
    close(mkstemp(path));
    std::ofstream(path, std::ios::binary) << text;
    const auto fault = host::FindMarkupFault(path);
    std::remove(path);
    if (!fault)
        return "";
    const std::string described = host::Describe(path, *fault);
    return described.substr(described.find(':') + 1);
}

TEST(MarkupFault, ASoundFileHasNone)
{
    EXPECT_EQ("", FaultOf("<a>\n<b/></a>"));
}

TEST(MarkupFault, TellsLineAndColumnBehindWhatIsWrong)
{
    EXPECT_EQ("3:6: Closing element c, expected b", FaultOf("<a>\n  <b>\n  </c>\n</a>"));
    EXPECT_EQ("1:7: Closing element c, expected b", FaultOf("<b></c></b>"));
}

TEST(MarkupFault, CountsCharactersAndNotBytes)
{
    EXPECT_EQ("2:8: Closing element c, expected b", FaultOf("<b>\n\xc3\xa4\xf0\x9f\x90\x9f  </c></b>"));
    EXPECT_EQ("1:7: Closing element c, expected b", FaultOf("\xef\xbb\xbf<b></c></b>"));
}

TEST(MarkupFault, ReachesBeyondTheFirstReads)
{
    std::string text = "<a>\n";
    for (int line = 0; line < 20000; ++line)
        text += "<b>some text</b>\n";
    EXPECT_EQ("20002:4: Closing element c, expected a", FaultOf(text + "</c>"));
}

TEST(MarkupFault, AFileThatCannotBeOpenedHasNoLine)
{
    const auto fault = host::FindMarkupFault("/nowhere/a.xml");
    ASSERT_TRUE(fault);
    EXPECT_EQ(0u, fault->Line);
    EXPECT_EQ("Could not open file '/nowhere/a.xml'", host::Describe("/nowhere/a.xml", *fault));
}

} // namespace
