#include "teskara/script/MvIteratable.h"

MvIteratable::~MvIteratable() = default;
