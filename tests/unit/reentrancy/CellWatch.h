#pragma once

#include <string>

// While it lives, a cell of the matrix that does not end, or that ends the process, says which one it is and how to run
// it again.
class CellWatch
{
public:
    // filter: the test that runs the cell, and no other cell if TESKARA_CELL names this one; empty if it cannot.
    explicit CellWatch(const std::string& cell, const std::string& filter = {});
    ~CellWatch();
    CellWatch(const CellWatch&) = delete;
    CellWatch& operator=(const CellWatch&) = delete;

    static const char* Cell();

    // The command line that runs the cell again; the cell's name if there is none.
    static const char* Again();
};
