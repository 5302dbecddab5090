#pragma once

#include <string>
#include <vector>

namespace host {

// The names that a command line can be completed with, in any order.
class CompletionNames
{
public:
    virtual ~CompletionNames() = default;

    virtual std::vector<std::string> Commands() const = 0;

    // What a path in ${...} can begin with: variables and objects.
    virtual std::vector<std::string> Variables() const = 0;

    // What can follow a path that leads to an object. Evaluates the path; members may run scripts.
    virtual std::vector<std::string> MembersOf(const std::string& path) = 0;
    virtual std::vector<std::string> MethodsOf(const std::string& path) = 0;
};

} // namespace host
