#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>

namespace {

// The usage of the subcommand that was named, else of the program.
std::string UsageOf(const CLI::App& app)
{
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app.help() : chosen.front()->help(app.get_name());
}

} // namespace

int main(int argc, char** argv)
{
    int exitCode = ExitDone;
    CLI::App app("Shows, photographs and probes interfaces made for Teskara.", "teskara");
    app.set_version_flag("--version", "teskara 0.1.0");
    app.require_subcommand(1);
    AddRunCommand(app, exitCode);
    AddShotCommand(app, exitCode);
    AddProbeCommand(app, exitCode);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return app.exit(error);

        std::cerr << "teskara: " << error.what() << "\n\n" << UsageOf(app);
        return ExitUsage;
    }
    return exitCode;
}
