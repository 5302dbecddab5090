#pragma once

#include "host/Operation.h"

#include <span>
#include <vector>

// Every operation that the toolkit asks of a program: of its three tables, of a running script, and of the platform.
using host::Operation;

constexpr u32 OperationCount = host::AskedOperations;

// What an operation may do instead of its work. Those from Asks on do something first, and then their work.
enum class Answer : u8 {
    Good,
    Fails, // a text or a value is filled with rubbish all the same
    Null, // claims to have done it, and wrote nothing
    Empty,
    Unterminated, // a text that fills its buffer and has no end, a file or a letter that breaks off
    Huge,
    Negative,
    NotANumber,
    Throws,

    // Calls back into the toolkit
    Asks,
    Draws,
    SendsInput,
    LoadsAFile,
    ShutsDown,

    // Deletes
    DeletesMouseOver,
    DeletesFocus,
    DeletesInTurn,
    DeletesAll,

    Count,
};

constexpr bool IsAct(Answer answer)
{
    return answer >= Answer::Asks;
}

constexpr bool IsDeletion(Answer answer)
{
    return answer >= Answer::DeletesMouseOver;
}

const char* NameOf(Answer answer);

// The answers that mean something for an operation of that signature, but for the good one.
std::vector<Answer> AnswersOf(Operation operation);
