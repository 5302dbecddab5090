#include "teskara/script/MvSym.h"

MvSym::~MvSym() = default;
