#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace {

// The usage of the subcommand that was named, else of the program.
std::string UsageOf(const CLI::App& app)
{
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app.help() : chosen.front()->help(app.get_name());
}

// A word that nobody knows is told of before what is missing: mostly it was meant to be that.
std::string WhyRefused(const CLI::App& app, const CLI::ParseError& error)
{
    const bool isIncomplete = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
    const std::vector<std::string> unknown = isIncomplete ? app.remaining(true) : std::vector<std::string>();
    if (unknown.empty())
        return error.what();
    const bool isOption = unknown.front().starts_with('-');
    return (isOption ? "There is no option " : "There is no subcommand ") + unknown.front();
}

} // namespace

int main(int argc, char** argv)
{
    int exitCode = ExitDone;
    CLI::App app("Shows, photographs and probes interfaces made for Teskara.", "teskara");
    app.set_version_flag("--version", "teskara " TESKARA_VERSION);
    app.require_subcommand(1);
    AddCommands(app, exitCode);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return app.exit(error);

        std::cerr << "teskara: " << WhyRefused(app, error) << "\n\n" << UsageOf(app);
        return ExitUsage;
    }
    return exitCode;
}
