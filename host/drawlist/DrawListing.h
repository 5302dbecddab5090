#pragma once

#include "host/drawlist/DrawList.h"
#include "host/record/Boundary.h"

#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

// Stands between toolkit and host, lets every call through and notes what is drawn. Fonts and images have names instead
// of numbers in its list, so that it does not depend on what was drawn before.
class DrawListing : public Boundary
{
public:
    DrawListing();

    // Where images may lie: in the list they are named from there.
    void AddFolder(const std::filesystem::path& folder);

    // A frame begins: what is drawn from now on is noted.
    void Begin(int width, int height);

    // It ends. The result is what was drawn since Begin.
    DrawList End();

    using Boundary::Cross;
    void Cross(Operation operation, std::span<const Field> fields, Passage passage) override;

private:
    void NoteResource(Operation operation, std::span<const Field> fields);
    void NoteDrawing(Operation operation, std::span<const Field> fields);
    std::string FontName(u32 font) const;
    std::string ImageName(const std::string& path) const;
    DrawMark MarkOf(const TeskDrawRecord& record) const;

    std::vector<std::filesystem::path> m_Folders;
    std::unordered_map<u32, std::string> m_Fonts;
    std::unordered_map<u32, std::vector<DrawValue>> m_Images;
    std::unordered_map<u32, std::string> m_ElementNames; // of those that have drawn in this frame
    DrawList m_List;
    bool m_IsNoting = false;
};

} // namespace host
