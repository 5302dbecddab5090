#include "host/InterfaceSession.h"
#include "host/display/Picture.h"
#include "host/drawlist/DrawListing.h"
#include "host/files/WholeFile.h"
#include "host/record/ToolkitCalls.h"
#include "program/Commands.h"
#include "program/InterfaceOptions.h"
#include "program/RecordingOption.h"
#include "teskara/core/CUIManager.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace {

constexpr u32 FrameMilliseconds = 16;
constexpr int LargestPicture = 16384;

struct ShotOptions : InterfaceOptions {
    std::string Output;
    u32 At = 1000;
    std::optional<_Point2i> Mouse;
    std::vector<_Point2i> Clicks;
    bool List = false; // what was drawn, instead of how it looks
};

std::optional<_Point2i> ReadPoint(const std::string& text)
{
    _Point2i point;
    const char* end = text.data() + text.size();
    const auto [comma, first] = std::from_chars(text.data(), end, point.x);
    if (first != std::errc() || comma == end || *comma != ',')
        return std::nullopt;

    const auto [stop, second] = std::from_chars(comma + 1, end, point.y);
    return second == std::errc() && stop == end ? std::optional(point) : std::nullopt;
}

// A click that takes a frame, as those of people do at least.
void Click(host::InterfaceSession& session, _Point2i place)
{
    host::Toolkit::OnMouseMove(place);
    session.SkipFrame();
    host::Toolkit::OnLMouseDown();
    session.Clock().Advance(FrameMilliseconds);
    session.SkipFrame();
    host::Toolkit::OnLMouseUp();
}

// Lets the time pass in steps of a frame.
void LetPass(host::InterfaceSession& session, const ShotOptions& options)
{
    if (!options.Clicks.empty())
        session.SkipFrame(); // who is clicked is known once all have their places
    for (const _Point2i& place : options.Clicks)
        Click(session, place);
    if (options.Mouse)
        host::Toolkit::OnMouseMove(*options.Mouse);
    for (u32 elapsed = 0; elapsed < options.At;) {
        session.SkipFrame();
        const u32 step = std::min(FrameMilliseconds, options.At - elapsed);
        session.Clock().Advance(step);
        elapsed += step;
    }
}

host::InterfaceSession::Settings SettingsOf(const ShotOptions& options, host::Boundary* between)
{
    host::InterfaceSession::Settings settings;
    settings.Between = between;
    settings.ClockStandsStill = true;
    settings.Trust = options.Trust ? host::ScriptTrust::Full : host::ScriptTrust::None;
    settings.Width = options.Size.Width;
    settings.Height = options.Size.Height;
    return settings;
}

// To the standard output if no file is named.
int Write(const host::DrawList& list, const std::string& file)
{
    const std::string text = WriteDrawList(list);
    if (file.empty()) {
        std::fwrite(text.data(), 1, text.size(), stdout);
        return ExitDone;
    }
    if (host::WriteWholeFile(file, text))
        return ExitDone;
    std::fprintf(stderr, "teskara: Could not write %s: %s\n", file.c_str(), std::strerror(errno));
    return ExitFailed;
}

int ShootList(const host::Picture& picture, const ShotOptions& options)
{
    host::DrawListing listing;
    for (const std::string& file : options.Files)
        listing.AddFolder(std::filesystem::absolute(file).parent_path());
    host::InterfaceSession session(picture.Target(), SettingsOf(options, &listing));
    if (!session.Open(options.Files, options.Skin))
        return ExitFailed;
    LetPass(session, options);
    listing.Begin(options.Size.Width, options.Size.Height);
    session.DrawFrame(options.Size.Width, options.Size.Height, options.Scale);
    return Write(listing.End(), options.Output);
}

int ShootPicture(const host::Picture& picture, const ShotOptions& options)
{
    RecordingOption recording(options.Record);
    if (!recording.Begin())
        return ExitFailed;
    {
        host::InterfaceSession session(picture.Target(), SettingsOf(options, recording.Get()));
        if (!session.Open(options.Files, options.Skin))
            return ExitFailed;
        LetPass(session, options);
        session.DrawFrame(options.Size.Width, options.Size.Height, options.Scale);
    }
    if (!recording.End())
        return ExitFailed;
    if (!picture.Save(options.Output)) {
        std::fprintf(stderr, "teskara: Could not write %s: %s\n", options.Output.c_str(), SDL_GetError());
        return ExitFailed;
    }
    return ExitDone;
}

int Shoot(const ShotOptions& options)
{
    const int width = static_cast<int>(std::lround(static_cast<float>(options.Size.Width) * options.Scale));
    const int height = static_cast<int>(std::lround(static_cast<float>(options.Size.Height) * options.Scale));
    if (width > LargestPicture || height > LargestPicture) {
        std::fprintf(stderr, "teskara: A picture of %d by %d pixels is too large.\n", width, height);
        return ExitFailed;
    }
    const host::Picture picture(width, height);
    if (!picture.Target()) {
        std::fprintf(stderr, "teskara: Could not make a picture: %s\n", SDL_GetError());
        return ExitFailed;
    }
    return options.List ? ShootList(picture, options) : ShootPicture(picture, options);
}

} // namespace

void AddShotCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<ShotOptions>();
    CLI::App* shot = app.add_subcommand("shot", "Draw interface files into a picture, without a display");
    options->AddTo(*shot);
    CLI::Option* output =
        shot->add_option("-o,--output", options->Output, "The PNG file to write, or the list")->type_name("FILE");
    shot->add_option("--at", options->At, "Milliseconds after the start (1000)")
        ->check(CLI::Range(0, 600000))
        ->type_name("MILLISECONDS");
    shot->add_option_function<std::string>(
            "--mouse",
            [options](const std::string& text) {
                options->Mouse = ReadPoint(text);
                if (!options->Mouse)
                    throw CLI::ValidationError("--mouse", "'" + text + "' is no point such as 120,80");
            },
            "Where the mouse is")
        ->type_name("X,Y");
    shot->add_option_function<std::vector<std::string>>(
            "--click",
            [options](const std::vector<std::string>& texts) {
                for (const std::string& text : texts) {
                    const auto point = ReadPoint(text);
                    if (!point)
                        throw CLI::ValidationError("--click", "'" + text + "' is no point such as 120,80");
                    options->Clicks.push_back(*point);
                }
            },
            "Where the left button is clicked before that; again for further clicks")
        ->type_name("X,Y")
        ->expected(1)
        ->take_all();
    CLI::Option* list = shot->add_flag("--list", options->List,
        "Write what is drawn as text instead, a line for each call and the element that made it");
    list->excludes(options->AddRecord(*shot)); // both would stand at one place
    shot->callback([options, output, list, &exitCode] {
        if (output->empty() && list->empty())
            throw CLI::RequiredError(output->get_name());
        exitCode = Shoot(*options);
    });
}
