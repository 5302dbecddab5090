#include "tests/unit/FreshProcess.h"

#include <cstdlib>
#include <process.h>
#include <string>

namespace {

// Tells a process which of the test's bodies it is there for, counted from 1.
constexpr const char* NumberVariable = "TESKARA_FRESH_PROCESS";

std::string NameOf(const testing::TestInfo& test)
{
    return std::string(test.test_suite_name()) + '.' + test.name();
}

// Counts from 1 in each test.
int NumberOfThisBody(const std::string& test)
{
    static std::string last;
    static int number = 0;
    number = test == last ? number + 1 : 1;
    last = test;
    return number;
}

} // namespace

// No process can start where this one stands, so it comes there by running the test again up to this body.
void InFreshProcess(const std::function<void()>& body)
{
    const std::string test = NameOf(*testing::UnitTest::GetInstance()->current_test_info());
    const std::string number = std::to_string(NumberOfThisBody(test));
    if (const char* wanted = std::getenv(NumberVariable)) {
        if (number == wanted)
            RunAndEndProcess(body);
        return;
    }

    const std::string filter = "--gtest_filter=" + test;
    _putenv_s(NumberVariable, number.c_str());
    const auto status = _spawnl(_P_WAIT, _pgmptr, "teskara_unit", filter.c_str(), "--gtest_brief=1", nullptr);
    _putenv_s(NumberVariable, "");
    EXPECT_EQ(0, status) << "The other process tells why";
}
