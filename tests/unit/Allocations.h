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

} // namespace Allocations
