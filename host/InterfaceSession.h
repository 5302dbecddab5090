#pragma once

#include "host/HostClock.h"
#include "host/HostPlatform.h"
#include "host/ReferenceHost.h"

#include <filesystem>
#include <string>
#include <vector>

namespace host {

class Boundary;

// The toolkit with the reference host, from its start to its end. There can be one in a process.
class InterfaceSession
{
public:
    struct Settings {
        bool ClockStandsStill = false; // time moves by Advance alone
        std::filesystem::path Positions; // the file of stored positions; empty to store none
        std::filesystem::path Commands; // the file of typed commands; empty to keep none
        ScriptTrust Trust = ScriptTrust::None;
        Boundary* Between = nullptr; // stands between host and toolkit; borrowed, and null for none
        int Width = 0; // of the display at the start
        int Height = 0;
    };

    // The renderer is borrowed.
    InterfaceSession(SDL_Renderer* renderer, const Settings& settings);
    ~InterfaceSession();
    InterfaceSession(const InterfaceSession&) = delete;
    InterfaceSession& operator=(const InterfaceSession&) = delete;

    // Opens interface files, in their order, in a skin: a folder's name among the skins of the interfaces folder, or its
    // path; empty for the one that is used if nobody chooses. False if one could not be opened; a line has said which and
    // why.
    bool Open(const std::vector<std::string>& files, const std::string& skin);

    // Opens a file, or one of the interfaces folder, in the skin that is in use. What stands in it replaces elements of the
    // same names. False: a line has said why not.
    bool OpenFile(const std::string& file);
    bool OpenOwn(const std::string& name);

    // Uses a skin, or reads it anew, for what is made from now on. False: a line has said why not.
    bool OpenSkin(const std::string& name);
    const std::string& Skin() const { return m_Frame.Skin; }

    // Lets the toolkit draw a frame of a size in pixels of the interface, each scale pixels of the target in size.
    // True if there is something new to present.
    bool DrawFrame(int width, int height, float scale);

    // Lets a frame pass without drawing it.
    void SkipFrame();

    HostClock& Clock() { return m_Clock; }
    HostPlatform& System() { return m_Platform; }
    ReferenceHost& Host() { return m_Host; }

private:
    bool Load(const std::string& subject, const std::string& file, const char* skin);
    void CountFrame();

    HostClock m_Clock;
    HostPlatform m_Platform;
    ReferenceHost m_Host;
    FrameState m_Frame;
    u32 m_SecondStart = 0;
    u32 m_FramesInSecond = 0;
};

} // namespace host
