#include "host/CommandPrompt.h"
#include "host/ConsoleWindow.h"
#include "host/InterfaceSession.h"
#include "host/display/InputRouter.h"
#include "host/display/MouseCursor.h"
#include "host/display/Window.h"
#include "host/live/LiveReload.h"
#include "program/Commands.h"
#include "program/DisplaySize.h"
#include "program/InterfaceOptions.h"
#include "program/RecordingOption.h"
#include "teskara/core/CUIManager.h"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

namespace {

constexpr u32 FrameMilliseconds = 16;
constexpr u32 HiddenFrameMilliseconds = 100;

// Takes what has happened since the last frame. False: the window was closed.
bool HandleEvents(host::InterfaceSession& session, host::InputRouter& input)
{
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        if (event.type == SDL_QUIT)
            return false;
        if (event.type == SDL_WINDOWEVENT || event.type == SDL_RENDER_TARGETS_RESET)
            session.Host().Invalidate();
        if (event.type == SDL_RENDER_DEVICE_RESET)
            session.Host().ResetDevice();
        input.Handle(event);
    }
    return true;
}

// Answers to what is typed, as soon as they are there, whatever reads them.
void WriteAnswer(const std::string& line)
{
    std::puts(line.c_str());
    std::fflush(stdout);
}

void RunFrames(host::InterfaceSession& session, host::Window& window, host::LiveReload& live)
{
    host::InputRouter input(session.System());
    input.SetZoom(window.Zoom());
    host::ConsoleWindow console(session);
    input.SetShortcuts([&console](u32 key) { return console.HandleKey(key); });
    host::MouseCursor cursor;

    host::CommandPrompt prompt(session.Host(), STDIN_FILENO, WriteAnswer);
    SDL_StartTextInput();
    bool shown = false;
    for (u32 due = SDL_GetTicks(); HandleEvents(session, input);) {
        prompt.Advance();
        live.Advance();
        const bool fresh = session.DrawFrame(window.Width(), window.Height(), window.Scale());
        if (fresh)
            window.Present();
        cursor.Show(host::ShapeAtMouse(g_UIManager));
        if (!shown) {
            window.Show();
            shown = true;
        }

        // Presenting keeps the pace if it waits for the display. Otherwise, and when nothing changed, we wait.
        const bool hidden = window.IsHidden();
        const u32 now = SDL_GetTicks();
        due = std::max(due + (hidden ? HiddenFrameMilliseconds : FrameMilliseconds), now);
        if (!fresh || hidden || !window.WaitsForDisplay())
            SDL_Delay(due - now);
    }
    SDL_StopTextInput();
}

// Without a display SDL falls back on drivers that show nothing; those count only if they were asked for.
bool FindDisplay()
{
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return false;

    const std::string_view driver = SDL_GetCurrentVideoDriver();
    return (driver != "offscreen" && driver != "dummy") || SDL_getenv("SDL_VIDEODRIVER");
}

int Run(const InterfaceOptions& options, bool watch)
{
    RecordingOption recording(options.Record);
    if (!recording.Begin())
        return ExitFailed;
    if (!FindDisplay()) {
        std::fprintf(stderr, "teskara: There is no display to open a window on; `teskara shot` makes a picture.\n");
        return ExitFailed;
    }
    host::Window window;
    if (!window.Open("Teskara", options.Size.Width, options.Size.Height, options.Scale)) {
        std::fprintf(stderr, "teskara: Could not open a window: %s\n", SDL_GetError());
        return ExitFailed;
    }
    host::InterfaceSession::Settings settings;
    settings.Positions = host::StoredPositions::DefaultFile();
    settings.Commands = host::CommandHistory::DefaultFile();
    settings.Trust = options.Trust ? host::ScriptTrust::Full : host::ScriptTrust::None;
    settings.Between = recording.Get();
    settings.Width = options.Size.Width;
    settings.Height = options.Size.Height;
    {
        host::InterfaceSession session(window.Target(), settings);
        host::LiveReload live(session, watch ? host::LiveReload::Watching::On : host::LiveReload::Watching::Off);
        if (!session.Open(options.Files, options.Skin))
            return ExitFailed;

        RunFrames(session, window, live);
    }
    return recording.End() ? ExitDone : ExitFailed;
}

} // namespace

void AddRunCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<InterfaceOptions>();
    CLI::App* run = app.add_subcommand("run", "Open interface files in a window");
    options->AddTo(*run);
    const auto watch = std::make_shared<bool>(false);
    CLI::Option* watchFlag =
        run->add_flag("--watch,!--no-watch", *watch, "Show a file anew when it, a skin or an image changes")
            ->take_last();
    options->AddRecord(*run)->excludes(watchFlag); // what a reload does to elements is in no recording
    run->callback([options, watch, &exitCode] {
        exitCode = Run(*options, *watch);
        SDL_Quit();
    });
}
