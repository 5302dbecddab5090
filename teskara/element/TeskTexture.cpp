#include "teskara/element/TeskTexture.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
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
        templateNode = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, "Template", ""));

    const MarkupSource source(node, templateNode);
    for (const auto& [tag, field] : Edges) {
        this->*field = static_cast<i32>(source.Integer(tag, 0));
        if (this->*field != 0)
            Flags |= TextureHasRect;
    }
    if (XMLNode* triangle = source.Child("Triangle"))
        ReadTriangle(triangle);
    Border = source.Integer("Border", 0);
    Orientation = static_cast<u8>(source.Integer("Orientation", 0));
    if (source.Child("Alpha")) {
        Flags |= TextureHasAlpha;
        Alpha = source.Float("Alpha", 1.0f);
    }
    if (source.Child("ColorMask")) {
        Flags |= TextureHasColorMask;
        ColorMask = source.Hex("ColorMask", 0);
    }
    ColorKey = source.HexAttribute("ColorKey", 0);
    ReadColorMaskAttribute(node, templateNode);
    return true;
}

void TeskTexture::ReadTriangle(XMLNode* triangle)
{
    Flags |= TextureHasTriangle;
    X1 = XMLHelper::GetFloatAttribute(triangle, "X1", 0);
    Y1 = XMLHelper::GetFloatAttribute(triangle, "Y1", 0);
    X2 = XMLHelper::GetFloatAttribute(triangle, "X2", 0);
    Y2 = XMLHelper::GetFloatAttribute(triangle, "Y2", 0);
    X3 = XMLHelper::GetFloatAttribute(triangle, "X3", 0);
    Y3 = XMLHelper::GetFloatAttribute(triangle, "Y3", 0);
}

// An attribute that only the template has turns the mask on, but its value is asked of the node, which gives 0.
void TeskTexture::ReadColorMaskAttribute(XMLNode* node, XMLNode* templateNode)
{
    const auto isGiven = [](XMLNode* place) { return *XMLHelper::GetStringAttribute(place, "ColorMask", "") != 0; };
    if (!isGiven(node) && !isGiven(templateNode))
        return;

    Flags |= TextureHasColorMask;
    ColorMask = XMLHelper::GetHexAttribute(node, "ColorMask", 0);
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
