#pragma once

// The thread that the toolkit runs on: the one that started it last. Builds with assertions tell a developer of calls
// on others, which nothing else prevents; the rest check nothing.
namespace OwnThread {

#ifdef NDEBUG
inline void Remember() noexcept { }
inline void Expect(const char*) noexcept { }
#else
void Remember() noexcept;

// Writes a line that names the operation unless this is the toolkit's thread, or the toolkit was never started.
void Expect(const char* operation) noexcept;
#endif

} // namespace OwnThread
