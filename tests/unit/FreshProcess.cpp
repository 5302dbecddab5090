#include "tests/unit/FreshProcess.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int FailuresSoFar()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

void RunAndEndProcess(const std::function<void()>& body)
{
    const int failuresBefore = FailuresSoFar();
    try {
        body();
    } catch (const std::exception& exception) {
        ADD_FAILURE() << exception.what(); // this process must not go on with the other tests
    }
    std::fflush(nullptr);
    std::exit(FailuresSoFar() > failuresBefore ? 1 : 0);
}
