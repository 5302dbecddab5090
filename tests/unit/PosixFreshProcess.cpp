#include "tests/unit/FreshProcess.h"

#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

void InFreshProcess(const std::function<void()>& body)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        RunAndEndProcess(body);

    int status = 0;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "The other process tells why; status " << status;
}
