#include "host/InterfaceSession.h"
#include "host/display/Picture.h"
#include "host/record/ToolkitCalls.h"
#include "program/Commands.h"
#include "program/InterfaceOptions.h"
#include "program/RecordingOption.h"
#include "teskara/core/CUIManager.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
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

// Lets the time pass in steps of a frame and draws the last one.
void DrawMoment(host::InterfaceSession& session, const ShotOptions& options)
{
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
    session.DrawFrame(options.Size.Width, options.Size.Height, options.Scale);
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
    RecordingOption recording(options.Record);
    if (!recording.Begin())
        return ExitFailed;
    host::InterfaceSession::Settings settings;
    settings.Recording = recording.Get();
    settings.ClockStandsStill = true;
    settings.Trust = options.Trust ? host::ScriptTrust::Full : host::ScriptTrust::None;
    settings.Width = options.Size.Width;
    settings.Height = options.Size.Height;
    {
        host::InterfaceSession session(picture.Target(), settings);
        if (!session.Open(options.Files, options.Skin))
            return ExitFailed;
        DrawMoment(session, options);
    }
    if (!recording.End())
        return ExitFailed;
    if (!picture.Save(options.Output)) {
        std::fprintf(stderr, "teskara: Could not write %s: %s\n", options.Output.c_str(), SDL_GetError());
        return ExitFailed;
    }
    return ExitDone;
}

} // namespace

void AddShotCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<ShotOptions>();
    CLI::App* shot = app.add_subcommand("shot", "Draw interface files into a picture, without a display");
    options->AddTo(*shot);
    shot->add_option("-o,--output", options->Output, "The PNG file to write")->required()->type_name("PNG");
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
    options->AddRecord(*shot);
    shot->callback([options, &exitCode] { exitCode = Shoot(*options); });
}
