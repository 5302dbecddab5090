#pragma once

namespace CLI {
class App;
}

// Each subcommand adds itself to the program's command line. When it was chosen it runs while the line is parsed and
// leaves the program's exit status in exitCode, which must outlive the app.

// All that this program has.
void AddCommands(CLI::App& app, int& exitCode);

void AddRunCommand(CLI::App& app, int& exitCode);
void AddShotCommand(CLI::App& app, int& exitCode);
void AddGalleryCommand(CLI::App& app, int& exitCode);
void AddProbeCommand(CLI::App& app, int& exitCode);
void AddSchemaCommand(CLI::App& app, int& exitCode);
void AddReplayCommand(CLI::App& app, int& exitCode);
void AddLintCommand(CLI::App& app, int& exitCode);
void AddDiffCommand(CLI::App& app, int& exitCode);
void AddServeCommand(CLI::App& app, int& exitCode);

// Exit status of the program.
enum : int {
    ExitDone = 0,
    ExitFailed = 1,
    ExitUsage = 2,
};
