#pragma once

#include <cstddef>

// The heap of this process, whoever asks for it: every call of malloc and its kin passes here.
namespace HeapPeak {

// Forgets what was held before: the peak counts from here on, above what is held now.
void Begin();

// The most bytes that were held at one time since.
std::size_t Bytes();

} // namespace HeapPeak
