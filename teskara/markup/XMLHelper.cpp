#include "teskara/markup/XMLHelper.h"

#include "teskara/core/Numbers.h"
#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/MarkupQuestions.h"
#include "teskara/markup/XMLAttribute.h"

#include <optional>
#include <string_view>

constinit MarkupQuestions::Listener MarkupQuestions::g_Listener = nullptr;

namespace {

// The value of the attribute; null if there is none or it is empty.
const char* AttributeText(XMLNode* node, const char* name)
{
    MarkupQuestions::Tell({node, name, true});
    const XMLAttribute* const attribute = node ? node->FindAttribute(name) : nullptr;
    return attribute && *attribute->Value ? attribute->Value : nullptr;
}

// Reads the text of a child element, which is empty if the element is.
template <typename Read, typename Value> Value ReadChild(XMLNode* node, const char* name, Value fallback, Read read)
{
    const XMLNode* const child = XMLHelper::GetChild(node, name);
    if (!child)
        return fallback;
    return read(child->FirstChild ? child->FirstChild->Name : "");
}

template <typename Read, typename Value> Value ReadAttribute(XMLNode* node, const char* name, Value fallback, Read read)
{
    const char* const text = AttributeText(node, name);
    return text ? read(text) : fallback;
}

unsigned int ReadUnsigned(std::string_view text)
{
    return static_cast<unsigned int>(ReadInteger(text));
}

unsigned int ReadHexOrZero(std::string_view text)
{
    u32 value = 0;
    ReadHex(text, value);
    return value;
}

// The share that a text names with "%" or ".", or nothing if it counts pixels.
std::optional<float> ReadShare(std::string_view text)
{
    if (text.find('%') != std::string_view::npos)
        return ReadFloat(text) / 100;
    if (text.find('.') != std::string_view::npos)
        return ReadFloat(text);
    return std::nullopt;
}

unsigned int ReadFactor(std::string_view text, float& factor, unsigned int fallback)
{
    const std::optional<float> share = ReadShare(text);
    factor = share.value_or(0);
    return share ? fallback : ReadUnsigned(text);
}

void SetPixels(ElementPosition& position, unsigned int pixels)
{
    position.Type = PositionAbsolute;
    position.Factor = pixels;
}

// A share says nothing about pixels and leaves shareValue as the result. It also loses the letter of the far edge.
unsigned int ReadPosition(std::string_view text, ElementPosition& position, unsigned int shareValue)
{
    const bool fromFarEdge = !text.empty() && (text.front() == 'r' || text.front() == 'R');
    if (fromFarEdge)
        text.remove_prefix(1);

    if (const std::optional<float> share = ReadShare(text)) {
        position.Type = PositionShare;
        position.SetShare(*share);
        return shareValue;
    }
    position.Type = fromFarEdge ? PositionFarEdge : PositionAbsolute;
    position.Factor = ReadUnsigned(text);
    return position.Factor;
}

bool ReadPositionOf(const XMLNode* child, ElementPosition& position, unsigned int& value)
{
    if (!child || !child->FirstChild)
        return false;

    value = ReadPosition(child->FirstChild->Name, position, 0);
    return true;
}

} // namespace

XMLNode* XMLHelper::GetFirstChild(XMLNode* node)
{
    return node ? node->FirstChild : nullptr;
}

XMLNode* XMLHelper::GetNext(XMLNode* node)
{
    return node ? node->Next : nullptr;
}

XMLNode* XMLHelper::GetPrev(XMLNode* node)
{
    return node ? node->Prev : nullptr;
}

XMLNode* XMLHelper::GetParent(XMLNode* node)
{
    return node ? node->Parent : nullptr;
}

const char* XMLHelper::GetText(XMLNode* node)
{
    return node ? node->Name : "";
}

XMLNode* XMLHelper::GetChild(XMLNode* node, const char* name)
{
    return GetChild(node, name, FoldedHash(name));
}

