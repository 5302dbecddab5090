// The header for programs in C, alone.

#include "teskara/host.h"

_Static_assert(sizeof(teskara_draw_record) == 48, "a draw record is read as bytes");
_Static_assert(sizeof(teskara_rect) == 16, "a rectangle is read as bytes");

static const teskara_host host = {.size = sizeof(teskara_host), .version = TESKARA_TABLE_VERSION};
static const teskara_platform platform = {.size = sizeof(teskara_platform), .version = TESKARA_TABLE_VERSION};

int main(void)
{
    if (teskara_set_platform(&platform) != TESKARA_OK || teskara_start(&host) != TESKARA_OK)
        return 1;
    teskara_render();
    teskara_stop();
    return teskara_start(&host) == TESKARA_STOPPED ? 0 : 1;
}
