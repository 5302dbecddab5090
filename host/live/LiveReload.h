#pragma once

#include "host/files/FileWatch.h"
#include "host/live/InterfaceState.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

class InterfaceSession;

// Shows an interface anew when one of its files changes, or when another skin is wanted, and puts back what its user had
// changed. A file that cannot be read as markup leaves everything as it was; what is wrong stands on the screen until the
// next change.
class LiveReload
{
public:
    enum class Watching { Off, On };

    // The session is borrowed. Adds the command "skin", which wears another skin from the next frame on.
    LiveReload(InterfaceSession& session, Watching watching);
    ~LiveReload();
    LiveReload(const LiveReload&) = delete;
    LiveReload& operator=(const LiveReload&) = delete;

    // Between two frames: does what is to be done. May run scripts.
    void Advance();

private:
    // An interface file, and what stands in it directly.
    struct LiveFile {
        std::string Path;
        std::vector<std::string> Elements;
    };

    static std::vector<std::string> ElementsIn(const std::string& path);
    static bool IsShown(const LiveFile& file);

    int AnswerSkin(int argc, char** argv);
    void NoteFiles();
    bool TakeChanges();
    void Reload();
    bool AreSound() const;
    void LoadFiles();
    void LoadFile(LiveFile& file);
    void Tell(std::string lines);

    InterfaceSession& m_Session;
    Watching m_Watching;
    FileWatch m_Watch;
    std::vector<LiveFile> m_Files; // in the order in which they were first loaded
    std::size_t m_WatchedImages = 0;
    InterfaceState m_Before; // as the files made it
    InterfaceState m_PutBack; // what waits for a frame
    std::string m_WantedSkin;
};

} // namespace host