XMLNode* XMLHelper::GetChild(XMLNode* node, const char* name, u32 foldedHash)
{
    MarkupQuestions::Tell({node, name, false});
    const std::string_view wanted = name;
    for (XMLNode* child = GetFirstChild(node); child; child = child->Next)
        if (child->Type == XMLElementNode && child->HasName(wanted, foldedHash))
            return child;
    return nullptr;
}

XMLNode* XMLHelper::GetChild(XMLNode* node, TagName name)
{
    return GetChild(node, name.Text, name.Hash);
}

const char* XMLHelper::GetStringAttribute(XMLNode* node, const char* name, const char* fallback)
{
    return ReadAttribute(node, name, fallback, [](const char* text) { return text; });
}

const char* XMLHelper::GetStringValue(XMLNode* node, const char* name, const char* fallback)
{
    return ReadChild(node, name, fallback, [](const char* text) { return text; });
}

unsigned int XMLHelper::GetIntAttribute(XMLNode* node, const char* name, unsigned int fallback)
{
    return ReadAttribute(node, name, fallback, ReadUnsigned);
}

unsigned int XMLHelper::GetIntValue(XMLNode* node, const char* name, unsigned int fallback)
{
    return ReadChild(node, name, fallback, ReadUnsigned);
}

float XMLHelper::GetFloatAttribute(XMLNode* node, const char* name, float fallback)
{
    return ReadAttribute(node, name, fallback, ReadFloat);
}

float XMLHelper::GetFloatValue(XMLNode* node, const char* name, float fallback)
{
    return ReadChild(node, name, fallback, ReadFloat);
}

unsigned int XMLHelper::GetHexAttribute(XMLNode* node, const char* name, unsigned int fallback)
{
    return ReadAttribute(node, name, fallback, ReadHexOrZero);
}

unsigned int XMLHelper::GetHexValue(XMLNode* node, const char* name, unsigned int fallback)
{
    return ReadChild(node, name, fallback, ReadHexOrZero);
}

bool XMLHelper::GetToggle(XMLNode* node, const char* name, bool fallback)
{
    const XMLNode* const child = GetChild(node, name);
    if (!child)
        return fallback;
    // An empty element switches on.
    return !child->FirstChild || ReadInteger(child->FirstChild->Name) != 0;
}

unsigned int XMLHelper::GetFactorAttribute(XMLNode* node, const char* name, float& factor, unsigned int fallback)
{
    factor = 0;
    const char* const text = AttributeText(node, name);
    return text ? ReadFactor(text, factor, fallback) : fallback;
}

unsigned int XMLHelper::GetFactorValue(XMLNode* node, const char* name, float& factor, unsigned int fallback)
{
    const XMLNode* const child = GetChild(node, name);
    if (!child) {
        factor = 0;
        return fallback;
    }
    return child->FirstChild ? ReadFactor(child->FirstChild->Name, factor, fallback) : 0;
}

unsigned int XMLHelper::GetElementPositionAttribute(
    XMLNode* node, const char* name, ElementPosition& position, unsigned int fallback)
{
    SetPixels(position, fallback);
    const char* const text = AttributeText(node, name);
    return text ? ReadPosition(text, position, fallback) : fallback;
}

unsigned int XMLHelper::GetElementPositionValue(
    XMLNode* node, const char* name, ElementPosition& position, unsigned int fallback)
{
    const XMLNode* const child = GetChild(node, name);
    if (!child) {
        SetPixels(position, fallback);
        return fallback;
    }
    return child->FirstChild ? ReadPosition(child->FirstChild->Name, position, fallback) : 0;
}

bool XMLHelper::GetElementPositionValueEx(
    XMLNode* node, const char* name, ElementPosition& position, unsigned int& value)
{
    return ReadPositionOf(GetChild(node, name), position, value);
}

bool XMLHelper::GetElementPositionValueEx(XMLNode* node, TagName name, ElementPosition& position, unsigned int& value)
{
    return ReadPositionOf(GetChild(node, name), position, value);
}
