#include "host/serve/Server.h"
#include "program/Commands.h"
#include "program/InterfaceOptions.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <memory>

namespace {

constexpr float LargestPicture = 16384;

void PrintLines(host::ServedInterface& interface)
{
    for (const std::string& line : interface.TakeLines())
        std::fprintf(stderr, "teskara: %s\n", line.c_str());
}

// Every answer is out before the next request is read: who asks may wait for it.
bool WriteAnswer(const std::string& answer)
{
    return std::puts(answer.c_str()) >= 0 && std::fflush(stdout) == 0;
}

void AnswerRequests(host::Server& server)
{
    std::ios::sync_with_stdio(false);
    host::RequestLines lines(std::cin);
    std::string line;
    for (auto kind = lines.Next(line); kind != host::RequestLines::Kind::End; kind = lines.Next(line)) {
        const bool isTooLong = kind == host::RequestLines::Kind::TooLong;
        if (!isTooLong && line.find_first_not_of(" \t") == line.npos)
            continue;
        if (!WriteAnswer(isTooLong ? server.AnswerTooLong(lines.LongestLine) : server.Answer(line)))
            return;
    }
}

int Serve(const InterfaceOptions& options)
{
    host::ServedInterface::Settings settings;
    settings.Width = options.Size.Width;
    settings.Height = options.Size.Height;
    settings.Scale = options.Scale;
    settings.Skin = options.Skin;
    settings.Trust = options.Trust ? host::ScriptTrust::Full : host::ScriptTrust::None;
    if (static_cast<float>(std::max(settings.Width, settings.Height)) * settings.Scale > LargestPicture) {
        std::fprintf(stderr, "teskara: The display is too large for a picture of it.\n");
        return ExitFailed;
    }
    host::ServedInterface interface(settings);
    const bool isStarted = interface.Start() && interface.Open(options.Files);
    PrintLines(interface);
    if (!isStarted)
        return ExitFailed;

    host::Server server(interface);
    AnswerRequests(server);
    return ExitDone;
}

} // namespace

void AddServeCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<InterfaceOptions>();
    CLI::App* serve = app.add_subcommand(
        "serve", "Answer requests about an interface: one JSON object a line in, one a line out, without a display");
    options->AddTo(*serve)->required(false);
    serve->footer("{\"command\": \"help\"} tells all requests, docs/tools.md shows how they are used.\n"
                  "Exit status: 0 when the input ends, 1 if the files or the skin cannot be opened.");
    serve->callback([options, &exitCode] { exitCode = Serve(*options); });
}
