#include "host/probe/Probe.h"
#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

namespace {

struct ProbeOptions {
    std::vector<std::string> Paths;
    bool Check = false;
    bool Update = false;
    std::string Session;
};

ProbeMode ModeOf(const ProbeOptions& options)
{
    if (options.Check)
        return ProbeMode::Check;
    return options.Update ? ProbeMode::Update : ProbeMode::Print;
}

} // namespace

void AddProbeCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<ProbeOptions>();
    CLI::App* command = app.add_subcommand("probe", "Run transcripts against a host that records");
    command->add_option("path", options->Paths, "Transcripts, folders of them, or - for standard input")->required();
    CLI::Option* check = command->add_flag("--check", options->Check, "Compare with the expected lines");
    command->add_flag("--update", options->Update, "Rewrite the expected lines with what came back")->excludes(check);
    // For the probe itself, where it must start itself anew for each session; no help tells of it.
    command->add_option("--session", options->Session)->group("");
    command->callback([options, &exitCode] {
        exitCode = options->Session.empty() ? RunProbe(ModeOf(*options), options->Paths)
                                            : RunProbeSession(options->Session, options->Paths.front());
    });
}
