#pragma once

// Marks what a host or an extension may use. Everything else stays inside the library.
#if defined(_WIN32)
#if defined(TESKARA_BUILD)
#define TESKARA_EXPORT __declspec(dllexport)
#else
#define TESKARA_EXPORT __declspec(dllimport)
#endif
#else
#define TESKARA_EXPORT __attribute__((visibility("default")))
#endif

// Keeps a function with a large buffer apart from its callers, so that the buffer is off the stack again before they go
// on to children.
#if defined(__GNUC__)
#define TESKARA_NOINLINE __attribute__((noinline))
#elif defined(_MSC_VER)
#define TESKARA_NOINLINE __declspec(noinline)
#else
#define TESKARA_NOINLINE
#endif
