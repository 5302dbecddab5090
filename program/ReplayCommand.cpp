#include "host/record/Replay.h"
#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <memory>
#include <string>

namespace {

int RunReplay(const std::string& file)
{
    host::Replay replay;
    if (!replay.Run(file)) {
        std::fprintf(stderr, "teskara: %s %s\n", file.c_str(), replay.Report().c_str());
        return ExitFailed;
    }
    std::printf("%s: %llu frames and %llu calls, all as recorded\n", file.c_str(),
        static_cast<unsigned long long>(replay.Frames()), static_cast<unsigned long long>(replay.Calls()));
    return ExitDone;
}

} // namespace

void AddReplayCommand(CLI::App& app, int& exitCode)
{
    const auto file = std::make_shared<std::string>();
    CLI::App* replay = app.add_subcommand(
        "replay", "Run the toolkit against a recording alone, and compare every call with the recorded one");
    replay->add_option("FILE", *file, "A recording, made by --record")->required();
    replay->callback([file, &exitCode] { exitCode = RunReplay(*file); });
}
