#include "teskara/element/TeskTexture.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/MarkupSource.h"
#include "teskara/markup/XMLHelper.h"

namespace {

struct TextureEdge {
    TagName Tag;
    i32 TeskTexture::*Field;
};

constexpr TextureEdge Edges[] = {
    {"left", &TeskTexture::Left},
    {"right", &TeskTexture::Right},
    {"bottom", &TeskTexture::Bottom},
    {"top", &TeskTexture::Top},
};

// In the order of reading.
constexpr MarkupPart TrianglePart = {"Triangle", "triangle"};
constexpr MarkupPart BorderPart = {"Border", "integer"};
constexpr MarkupPart OrientationPart = {"Orientation", "integer"};
constexpr MarkupPart AlphaPart = {"Alpha", "float"};
constexpr MarkupPart ColorMaskPart = {"ColorMask", "hex"};
constexpr MarkupPart ColorKeyPart = {"ColorKey", "hex", MarkupPlace::Attribute};
constexpr MarkupPart ColorMaskAttribute = {"ColorMask", "hex", MarkupPlace::Attribute};

constexpr MarkupPart TextureParts[] = {
    {FilenameAttribute, "file", MarkupPlace::Attribute},
    {TemplateAttribute, "template", MarkupPlace::Attribute},
    {Edges[0].Tag, "integer"},
    {Edges[1].Tag, "integer"},
    {Edges[2].Tag, "integer"},
    {Edges[3].Tag, "integer"},
    TrianglePart,
    BorderPart,
    OrientationPart,
    AlphaPart,
    ColorMaskPart,
    ColorKeyPart,
    ColorMaskAttribute,
};

struct TriangleCorner {
    MarkupPart Part;
    float TeskTexture::*Field;
};

constexpr TriangleCorner Corners[] = {
    {{"X1", "float", MarkupPlace::Attribute}, &TeskTexture::X1},
    {{"Y1", "float", MarkupPlace::Attribute}, &TeskTexture::Y1},
    {{"X2", "float", MarkupPlace::Attribute}, &TeskTexture::X2},
    {{"Y2", "float", MarkupPlace::Attribute}, &TeskTexture::Y2},
    {{"X3", "float", MarkupPlace::Attribute}, &TeskTexture::X3},
    {{"Y3", "float", MarkupPlace::Attribute}, &TeskTexture::Y3},
};

constexpr MarkupPart TriangleParts[] = {
    Corners[0].Part, Corners[1].Part, Corners[2].Part, Corners[3].Part, Corners[4].Part, Corners[5].Part};

const MarkupShape g_TextureShape({.Name = "texture", .Use = MarkupUse::Value, .Parts = {TextureParts}});
const MarkupShape g_TriangleShape({.Name = TrianglePart.Form, .Use = MarkupUse::Value, .Parts = {TriangleParts}});

} // namespace

TeskTexture::TeskTexture(const char* filename) : Filename(TextOrEmpty(filename)) { }

TeskTexture::TeskTexture(const TeskTexture& source) : Filename(source.Filename)
{
    CopyFields(source);
}

TeskTexture::~TeskTexture()
{
    ReleaseImage();
}

TeskTexture* TeskTexture::New(const char* filename)
{
    try {
        return new TeskTexture(filename);
    } catch (...) {
        return nullptr;
    }
}

TeskTexture* TeskTexture::New(const TeskTexture& source)
{
    try {
        return new TeskTexture(source);
    } catch (...) {
        return nullptr;
    }
}

void TeskTexture::Delete(TeskTexture* texture)
{
    delete texture;
}

void TeskTexture::Delete()
{
    delete this;
}

bool TeskTexture::FromXML(XMLNode* node)
{
    return FromXML(node, nullptr);
}

bool TeskTexture::FromXML(XMLNode* node, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, TemplateAttribute, ""));

    const MarkupSource source(node, templateNode);
    for (const auto& [tag, field] : Edges) {
        this->*field = static_cast<i32>(source.Integer(tag, 0));
        if (this->*field != 0)
            Flags |= TextureHasRect;
    }
    if (XMLNode* triangle = source.Child(TrianglePart.Name))
        ReadTriangle(triangle);
    Border = source.Integer(BorderPart.Name, 0);
    Orientation = static_cast<u8>(source.Integer(OrientationPart.Name, 0));
    if (source.Child(AlphaPart.Name)) {
        Flags |= TextureHasAlpha;
        Alpha = source.Float(AlphaPart.Name, 1.0f);
    }
    if (source.Child(ColorMaskPart.Name)) {
        Flags |= TextureHasColorMask;
        ColorMask = source.Hex(ColorMaskPart.Name, 0);
    }
    ColorKey = source.HexAttribute(ColorKeyPart.Name.Text, 0);
    ReadColorMaskAttribute(node, templateNode);
    return true;
}

void TeskTexture::ReadTriangle(XMLNode* triangle)
{
    Flags |= TextureHasTriangle;
    for (const auto& [part, field] : Corners)
        this->*field = XMLHelper::GetFloatAttribute(triangle, part.Name.Text, 0);
}

// An attribute that only the template has turns the mask on, but its value is asked of the node, which gives 0.
void TeskTexture::ReadColorMaskAttribute(XMLNode* node, XMLNode* templateNode)
{
    const auto isGiven = [](XMLNode* place) {
        return *XMLHelper::GetStringAttribute(place, ColorMaskAttribute.Name.Text, "") != 0;
    };
    if (!isGiven(node) && !isGiven(templateNode))
        return;

    Flags |= TextureHasColorMask;
    ColorMask = XMLHelper::GetHexAttribute(node, ColorMaskAttribute.Name.Text, 0);
}

bool TeskTexture::Prepare() const
{
    if (TextureID == 0)
        TextureID = g_UIManager.LoadTextureResource(Filename.c_str(), ColorKey);
    return TextureID != 0;
}

bool TeskTexture::GetSize()
{
    if (Flags & TextureHasRect)
        return true;

    _Point2i size;
    if (TextureID == 0 || !g_UIManager.GetTextureSize(TextureID, size))
        return false;

    Flags |= TextureHasRect;
    Right = size.x;
    Bottom = size.y;
    return true;
}

void TeskTexture::Set(const char* filename, u32 colorKey)
{
    if (!TryAssign(Filename, filename))
        return;

    ReleaseImage();
    ColorKey = colorKey;
}

bool TeskTexture::SetFrom(const TeskTexture& source)
{
    if (&source == this)
        return true;
    if (!TryAssign(Filename, source.Filename.c_str()))
        return false;

    ReleaseImage();
    CopyFields(source);
    return true;
}

void TeskTexture::ReleaseImage()
{
    if (TextureID == 0)
        return;

    g_UIManager.ReleaseTextureResource(TextureID);
    TextureID = 0;
}

// All but the name. The source loads its image by being copied; the copy waits for its own first use.
void TeskTexture::CopyFields(const TeskTexture& source)
{
    ColorKey = source.ColorKey;
    Flags = source.Flags;
    Left = source.Left;
    Top = source.Top;
    Right = source.Right;
    Bottom = source.Bottom;
    X1 = source.X1;
    Y1 = source.Y1;
    X2 = source.X2;
    Y2 = source.Y2;
    X3 = source.X3;
    Y3 = source.Y3;
    Alpha = source.Alpha;
    ColorMask = source.ColorMask;
    Border = source.Border;
    Orientation = source.Orientation;
    source.Prepare();
}
