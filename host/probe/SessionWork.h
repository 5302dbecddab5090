#pragma once

#include "host/probe/Transcript.h"

#include <filesystem>
#include <string>

// What a process of the probe does: it answers commands, in a folder of its own.
struct SessionWork {
    std::string Folder;
    std::string Path; // of the transcript
    const Transcript* Commands = nullptr; // of the transcript; without them those of standard input are answered

    // The file for what comes of a transcript.
    std::filesystem::path Results() const { return Folder + ".results"; }
};

// Lines that tell how a transcript goes: a sign, then a text.
constexpr char AnswerSign = '=';
constexpr char CommandEndSign = '.';
constexpr char FaultSign = '!';
constexpr char EndSign = '#';

// Does the work in this process, which can do no other: the toolkit starts once and ends with the process. What comes of
// standard input goes to standard output.
void DoSessionWork(const SessionWork& work);
