#pragma once

#include "teskara/core/Types.h"

#include <cstddef>

// Every limit that bounds what a file, a script or a host can make the toolkit do.
namespace Limits {

// Markup. Beyond these a parse fails.

// Bytes of one attribute value.
inline constexpr std::size_t AttributeValueBytes = 4095;
// UTF-16 units that the parser may hold for one token.
inline constexpr std::size_t TokenUnits = 0x100000;
// Elements open at one time.
inline constexpr u32 MarkupNesting = 1024;
// Attributes of one node.
inline constexpr u32 NodeAttributes = 10000;
// Bytes that the entities of a document may expand to: so many for each byte of input, and so many besides.
inline constexpr std::size_t EntityOutputFactor = 64;
inline constexpr std::size_t EntityOutputBytes = 1024 * 1024;
// UTF-16 units of the path of a file that is parsed.
inline constexpr std::size_t MarkupPathUnits = 512;
// Bytes of a parser's message, with its terminator.
inline constexpr std::size_t MarkupErrorBytes = 2048;

// Elements.

// Levels below the screen. Beyond them an element is not made, with the usual message of a failed creation.
inline constexpr u32 ElementDepth = 200;
// Bytes of a full name, with its terminator; the rest is cut.
inline constexpr std::size_t FullNameBytes = 4096;
// Entries of a chain of templates; the chain stops there.
inline constexpr u32 TemplateChainEntries = 4096;
// Bytes of markup that the entries hold together, nodes and attributes included. The first entry counts in any case;
// the chain stops before the one that would go beyond.
inline constexpr std::size_t TemplateChainBytes = 16 * 1024 * 1024;
// The same for the bases in all chains of one file: for those that come first in their chains, which have all that they
// are built on themselves, and for those behind them. The chains stop before the ones that would go beyond.
inline constexpr std::size_t TemplateFirstBasesBytes = 128 * 1024 * 1024;
inline constexpr std::size_t TemplateOtherBasesBytes = 128 * 1024 * 1024;
// What one of the others counts as, at least: it takes its time, too.
inline constexpr std::size_t TemplateBaseBytes = 1024;

// Calls inside calls.

// Loads inside loads. Beyond it a load answers false.
inline constexpr u32 NestedLoads = 32;
// Scripts inside scripts. Beyond it a script is not run and gives 0.
inline constexpr u32 NestedScripts = 64;
// Texts that are evaluated because the value of another one sets them. Beyond it a text stays without a value.
inline constexpr u32 NestedTextUpdates = 16;
// Notifications begun inside notifications, not counting one that is passed up. Beyond it they are dropped.
inline constexpr u32 NestedNotifications = 256;

// Collections and drawing.

// Lines that the rings of consoles and histories hold, whatever their fields say; the oldest line goes.
inline constexpr std::size_t RingLines = 1000000;
// Slots of a table's grid. A table that asks for more gets no grid.
inline constexpr u64 TableSlots = 1000000;
// Cells that a layout places once more because they cover several slots, counting those of tables inside. Beyond it a
// cell is placed once in each layout of its table.
inline constexpr u32 RepeatedCells = 10000;
// Positions of a script index. Beyond them nothing is added, and it does not grow.
inline constexpr u32 IndexPositions = 16 * 1024 * 1024;
// A frame's walk over children ends after so many steps for each child that there was at its start, and so many
// besides.
inline constexpr std::size_t ChildWalkFactor = 4;
inline constexpr std::size_t ChildWalkSteps = 64;

// Steps of a filler that are drawn; no screen shows more.
inline constexpr u32 FillerSteps = 16384;

// Text buffers, with their terminators: what doesn't fit is cut, and the rest is always terminated.

inline constexpr std::size_t TextBuffer512 = 512;
inline constexpr std::size_t TextBuffer1024 = 1024;
inline constexpr std::size_t TextBuffer2048 = 2048;
inline constexpr std::size_t TextBuffer4096 = 4096;
inline constexpr std::size_t TextBuffer8192 = 8192;

} // namespace Limits
