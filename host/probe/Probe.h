#pragma once

#include <string>
#include <vector>

enum class ProbeMode {
    Print, // run each transcript and print what was said and what came back
    Check, // compare with the expected lines
    Update, // rewrite the expected lines with what came back
};

// Runs transcripts. A path is a file, or a folder of .probe files, which may lie deeper; "-" alone stands for commands
// from standard input. Returns the exit status: 1 if a transcript failed, 2 if a path does not exist.
int RunProbe(ProbeMode mode, const std::vector<std::string>& paths);

// Runs one transcript, or "-", in this process and in a folder that is there, for the probe that waits for it. Returns the
// exit status.
int RunProbeSession(const std::string& folder, const std::string& path);
