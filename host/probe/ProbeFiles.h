#pragma once

#include "teskara/core/Types.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// The files that the host finds. They are real files in a folder of the run, which is the process's own folder too.
class ProbeFiles
{
public:
    void UseFolder(const std::string& folder) { m_Folder = folder; }

    // Writes a file, making folders on the way. False: the name leads out of the folder, or cannot be written.
    bool Write(const std::string& name, std::string_view bytes);

    // The same, for an image of that size.
    bool WriteTexture(const std::string& name, const _Point2i& size);

    // Full path of a file that was written, by its name or its full path; nothing if there is none.
    std::optional<std::string> Find(const std::string& name) const;

    // As Find, but first what the transcript said about the name.
    std::optional<std::string> Locate(const std::string& name) const;
    void SetLocation(const std::string& name, const std::string& path) { m_Locations[name] = path; }

    // Size of the image at a path, or of the white image under the empty path; nothing if it cannot be loaded.
    std::optional<_Point2i> TextureSize(const std::string& path) const;

    // Where a name of the transcript lies; a full path stays as it is.
    std::string PathOf(const std::string& name) const;

private:
    std::string NameOf(const std::string& path) const;

    std::string m_Folder;
    std::set<std::string> m_Names;
    std::map<std::string, std::string> m_Locations;
    std::map<std::string, _Point2i> m_TextureSizes;
};
