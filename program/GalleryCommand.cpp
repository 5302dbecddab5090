#include "host/InterfaceSession.h"
#include "host/display/Picture.h"
#include "host/files/SearchPaths.h"
#include "program/Commands.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int Width = 1200;
constexpr int Height = 675;
constexpr int Margin = 12; // of the backdrop, around what is shown
constexpr u32 FrameMilliseconds = 16;
constexpr int TitleY = 18; // from a window's upper edge
constexpr u32 FramesUntilStill = 12;

struct GalleryOptions {
    std::string Folder;
    std::vector<std::string> Skins;
};

bool Say(const std::string& what)
{
    std::fprintf(stderr, "teskara: %s\n", what.c_str());
    return false;
}

// Takes the pictures of all kinds in one skin.
class GalleryTour
{
public:
    GalleryTour(const host::Picture& picture, host::InterfaceSession& session, std::filesystem::path folder)
        : m_Picture(picture), m_Session(session), m_Folder(std::move(folder))
    {
        ForEachOnScreen([&](const TeskElement& element) { m_Permanent.insert(element.ID); });
    }

    // False: a line has said what went wrong.
    bool Take(const std::string& kind)
    {
        TeskElement* window = g_UIManager.FindElement(("Gallery " + kind).c_str());
        if (!window)
            return Say("The gallery has no window \"Gallery " + kind + "\".");

        Pose(kind, *window);
        const SDL_Rect area = AreaOf(*window);
        const std::string file = (m_Folder / (kind + ".png")).string();
        const bool isSaved = m_Picture.Save(file, area);
        CloseWhatOpened();
        return isSaved || Say("Could not write " + file + ": " + SDL_GetError());
    }

private:
    template <class Act> static void ForEachOnScreen(Act&& act)
    {
        TeskElement* next = nullptr;
        for (TeskElement* element = g_UIManager.Screen->FirstChild; element; element = next) {
            next = element->Next;
            act(*element);
        }
    }

    bool HasOpened(const TeskElement& element) const { return !m_Permanent.contains(element.ID) && element.Visible; }

    // Shows the window of a kind with what it opens. The mouse goes over that, as it would to choose from it: only a move
    // on a menu lights up a row.
    void Pose(const std::string& kind, TeskElement& window)
    {
        char nothing[64];
        m_Session.Host().DataParse(("${= Gallery.Pose(\"" + kind + "\") }").c_str(), nothing, sizeof nothing);
        PassTime();
        if (const TeskElement* opener = window.FindChild("Open")) {
            PressAt(MiddleOf(*opener));
            PassTime();
        }
        if (const TeskElement* owner = window.FindChild("Menu"))
            OpenMenu(*owner);
        PassTime();
        ForEachOnScreen([&](const TeskElement& element) {
            if (!HasOpened(element))
                return;
            const _Point2i middle = MiddleOf(element);
            MoveMouse({middle.x, middle.y - 1});
            MoveMouse(middle);
        });
        PassTime();
        m_Session.DrawFrame(Width, Height, 1);
    }

    void PassTime()
    {
        for (u32 frame = 0; frame < FramesUntilStill; ++frame) {
            m_Session.Clock().Advance(FrameMilliseconds);
            m_Session.SkipFrame();
        }
    }

    static void MoveMouse(_Point2i point) { g_UIManager.OnMouseMove(point); }

    static void PressAt(_Point2i point)
    {
        MoveMouse(point);
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
    }

    // Presses the right button on the title of a window.
    static void OpenMenu(const TeskElement& owner)
    {
        MoveMouse({MiddleOf(owner).x, owner.AbsoluteY + TitleY});
        g_UIManager.OnRMouseDown();
        g_UIManager.OnRMouseUp();
    }

    static _Point2i MiddleOf(const TeskElement& element)
    {
        const SDL_Rect rect = RectOf(element);
        return {rect.x + rect.w / 2, rect.y + rect.h / 2};
    }

