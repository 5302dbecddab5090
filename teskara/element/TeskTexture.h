#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"
#include "teskara/element/ScriptHold.h"

class XMLNode;

enum TextureFlags : u32 {
    TextureHasRect = 1,
    TextureHasAlpha = 2,
    TextureHasColorMask = 4,
    TextureHasTriangle = 16,
};

// Which image to draw and which part of it, with what opacity, mask and border. The image is the host's, loaded at the
// first use and given back by the end of this object. Owned by the control that draws it.
class TESKARA_EXPORT TeskTexture
{
public:
    // The caller owns the result; null if there is no memory. The copy loads the image for itself at its first use.
    static TeskTexture* New(const char* filename);
    static TeskTexture* New(const TeskTexture& source);

    TeskTexture(const TeskTexture& source);
    ~TeskTexture();
    TeskTexture& operator=(const TeskTexture&) = delete;

    // Ends a texture that New made; null is harmless.
    static void Delete(TeskTexture* texture);
    void Delete();

    // Reads all but the file name. A null template is looked up by the node's own Template attribute.
    bool FromXML(XMLNode* node);
    bool FromXML(XMLNode* node, XMLNode* templateNode);

    // Loads the image if it is not loaded. False: it cannot be loaded; the next call tries again.
    bool Prepare() const;

    // Fills Right and Bottom from the loaded image where no rectangle was given. Loads nothing.
    bool GetSize();

    // Names another image and keeps all the rest. This and SetFrom change nothing if memory ran out.
    void Set(const char* filename, u32 colorKey);

    // Takes over everything from another texture but its loaded image. False: memory ran out.
    bool SetFrom(const TeskTexture& source);

    // Gives the loaded image back. The next use loads it again.
    void ReleaseImage();

    utf8string Filename; // empty: no image, only ColorMask
    mutable u32 TextureID = 0; // host's, 0 while not loaded
    u32 ColorKey = 0;
    u32 Flags = 0;
    i32 Left = 0;
    i32 Top = 0;
    i32 Right = 0;
    i32 Bottom = 0;
    float X1 = 0;
    float Y1 = 0;
    float X2 = 0;
    float Y2 = 0;
    float X3 = 0;
    float Y3 = 0;
    float Alpha = 1.0f;
    u32 ColorMask = 0;
    u32 Border = 0; // width of the frame in the image
    u8 Orientation = 0; // quarter turns clockwise
    ScriptHold<TeskTexture> Hold;

private:
    explicit TeskTexture(const char* filename);

    void CopyFields(const TeskTexture& source);
    void ReadTriangle(XMLNode* triangle);
    void ReadColorMaskAttribute(XMLNode* node, XMLNode* templateNode);
};
