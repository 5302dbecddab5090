#include "host/probe/ElementResources.h"

#include "teskara/controls/TeskFrame.h"
#include "teskara/controls/TeskText.h"
#include "teskara/script/MvTypeDefinition.h"

#include <string_view>

namespace {

// What a member of the element's script type gives, if it is of the type asked for.
void* AskMember(TeskElement& element, const char* member, std::string_view typeName)
{
    MvTypeDefinition* type = element.GetMvType();
    MvValue value;
    value.Object = &element;
    _MvTypeVar result;
    if (!type || type->DispatchMember(value, member, 0, nullptr, result) != DispatchDone || !result.Type)
        return nullptr;
    return result.Type->GetName() == typeName ? result.Value.Object : nullptr;
}

} // namespace

TeskTexture* TextureOf(TeskElement& element)
{
    if (auto* frame = dynamic_cast<TeskFrame*>(&element))
        return frame->Texture.get();
    return static_cast<TeskTexture*>(AskMember(element, "Texture", "tesktexture"));
}

TeskFont* FontOf(TeskElement& element)
{
    if (auto* text = dynamic_cast<TeskText*>(&element))
        return text->Font.get();
    return static_cast<TeskFont*>(AskMember(element, "Font", "teskfont"));
}
