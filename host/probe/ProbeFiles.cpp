#include "host/probe/ProbeFiles.h"

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr _Point2i DefaultTextureSize = {64, 64};

bool StaysInside(const fs::path& name)
{
    if (name.empty() || name.has_root_path())
        return false;

    for (const fs::path& part : name) {
        if (part == "..")
            return false;
    }
    return name.has_filename();
}

} // namespace

bool ProbeFiles::Write(const std::string& name, std::string_view bytes)
{
    if (!StaysInside(name))
        return false;

    const fs::path path = fs::path(m_Folder) / name;
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        return false;

    m_Names.insert(name);
    m_TextureSizes.erase(name);
    return true;
}

bool ProbeFiles::WriteTexture(const std::string& name, const _Point2i& size)
{
    if (!Write(name, "image"))
        return false;

    m_TextureSizes[name] = size;
    return true;
}

std::optional<std::string> ProbeFiles::Find(const std::string& name) const
{
    const std::string known = NameOf(name);
    if (!m_Names.contains(known))
        return std::nullopt;
    return m_Folder + '/' + known;
}

std::optional<std::string> ProbeFiles::Locate(const std::string& name) const
{
    const auto told = m_Locations.find(name);
    return told != m_Locations.end() ? told->second : Find(name);
}

std::optional<_Point2i> ProbeFiles::TextureSize(const std::string& path) const
{
    if (path.empty())
        return DefaultTextureSize;

    const auto told = m_TextureSizes.find(NameOf(path));
    if (told != m_TextureSizes.end())
        return told->second;

    std::error_code error;
    if (!fs::is_regular_file(PathOf(path), error))
        return std::nullopt;
    return DefaultTextureSize;
}

std::string ProbeFiles::PathOf(const std::string& name) const
{
    return fs::path(name).has_root_path() ? name : m_Folder + '/' + name;
}

std::string ProbeFiles::NameOf(const std::string& path) const
{
    const std::string prefix = m_Folder + '/';
    return path.starts_with(prefix) ? path.substr(prefix.size()) : path;
}
