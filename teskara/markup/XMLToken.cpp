#include "teskara/markup/XMLToken.h"

#include "teskara/core/Utf8.h"

namespace {

// Indexed by token type.
constexpr const char* Characters[] = {
    "",
    "",
    "<",
    ">",
    "=",
    "\"",
    "'",
    "&",
    "/",
    "#",
    ";",
    "!",
    "-",
    "?",
    "[",
    "]",
    nullptr,
    " ",
};

const char* LineSpace(char16_t unit)
{
    if (unit == u'\t')
        return "\t";
    return unit == u'\n' ? "\n" : "\r";
}

} // namespace

XMLToken::~XMLToken() = default;

void XMLToken::Clear()
{
    m_OwnText.clear();
    Text = "";
    Length = 0;
    Type = XMLNoToken;
}

void XMLToken::Set(const XMLSpan& span)
{
    Clear();
    Type = span.Type;
    if (Type == XMLTextToken) {
        m_OwnText = ToUtf8(span.Units);
        Text = m_OwnText.c_str();
        Length = m_OwnText.size();
    } else if (Type != XMLNoToken) {
        Text = Type == XMLLineSpaceToken ? LineSpace(span.Units.front()) : Characters[Type];
        Length = 1;
    }
}
