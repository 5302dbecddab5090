#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/XMLArena.h"
#include "teskara/markup/XMLAttributeList.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLNameTable.h"
#include "teskara/markup/XMLStream.h"

#include <string>
#include <string_view>

// Builds a document's tree from the tokens of a stream; used for one parse. Open elements are counted, not called
// into, so that the depth of a document costs no stack. Every function answers false when the parse has failed; the
// document then has the message, if the failure has one.
class XMLParser
{
public:
    XMLParser(XMLDocument& document, XMLStream& stream);

    bool ParseDocument();

private:
    enum class Reference { Appended, NoSemicolon, NoInput, TooMuch };

    bool MakeRoot();
    bool ParseOutside(const XMLSpan& token);
    bool ParseContent();
    bool ParseContentToken();
    void ExpectLongText();
    bool FlushText();
    bool ParseTag();
    bool ParseStartTag(std::u16string_view nameUnits);
    bool ParseEndTag();

    bool ParseAttribute(XMLNode& node, std::u16string_view nameUnits);
    bool ParseValue(XMLNode& node, const char* name, u32 quote, XMLText& value);
    bool AppendReferenceToValue(XMLNode& node, const char* name);

    Reference AppendReference(std::string& to);
    std::string_view CharacterReference(const XMLSpan& number);
    std::string_view NamedReference(const XMLSpan& name);

    bool ParseInstruction();
    bool ParseDeclaration();
    bool ParseComment();
    bool ParseDoctype();
    bool ParseDoctypeLiterals(bool isPublic);
    bool ParseDoctypeEnd();
    bool ParseLiteral(XMLSpan token, const char* attribute);
    bool StoreAttribute(std::string_view name, std::string_view value);
    bool SetAttribute(const XMLName& name, XMLText value);

    static void Append(std::string& to, std::u16string_view units);
    XMLText Store(std::u16string_view units);
    XMLName StoreName(std::u16string_view units);
    XMLSpan NextBehindSpace();
    XMLNode* NewChild(const char* name, u32 type, u32 hash = 0);

    bool Fail(const char* format, const XMLSpan& token);
    bool FailInAttribute(const XMLNode& node, const char* format, const char* name);

    XMLDocument& m_Document;
    XMLStream& m_Stream;
    XMLArena* m_Arena = nullptr;
    XMLAttributeList m_Attributes;
    XMLNameTable m_Names;
    std::string m_Text; // of the open element, as far as it doesn't lie in one piece in the buffer
    std::string m_Value;
    std::string m_Reference;
    u32 m_OpenElements = 0;
    u64 m_ReferenceBytes = 0;
};

// units: a part of what lies in the stream's buffer.
inline XMLText XMLParser::Store(std::u16string_view units)
{
    return m_Stream.HoldsOnlyAscii() ? m_Arena->StoreAscii(units) : m_Arena->Store(units);
}

inline XMLName XMLParser::StoreName(std::u16string_view units)
{
    return m_Names.Get(units, [this](std::u16string_view name) { return Store(name); });
}
