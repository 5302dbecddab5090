#pragma once

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/markup/XMLNode.h"

#include <string_view>

struct ElementPosition;

// A tag or attribute name that is known when the program is compiled, with its hash: looking it up compares numbers
// before texts. Made of a literal: GetChild(node, TagName("Width")).
struct TagName {
    consteval TagName(const char* text) : Text(text), Hash(FoldedHash(text)) { }

    const char* Text;
    u32 Hash;
};

// Reads settings out of nodes. An Attribute form takes the attribute of that name; a Value form takes the first child
// element of that name, and the name of that element's first child as the text. Names compare without regard to case.
// A missing node, attribute or child, and an attribute with an empty value, give the default; a child element without
// content gives 0, an empty text or true. Every function accepts a null node. Texts belong to the tree.
class TESKARA_EXPORT XMLHelper
{
public:
    static XMLNode* GetFirstChild(XMLNode* node);
    static XMLNode* GetNext(XMLNode* node);
    static XMLNode* GetPrev(XMLNode* node);
    static XMLNode* GetParent(XMLNode* node);

    // The name of the node, which for a text node is its text; empty for null.
    static const char* GetText(XMLNode* node);

    // The first child element of that name, or null.
    static XMLNode* GetChild(XMLNode* node, const char* name);
    static XMLNode* GetChild(XMLNode* node, const char* name, u32 foldedHash);
    static XMLNode* GetChild(XMLNode* node, TagName name);

    static const char* GetStringAttribute(XMLNode* node, const char* name, const char* fallback);
    static const char* GetStringValue(XMLNode* node, const char* name, const char* fallback);

    // Decimal; -1 is 0xFFFFFFFF.
    static unsigned int GetIntAttribute(XMLNode* node, const char* name, unsigned int fallback);
    static unsigned int GetIntValue(XMLNode* node, const char* name, unsigned int fallback);

    static float GetFloatAttribute(XMLNode* node, const char* name, float fallback);
    static float GetFloatValue(XMLNode* node, const char* name, float fallback);

    // A text that is no hexadecimal number gives 0.
    static unsigned int GetHexAttribute(XMLNode* node, const char* name, unsigned int fallback);
    static unsigned int GetHexValue(XMLNode* node, const char* name, unsigned int fallback);

    // A child element: any number but 0 is true, so the words "true" and "yes" are false.
    static bool GetToggle(XMLNode* node, const char* name, bool fallback);

    // A share or a number of pixels. With "%" or "." in the text factor takes the share and the result is the default;
    // otherwise factor is 0 and the result the number. A child element without content leaves factor as it was.
    static unsigned int GetFactorAttribute(XMLNode* node, const char* name, float& factor, unsigned int fallback);
    static unsigned int GetFactorValue(XMLNode* node, const char* name, float& factor, unsigned int fallback);

    // A position or size: pixels, a share of the parent with "%" or ".", or with a leading "r" or "R" a distance from
    // the far edge. The result is the number of pixels, for a share the default. A child element without content
    // leaves position as it was.
    static unsigned int GetElementPositionAttribute(
        XMLNode* node, const char* name, ElementPosition& position, unsigned int fallback);
    static unsigned int GetElementPositionValue(
        XMLNode* node, const char* name, ElementPosition& position, unsigned int fallback);

    // The same from a child element, with 0 pixels for a share. False, with position and value as they were, if there
    // is no such child or it has no content.
    static bool GetElementPositionValueEx(
        XMLNode* node, const char* name, ElementPosition& position, unsigned int& value);
    static bool GetElementPositionValueEx(XMLNode* node, TagName name, ElementPosition& position, unsigned int& value);
};
