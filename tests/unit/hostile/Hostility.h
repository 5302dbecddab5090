#pragma once

#include "tests/unit/hostile/Operations.h"

#include <array>

// How often the operation that does wrong does so.
enum class Rhythm : u8 {
    EachTime,
    NowAndThen, // at the calls 1, 2, 4, 7, 11 and so on, so that it is early as well as late, once there are elements
};

// What the host does wrong at present. Each operation of host, script and platform asks here first.
class Hostility
{
public:
    void Begin(Operation operation, Answer answer, Rhythm rhythm);
    void End();

    // Counts a call and tells how to answer it. Throws if that is the answer. Acts, and then says Good, if that is it.
    // What is called meanwhile answers well.
    Answer Take(Operation operation);

    u32 Calls(Operation operation) const { return m_Calls[static_cast<u32>(operation)]; }

    // How often it has done wrong; it did not where there was nothing to delete.
    u32 Deviations() const { return m_Deviations; }

private:
    void Act();
    bool Delete();
    void CountDeviation();

    std::array<u32, OperationCount> m_Calls = {};
    Operation m_Operation = Operation::Count;
    Answer m_Answer = Answer::Good;
    Rhythm m_Rhythm = Rhythm::EachTime;
    bool m_Acting = false;
    u32 m_Call = 0;
    u32 m_NextCall = 1; // at which it is its turn
    u32 m_Deviations = 0;
    u32 m_LastDeleted = 0;
};

extern Hostility& g_Hostility; // lives to the end of the process
