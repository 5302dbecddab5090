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
