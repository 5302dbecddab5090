#include "host/drawlist/DrawListing.h"

#include "host/files/SearchPaths.h"
#include "host/probe/ValueText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/RenderedElement.h"
#include "teskara/element/TeskScreen.h"

#include <cassert>
#include <utility>

namespace host {

namespace {

constexpr u32 HasPart = 1;
constexpr u32 HasAlpha = 2;
constexpr u32 HasColor = 4;
constexpr u32 IsTriangle = 16;
constexpr u32 WhiteImage = 1; // the one that plain lines name

template <class Value> const Value& Get(const Field& field)
{
    assert(field.Form == &FormOf<Value>());
    return *static_cast<const Value*>(field.Value);
}

std::string FontText(const char* name, u32 height, bool fixed, bool bold)
{
    std::string text = name ? name : "";
    text += (text.empty() ? "" : " ") + std::to_string(height);
    return QuotedLine(text + (fixed ? " fixed" : "") + (bold ? " bold" : ""));
}

std::string AlignmentText(u32 format)
{
    switch (format & ~u32{DrawTextUnclipped}) {
    case DrawTextLeft:
        return "left";
    case DrawTextCenter:
        return "center";
    case DrawTextRight:
        return "right";
    default:
        return std::to_string(format);
    }
}

DrawMark TextMark(std::span<const Field> fields, const std::string& font)
{
    const char* text = Get<const char*>(fields[1]);
    const u32 format = Get<u32>(fields[4]);
    DrawMark mark = {Get<tagRECT>(fields[2]),
        {{"text", QuotedLine(text ? text : "")}, {"color", ColorText(Get<u32>(fields[3]))}, {"font", font},
            {"align", AlignmentText(format)}}};
    if (format & DrawTextUnclipped)
        mark.Values.push_back({"unclipped", "true"});
    return mark;
}

std::string ElementName(u32 id)
{
    const TeskElement* element = id == 0 ? g_UIManager.Screen : g_UIManager.FindElementByID(id);
    return element ? element->FullName : "";
}

} // namespace

DrawListing::DrawListing()
{
    AddFolder(SearchPaths().InterfacesFolder());
    m_Images[WhiteImage] = {{"image", QuotedLine("")}};
}

void DrawListing::AddFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::weakly_canonical(folder, error);
    if (!error && !whole.empty())
        m_Folders.push_back(whole);
}

void DrawListing::Begin(int width, int height)
{
    m_List = {width, height, {}};
    m_ElementNames.clear();
    m_IsNoting = true;
}

DrawList DrawListing::End()
{
    m_IsNoting = false;
    return std::exchange(m_List, {});
}

// Before the call: it may throw. What it gives is known behind it.
void DrawListing::Cross(Operation operation, std::span<const Field> fields, Passage passage)
{
    if (m_IsNoting)
        NoteDrawing(operation, fields);
    Scripts().ShareDialogs();
    passage();
    Scripts().ShareDialogs();
    NoteResource(operation, fields);
}

void DrawListing::NoteResource(Operation operation, std::span<const Field> fields)
{
    if (operation == Operation::CreateFontResource) {
        m_Fonts[Get<u32>(fields[4])] =
            FontText(Get<const char*>(fields[0]), Get<u8>(fields[1]), Get<bool>(fields[2]), Get<bool>(fields[3]));
    } else if (operation == Operation::LoadTextureResource) {
        const char* path = Get<const char*>(fields[0]);
        const u32 colorKey = Get<u32>(fields[1]);
        auto& image = m_Images[Get<u32>(fields[2])];
        image = {{"image", QuotedLine(ImageName(path ? path : ""))}};
        if (colorKey != 0)
            image.push_back({"key", ColorText(colorKey)});
    }
}

void DrawListing::NoteDrawing(Operation operation, std::span<const Field> fields)
{
    std::vector<DrawMark> marks;
    if (operation == Operation::DrawRect) {
        marks = {{Get<tagRECT>(fields[0]), {{"color", ColorText(Get<u32>(fields[1]))}}}};
    } else if (operation == Operation::DrawTexturedRect) {
        marks = {MarkOf(Get<TeskDrawRecord>(fields[0]))};
    } else if (operation == Operation::DrawTexturedRects) {
        const auto& images = Get<ImageList>(fields[0]);
        for (u32 index = 0; index < images.Count; ++index)
            marks.push_back(MarkOf(images.Records[index]));
    } else if (operation == Operation::DrawLine) {
        marks = {MarkOf(Get<TeskDrawRecord>(fields[0]))};
        marks.back().Values.push_back({"width", std::to_string(Get<u32>(fields[1]))});
    } else if (operation == Operation::DrawText) {
        marks = {TextMark(fields, FontName(Get<u32>(fields[0])))};
    } else {
        return;
    }
    const u32 id = GetRenderedElementID();
    auto name = m_ElementNames.find(id);
    if (name == m_ElementNames.end())
        name = m_ElementNames.emplace(id, ElementName(id)).first;
    m_List.Calls.push_back({name->second, NameOf(operation), std::move(marks)});
}

std::string DrawListing::FontName(u32 font) const
{
    const auto found = m_Fonts.find(font);
    return found == m_Fonts.end() ? QuotedLine("") : found->second;
}

// From the folder that is nearest to it; whole, if it lies in none.
std::string DrawListing::ImageName(const std::string& path) const
{
    std::error_code error;
    const auto whole = path.empty() ? std::filesystem::path() : std::filesystem::weakly_canonical(path, error);
    std::string name = path;
    for (const std::filesystem::path& folder : m_Folders) {
        const std::string relative = whole.lexically_relative(folder).generic_string();
        if (!error && !relative.empty() && !relative.starts_with("..") && relative.size() < name.size())
            name = relative;
    }
    return name;
}

// Only what counts: the rest of a record may be anything.
DrawMark DrawListing::MarkOf(const TeskDrawRecord& record) const
{
    const auto image = m_Images.find(record.TextureID);
    DrawMark mark{record.Destination, {}};
    if (image != m_Images.end())
        mark.Values = image->second;
    if (record.Flags & HasPart)
        mark.Values.push_back({"from", RectText(record.Source)});
    if (record.Flags & HasAlpha)
        mark.Values.push_back({"alpha", std::to_string(record.Alpha)});
    if (record.Flags & HasColor)
        mark.Values.push_back({"color", ColorText(record.ColorMask)});
    if (record.Orientation != 0)
        mark.Values.push_back({"turns", std::to_string(record.Orientation)});
    if (record.Flags & IsTriangle)
        mark.Values.push_back({"triangle", "true"});
    return mark;
}

} // namespace host
