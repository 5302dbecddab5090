#pragma once

class FlatHost;

// The host that teskara_start made of a program's table. Null: the toolkit runs with a host of another kind, or with none.
FlatHost* RunningFlatHost();
