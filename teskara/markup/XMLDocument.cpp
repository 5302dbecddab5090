#include "teskara/markup/XMLDocument.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Utf8.h"
#include "teskara/core/platform/PlatformCalls.h"
#include "teskara/markup/XMLBuffer.h"
#include "teskara/markup/XMLFile.h"
#include "teskara/markup/XMLParser.h"

#include <algorithm>
#include <new>
#include <utility>

XMLDocument::XMLDocument(bool keepTree) : KeepTree(keepTree)
{
    Reset();
}

XMLDocument::~XMLDocument()
{
    if (!KeepTree)
        XMLNode::Delete(Root);
}

void XMLDocument::Reset()
{
    SetErrorText("Unknown Error");
    if (!KeepTree)
        XMLNode::Delete(Root);
    Root = nullptr;
    Current = nullptr;
    Stream.reset();
    EnterPredefinedEntities();
}

void XMLDocument::EnterPredefinedEntities()
{
    Entities.clear();
    AddEntity("lt", "<");
    AddEntity("gt", ">");
    AddEntity("amp", "&");
    AddEntity("apos", "'");
    AddEntity("quot", "\"");
}

bool XMLDocument::ParseFile(const char* path)
{
    const char* const utf8Path = TextOrEmpty(path);
    char16_t widePath[Limits::MarkupPathUnits + 1];
    const bool fits = Utf16Length(utf8Path) <= Limits::MarkupPathUnits;
    widePath[fits ? Utf8ToUtf16(utf8Path, widePath, Limits::MarkupPathUnits) : 0] = 0;
    return ParseOpened(fits ? widePath : nullptr, utf8Path);
}

bool XMLDocument::ParseFile(const char16_t* path)
{
    const std::u16string_view widePath = path ? path : u"";
    try {
        return ParseOpened(widePath.data(), ToUtf8(widePath).c_str());
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// path: null if the path is too long to be opened.
bool XMLDocument::ParseOpened(const char16_t* path, const char* utf8Path)
{
    if (Root)
        return false;

    OpenedFile file(path ? System::OpenFile(path) : nullptr);
    if (!file) {
        FormatBounded(ErrorText, sizeof ErrorText, "Could not open file '%s'", utf8Path);
        return false;
    }

    try {
        auto stream = std::make_unique<XMLFile>(this, std::move(file));
        EnterFileEntities(utf8Path);
        return ParseStream(std::move(stream));
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void XMLDocument::EnterFileEntities(std::string_view path)
{
    std::string name(path.substr(0, Limits::TextBuffer512));
    std::replace(name.begin(), name.end(), '\\', '/');
    Entities.insert_or_assign("filename", name);
    const std::size_t slash = name.rfind('/');
    if (slash != name.npos)
        Entities.insert_or_assign("filepath", name.substr(0, slash));
}

bool XMLDocument::ParseBuffer(const char* text, std::size_t length)
{
    if (Root)
        return false;

    const std::string_view bytes = text && length > 0 ? std::string_view(text, length) : TextOrEmpty(text);
    try {
        return ParseStream(std::make_unique<XMLBuffer>(this, bytes));
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool XMLDocument::ParseStream(std::unique_ptr<XMLStream> stream)
{
    Stream = std::move(stream);
    bool parsed = false;
    try {
        parsed = XMLParser(*this, *Stream).ParseDocument();
    } catch (const std::bad_alloc&) {
        parsed = false;
    }
    if (!parsed)
        FailedAt = Stream->Position();
    Stream.reset();
    return parsed;
}

void XMLDocument::AddEntity(const char* name, const char* value)
{
    Entities.insert_or_assign(TextOrEmpty(name), TextOrEmpty(value));
}

void XMLDocument::SetErrorText(std::string_view text)
{
    CopyBounded(ErrorText, sizeof ErrorText, text);
}
