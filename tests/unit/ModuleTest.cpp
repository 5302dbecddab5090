#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

// The build names both, in TESKARA_MODULE_CYCLES and TESKARA_MODULE.
TEST(Module, IsUnloadedAndIsNewEachTimeThatItIsLoaded)
{
    const std::string command = "'" TESKARA_MODULE_CYCLES "' '" TESKARA_MODULE "'";
    EXPECT_EQ(0, std::system(command.c_str()));
}
