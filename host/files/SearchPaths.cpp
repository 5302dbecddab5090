#include "host/files/SearchPaths.h"

#include <SDL.h>

#include <algorithm>

namespace host {

namespace {

namespace fs = std::filesystem;

// Relative to a folder above the program: in the source tree and in an installed copy.
constexpr const char* InterfacesPlaces[] = {"interfaces", "share/teskara/interfaces"};

bool Exists(const fs::path& path)
{
    std::error_code error;
    return fs::exists(path, error);
}

// A folder, a pipe or a device is nothing to read: the latter may have no end.
bool IsFile(const fs::path& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

fs::path Absolute(const fs::path& path)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    return error ? path : absolute.lexically_normal();
}

fs::path ProgramFolder()
{
    char* base = SDL_GetBasePath();
    const fs::path folder = base ? base : ".";
    SDL_free(base);
    return folder;
}

fs::path InterfacesAbove(fs::path folder)
{
    while (true) {
        for (const char* place : InterfacesPlaces)
            if (Exists(folder / place / "skins"))
                return folder / place;
        if (!folder.has_relative_path())
            return {};
        folder = folder.parent_path();
    }
}

std::optional<std::string> FirstIn(const std::vector<fs::path>& folders, const std::string& name)
{
    for (const fs::path& folder : folders)
        if (IsFile(folder / name))
            return (folder / name).string();
    return std::nullopt;
}

} // namespace

SearchPaths::SearchPaths() : m_Interfaces(InterfacesAbove(ProgramFolder()))
{
    if (m_Interfaces.empty())
        m_Interfaces = Absolute("interfaces");
}

void SearchPaths::AddInterfaceFile(const std::string& file)
{
    m_BesideFiles.push_back(Absolute(file).parent_path());
}

void SearchPaths::SetSkinFolder(const fs::path& folder)
{
    m_Skin = Absolute(folder);
}

std::optional<std::string> SearchPaths::FindInterface(const std::string& name) const
{
    if (name.empty())
        return std::nullopt;
    if (IsFile(name))
        return Absolute(name).string();
    return FirstIn({m_Interfaces}, name);
}

std::optional<std::string> SearchPaths::FindResource(const std::string& name) const
{
    if (name.empty())
        return std::nullopt;
    if (fs::path(name).is_absolute())
        return IsFile(name) ? std::optional(name) : std::nullopt;
    if (auto found = FirstIn(m_BesideFiles, name))
        return found;
    return FirstIn({m_Skin, m_Interfaces}, name);
}

} // namespace host
