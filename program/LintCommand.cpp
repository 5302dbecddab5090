#include "host/lint/LintReport.h"
#include "host/lint/LintRule.h"
#include "host/lint/Linter.h"
#include "program/Commands.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <memory>

namespace {

struct LintOptions {
    std::vector<std::string> Files;
    std::string Skin;
    bool Json = false;
    bool Strict = false;
    bool NoScripts = false;
    bool Rules = false;
};

void PrintRules()
{
    for (const host::LintRule& rule : host::LintRules())
        std::printf("%-20s %s%s\n", std::string(rule.Name).c_str(), std::string(rule.Text).c_str(),
            rule.When == host::LintWhen::Strict ? " (--strict)" : "");
}

// Files that cannot be read are told of, and the others looked at all the same.
int Lint(const LintOptions& options)
{
    if (options.Rules) {
        PrintRules();
        return ExitDone;
    }
    if (options.Files.empty()) {
        std::fprintf(stderr, "teskara: lint needs the files to look at; teskara lint --help tells more\n");
        return ExitUsage;
    }

    host::Linter linter(options.Skin);
    bool areAllRead = true;
    for (const std::string& file : options.Files) {
        std::string why;
        if (linter.AddFile(file, why))
            continue;
        std::fprintf(stderr, "teskara: %s: %s\n", file.c_str(), why.c_str());
        areAllRead = false;
    }
    const std::vector<host::Finding> findings = linter.Look({.Strict = options.Strict, .Scripts = !options.NoScripts});
    const std::string report = options.Json ? FindingsAsJson(findings) : FindingsAsText(findings);
    std::fwrite(report.data(), 1, report.size(), stdout);
    if (!areAllRead)
        return ExitUsage;
    return findings.empty() ? ExitDone : ExitFailed;
}

} // namespace

void AddLintCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<LintOptions>();
    CLI::App* lint = app.add_subcommand("lint", "Find what interface files say, and nobody reads as it was meant");
    lint->add_option("FILE", options->Files, "Interface files; those beside them may give templates");
    lint->add_flag("--json", options->Json, "Print the findings as JSON");
    lint->add_flag("--strict", options->Strict, "Look for what may well be meant, too");
    lint->add_flag(
        "--no-scripts", options->NoScripts, "Leave scripts and data sequences alone: they are not for the program");
    lint->add_flag("--rules", options->Rules, "List the rules; docs/lint/ has a page for each");
    lint->add_option("--skin", options->Skin, "A skin: its name in interfaces/skins, or its folder")->type_name("NAME");
    lint->footer("Exit status: 0 nothing was found, 1 something was, 2 a file could not be read or the line is wrong.");
    lint->callback([options, &exitCode] { exitCode = Lint(*options); });
}
