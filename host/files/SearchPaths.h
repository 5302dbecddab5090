#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host {

// Where files named by a person or by an interface are looked for.
class SearchPaths
{
public:
    // Finds the folder of the interfaces that come with the program.
    SearchPaths();

    // An interface file that is to be opened: what it names may lie beside it.
    void AddInterfaceFile(const std::string& file);

    // The folder of the skin in use.
    void SetSkinFolder(const std::filesystem::path& folder);

    const std::filesystem::path& InterfacesFolder() const { return m_Interfaces; }

    // Full path of an interface file: absolute or relative to the working folder, else in the interfaces folder.
    std::optional<std::string> FindInterface(const std::string& name) const;

    // Full path of an image: beside the opened files, else in the skin's folder, else in the interfaces folder.
    std::optional<std::string> FindResource(const std::string& name) const;

private:
    std::vector<std::filesystem::path> m_BesideFiles;
    std::filesystem::path m_Skin;
    std::filesystem::path m_Interfaces;
};

} // namespace host
