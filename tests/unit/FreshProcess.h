#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <sys/wait.h>
#include <unistd.h>

// How often the test that is running has failed so far.
inline int FailuresSoFar()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// Runs a test's body in a process of its own, which starts where this one stands: the toolkit has one manager, and once
// shut down it stays so. Name the suite "...DeathTest", then it comes before the tests that start the toolkit here.
template <class Body> void InFreshProcess(Body&& body)
{
    std::fflush(nullptr);
    const int failuresBefore = FailuresSoFar();
    const pid_t child = fork();
    if (child == 0) {
        try {
            body();
        } catch (const std::exception& exception) {
            ADD_FAILURE() << exception.what(); // this process must not go on with the other tests
        }
        std::fflush(nullptr);
        std::exit(FailuresSoFar() > failuresBefore ? 1 : 0);
    }

    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "The other process tells why; status " << status;
}