    // Around a window and whatever it has opened.
    SDL_Rect AreaOf(const TeskElement& window) const
    {
        SDL_Rect area = RectOf(window);
        ForEachOnScreen([&](const TeskElement& element) {
            if (!HasOpened(element))
                return;
            const SDL_Rect opened = RectOf(element);
            SDL_UnionRect(&area, &opened, &area);
        });
        area = {area.x - Margin, area.y - Margin, area.w + 2 * Margin, area.h + 2 * Margin};
        const SDL_Rect display = {0, 0, Width, Height};
        SDL_IntersectRect(&area, &display, &area);
        return area;
    }

    static SDL_Rect RectOf(const TeskElement& element)
    {
        return {
            element.AbsoluteX, element.AbsoluteY, static_cast<int>(element.Width), static_cast<int>(element.Height)};
    }

    // What is left takes a press beside it for the end.
    void CloseWhatOpened()
    {
        ForEachOnScreen([&](TeskElement& element) {
            if (!m_Permanent.contains(element.ID))
                g_UIManager.Screen->DeleteChild(&element);
        });
        PressAt({0, 0});
    }

    const host::Picture& m_Picture;
    host::InterfaceSession& m_Session;
    std::filesystem::path m_Folder;
    std::set<u32> m_Permanent; // ids of what stands on the screen all the time
};

std::vector<std::string> AllKinds()
{
    std::vector<std::string> kinds;
    for (const auto& [kind, factory] : g_UIManager.Factories)
        kinds.emplace_back(std::string_view(kind));
    std::sort(kinds.begin(), kinds.end());
    return kinds;
}

bool TakeSkin(const host::Picture& picture, host::InterfaceSession& session, const std::filesystem::path& folder)
{
    g_UIManager.Reset();
    if (!session.OpenOwn("gallery.xml"))
        return false;

    session.SkipFrame();
    GalleryTour tour(picture, session, folder);
    const std::vector<std::string> kinds = AllKinds();
    return std::all_of(kinds.begin(), kinds.end(), [&](const std::string& kind) { return tour.Take(kind); });
}

std::vector<std::string> AllSkins()
{
    std::vector<std::string> skins;
    std::error_code error;
    for (const auto& entry :
        std::filesystem::directory_iterator(host::SearchPaths().InterfacesFolder() / "skins", error)) {
        if (exists(entry.path() / "skin.xml"))
            skins.push_back(entry.path().filename().string());
    }
    std::sort(skins.begin(), skins.end());
    return skins;
}

bool TakePictures(const GalleryOptions& options)
{
    const host::Picture picture(Width, Height);
    if (!picture.Target())
        return Say(std::string("Could not make a picture: ") + SDL_GetError());

    host::InterfaceSession::Settings settings;
    settings.ClockStandsStill = true;
    settings.Width = Width;
    settings.Height = Height;
    host::InterfaceSession session(picture.Target(), settings);
    const std::vector<std::string> skins = options.Skins.empty() ? AllSkins() : options.Skins;
    return std::all_of(skins.begin(), skins.end(), [&](const std::string& skin) {
        const std::filesystem::path path = skin;
        const std::filesystem::path name = path.has_filename() ? path.filename() : path.parent_path().filename();
        return session.OpenSkin(skin) && TakeSkin(picture, session, std::filesystem::path(options.Folder) / name);
    });
}

} // namespace

void AddGalleryCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<GalleryOptions>();
    CLI::App* gallery =
        app.add_subcommand("gallery", "Draw the windows of the gallery into pictures, without a display");
    gallery->add_option("-o,--output", options->Folder, "The folder: a picture of each kind goes into SKIN/KIND.png")
        ->required()
        ->type_name("FOLDER");
    gallery
        ->add_option("--skin", options->Skins, "A skin, or several: its name in interfaces/skins, or its folder (all)")
        ->type_name("NAME");
    gallery->callback([options, &exitCode] { exitCode = TakePictures(*options) ? ExitDone : ExitFailed; });
}
