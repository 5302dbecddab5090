#pragma once

#include "teskara/host.h"

#include <string>

// A program in C as tests see it. Each operation of its tables writes down how it was called, a line each, and answers
// with what it can be told by.
class FlatProgram
{
public:
    // Tables with all operations. They call this object, which must outlive their use.
    teskara_host Host();
    teskara_platform Platform();
    teskara_type_operations TypeOperations();

    // The lines since the last question, each with a line end.
    std::string TakeCalls();

    std::string Calls;
    std::string Clipboard = "from elsewhere";

    // What find_type and current_script answer.
    teskara_type* Type = nullptr;
    teskara_script* Script = nullptr;
};
