#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <string>
#include <string_view>

// What the scanner cuts its input into: runs of text, and one character each for everything that markup may be made of.
enum XMLTokenType : u32 {
    XMLNoToken = 0,
    XMLTextToken = 1,
    XMLOpenBracketToken = 2,
    XMLCloseBracketToken = 3,
    XMLEqualsToken = 4,
    XMLDoubleQuoteToken = 5,
    XMLSingleQuoteToken = 6,
    XMLAmpersandToken = 7,
    XMLSlashToken = 8,
    XMLHashToken = 9,
    XMLSemicolonToken = 10,
    XMLExclamationToken = 11,
    XMLHyphenToken = 12,
    XMLQuestionToken = 13,
    XMLOpenSquareToken = 14,
    XMLCloseSquareToken = 15,
    XMLLineSpaceToken = 16, // tab, line feed, carriage return
    XMLSpaceToken = 17,
    XMLZeroToken = 18, // never leaves the scanner: ends the input
};

// A token as it lies in the scanner's buffer: good until the next one is taken.
struct XMLSpan {
    u32 Type = XMLNoToken;
    std::u16string_view Units;

    explicit operator bool() const { return Type != XMLNoToken; }
    bool IsSpace() const { return Type == XMLLineSpaceToken || Type == XMLSpaceToken; }
};

// A token with a text of its own, in UTF-8.
class XMLToken
{
public:
    XMLToken() = default;
    XMLToken(const XMLToken&) = delete;
    XMLToken& operator=(const XMLToken&) = delete;
    virtual ~XMLToken();

    virtual void Clear();

    void Set(const XMLSpan& span);
    std::string_view View() const { return {Text, static_cast<std::size_t>(Length)}; }
    bool IsSpace() const { return Type == XMLLineSpaceToken || Type == XMLSpaceToken; }

    const char* Text = ""; // of this token, or for a single character a constant
    u64 Length = 0; // bytes
    u32 Type = XMLNoToken;

private:
    std::string m_OwnText;
};
