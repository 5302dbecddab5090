#pragma once

#include <string>

// While it lives, a cell of the matrix that does not end, or that ends the process, says which one it is.
class CellWatch
{
public:
    explicit CellWatch(const std::string& cell);
    ~CellWatch();
    CellWatch(const CellWatch&) = delete;
    CellWatch& operator=(const CellWatch&) = delete;

    static const char* Cell();
};
