#include "teskara/script/TeskTextureType.h"

#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Utf8.h"
#include "teskara/script/ScriptActions.h"
#include "teskara/script/ScriptResults.h"

#include <array>
#include <cstring>
#include <optional>

namespace {

// --- File names, which the host wants in UTF-16

using WideName = std::array<char16_t, Limits::TextBuffer512>;

WideName Widen(const utf8string& name)
{
    WideName wide = {};
    Utf8ToUtf16(name, wide.data(), wide.size() - 1);
    return wide;
}

struct FilePathValue {
    static constexpr const char* Name = "filepath";
    static MvTypeDefinition* Put(MvValue& value, const utf8string& name)
    {
        const WideName wide = Widen(name);
        char* buffer = pFilePathType ? Host::MakeTempBuffer(sizeof(wide), "") : nullptr;
        if (!buffer)
            return nullptr;

        std::memcpy(buffer, wide.data(), sizeof(wide));
        value.Object = buffer;
        return pFilePathType;
    }
};

constexpr Script::ResultOf<FilePathValue, &TeskTexture::Filename> Filename;

// --- Values that count only with their flag

template <u32 Flag> bool Has(const TeskTexture& texture)
{
    return (texture.Flags & Flag) != 0;
}

template <u32 Flag, auto Field> auto With(const TeskTexture& texture)
{
    return Has<Flag>(texture) ? std::make_optional(texture.*Field) : std::nullopt;
}

template <u32 Flag> void Unset(TeskTexture& texture)
{
    texture.Flags &= ~Flag;
}

// The value is written, but never counts as one.
struct BorderResult {
    static constexpr const char* Result = nullptr;
    static bool Answer(const TeskTexture& texture, const Arguments&, _MvTypeVar& result)
    {
        result.Value.Integer = static_cast<i32>(texture.Border);
        return false;
    }
};

constexpr BorderResult Border;

// --- Methods

// The reference may be anything, so finding it may end this texture.
bool Copy(TeskTexture& texture, const Arguments& arguments)
{
    _MvTypeVar found;
    if (!Host::ParseTypedValue(arguments.Text(0), found) || !found.Type || found.Type != pTeskTextureType)
        return false;

    const TeskTexture* source = HeldObject<TeskTexture>(found.Value);
    if (!source || !ScriptHold<TeskTexture>::IsAlive(&texture))
        return false;

    texture.SetFrom(*source);
    return true;
}

bool Set(TeskTexture& texture, const Arguments& arguments)
{
    u32 colorKey = 0;
    arguments.Color(1, colorKey);
    texture.Set(arguments.Text(0), colorKey);
    return true;
}

bool SetRect(TeskTexture& texture, const Arguments& arguments)
{
    texture.Left = arguments.Integer(0);
    texture.Top = arguments.Integer(1);
    texture.Right = arguments.Integer(2);
    texture.Bottom = arguments.Integer(3);
    texture.Flags |= TextureHasRect;
    return true;
}

bool SetAlpha(TeskTexture& texture, const Arguments& arguments)
{
    texture.Alpha = arguments.Float(0);
    texture.Flags |= TextureHasAlpha;
    return true;
}

bool SetColorMask(TeskTexture& texture, const Arguments& arguments)
{
    arguments.Color(0, texture.ColorMask);
    texture.Flags |= TextureHasColorMask;
    return true;
}

// clang-format off
constexpr ScriptMember<TeskTexture> Members[] = {
    {0,  "Filename",     Filename},
    {1,  "ColorKey",     Script::Int<&TeskTexture::ColorKey>},
    {2,  "Alpha",        Script::Float<With<TextureHasAlpha, &TeskTexture::Alpha>>},
    {3,  "ColorMask",    Script::Int<With<TextureHasColorMask, &TeskTexture::ColorMask>>},
    {4,  "Border",       Border},
    {5,  "Orientation",  Script::Int<&TeskTexture::Orientation>},
    {6,  "Left",         Script::Int<With<TextureHasRect, &TeskTexture::Left>>},
    {7,  "Right",        Script::Int<With<TextureHasRect, &TeskTexture::Right>>},
    {8,  "Top",          Script::Int<With<TextureHasRect, &TeskTexture::Top>>},
    {9,  "Bottom",       Script::Int<With<TextureHasRect, &TeskTexture::Bottom>>},
    {10, "HasRect",      Script::Bool<Has<TextureHasRect>>},
    {11, "HasAlpha",     Script::Bool<Has<TextureHasAlpha>>},
    {12, "HasColorMask", Script::Bool<Has<TextureHasColorMask>>},
};

constexpr ScriptMethod<TeskTexture> Methods[] = {
    {0, "Copy",           Copy, 1},
    {1, "Set",            Set, 1},
    {2, "SetRect",        SetRect, 4},
    {3, "SetAlpha",       SetAlpha, 1},
    {4, "SetColorMask",   SetColorMask, 1},
    {5, "UnsetRect",      Script::Call<Unset<TextureHasRect>>},
    {6, "UnsetAlpha",     Script::Call<Unset<TextureHasAlpha>>},
    {7, "UnsetColorMask", Script::Call<Unset<TextureHasColorMask>>},
    {8, "SetOrientation", Script::SetInteger<&TeskTexture::Orientation>},
    {9, "SetBorder",      Script::SetInteger<&TeskTexture::Border>},
};
// clang-format on

} // namespace

TeskTextureType::TeskTextureType(const char* name) : TableType(name, Members, Methods) { }

bool TeskTextureType::ToText(MvValue value, char* buffer, u32 size)
try {
    const TeskTexture* texture = HeldObject<TeskTexture>(value);
    if (!texture || !pFilePathType)
        return false;

    WideName wide = Widen(texture->Filename);
    MvValue path;
    path.Object = wide.data();
    return pFilePathType->ToText(path, buffer, size);
} catch (...) {
    return false; // the host's type is not ours
}
