#include "tests/unit/XMLParsing.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/stat.h>

TEST(XMLPipe, APipeIsNoFileAndNobodyWaitsForIt)
{
    std::string folder = "/tmp/teskara-pipe-XXXXXX";
    ASSERT_NE(nullptr, mkdtemp(folder.data()));
    const std::string path = folder + "/pipe";
    ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
    XMLDocument document;
    EXPECT_FALSE(document.ParseFile(path.c_str()));
    EXPECT_EQ(document.ErrorText, "Could not open file '" + path + "'");
    std::remove(path.c_str());
    std::remove(folder.c_str());
}
