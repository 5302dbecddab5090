#include "teskara/controls/TextSplit.h"

u64 TextSplit::ByColumns(char* text, u64 columns, u64* reached)
{
    if (columns == 0)
        return 0;

    return ByPixels(text, columns, reached, [](char) { return u64{1}; });
}
