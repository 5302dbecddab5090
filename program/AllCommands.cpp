#include "program/Commands.h"

void AddCommands(CLI::App& app, int& exitCode)
{
    AddRunCommand(app, exitCode);
    AddShotCommand(app, exitCode);
    AddGalleryCommand(app, exitCode);
    AddProbeCommand(app, exitCode);
    AddSchemaCommand(app, exitCode);
    AddReplayCommand(app, exitCode);
    AddLintCommand(app, exitCode);
    AddDiffCommand(app, exitCode);
    AddServeCommand(app, exitCode);
}
