#include "program/Commands.h"

// Where there is no reference host: the probe has one of its own.
void AddCommands(CLI::App& app, int& exitCode)
{
    AddProbeCommand(app, exitCode);
}
