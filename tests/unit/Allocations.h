#pragma once

#include <cstddef>

// The allocations of this process, those of the toolkit's library among them.
namespace Allocations {

// How many there were so far.
std::size_t Count();

// The allocation after so many more fails; the ones behind it fail too if told so, until Allow.
enum class Failing { Once, FromThenOn };
void FailAfter(std::size_t count, Failing failing);
void Allow();

// Asked at each allocation that counts; true if it is to fail. Null: nobody is asked. What the judge allocates itself
// must be spared.
using Judge = bool (*)();
void SetJudge(Judge judge);

// How many of the blocks that were allocated since the books were begun have not been freed, spared ones aside. Few
// fit into the books, so whoever begins them in a process that others use ends them.
void BeginBooks();
void EndBooks();
std::size_t Outstanding();

// While one exists, allocations are a host's or a test's rather than the toolkit's: none counts and none fails.
class Spared
{
public:
    Spared();
    ~Spared();
    Spared(const Spared&) = delete;
    Spared& operator=(const Spared&) = delete;
};

// Inside of that, a call of the toolkit, whose allocations count again.
class Counted
{
public:
    Counted();
    ~Counted();
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int m_Spared;
};

} // namespace Allocations
