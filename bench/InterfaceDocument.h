#pragma once

#include <cstddef>
#include <string>

// A document of the given size in bytes, or a little more, shaped like an interface file: windows of twenty controls
// with attributes, short values and the usual indentation. The same size gives the same bytes.
std::string InterfaceDocument(std::size_t bytes);
