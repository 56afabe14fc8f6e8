#pragma once
// What is measured of the desktop in a process of its own: from its start to the login screen, the opening of
// every screen in its window, and the memory at rest with five of them open.

#include <filesystem>

namespace varnik::bench {

// Prints "start S" and "open SCREEN S", the seconds of the processor that it took the second time; the
// program was started at this moment of the monotonic clock.
int RunDesktop(const std::filesystem::path& folder, double startedAt);
// Prints "memory MB", and "own MB" of it that is not shared with other programs.
int RunAtRest(const std::filesystem::path& folder);
// The least that a program with one empty window costs: "start S".
int RunEmptyWindow(double startedAt);
double MonotonicNow(); // seconds

} // namespace varnik::bench
