#include "host/drawlist/DrawDifference.h"
#include "host/drawlist/DrawListFile.h"
#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <memory>
#include <string>

namespace {

struct DiffOptions {
    std::string Before;
    std::string After;
};

std::optional<host::DrawList> Read(const std::string& file)
{
    std::string why;
    auto list = host::ReadDrawListFile(file, why);
    if (!list)
        std::fprintf(stderr, "teskara: %s %s\n", file.c_str(), why.c_str());
    return list;
}

int Compare(const DiffOptions& options)
{
    const auto before = Read(options.Before);
    const auto after = before ? Read(options.After) : std::nullopt;
    if (!after)
        return ExitUsage;

    const std::vector<host::DrawDifference> differences = CompareDrawLists(*before, *after);
    const std::string text = DrawDifferencesAsText(differences);
    std::fwrite(text.data(), 1, text.size(), stdout);
    return differences.empty() ? ExitDone : ExitFailed;
}

} // namespace

void AddDiffCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<DiffOptions>();
    CLI::App* diff = app.add_subcommand("diff", "Say which elements two draw lists show differently, and how");
    diff->add_option("BEFORE", options->Before, "A draw list, made by shot --list")->required();
    diff->add_option("AFTER", options->After, "Another one")->required();
    diff->footer("Exit status: 0 both show the same, 1 they do not, 2 one cannot be read or the line is wrong.");
    diff->callback([options, &exitCode] { exitCode = Compare(*options); });
}
