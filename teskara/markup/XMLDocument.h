#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Types.h"
#include "teskara/markup/XMLNode.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

class XMLStream;

// Turns a markup file or text into a tree of nodes. It is forgiving in some places and strict in others, and knows no
// namespaces and no DTD. A document parses once. Nothing is thrown: a parse answers false, and ErrorText holds the
// last message, or "Unknown Error" where the failure had none; the part of the tree that was built stays.
class TESKARA_EXPORT XMLDocument
{
public:
    // keepTree: the tree is left to whoever took Root, and must be deleted there.
    explicit XMLDocument(bool keepTree = false);
    XMLDocument(const XMLDocument&) = delete;
    XMLDocument& operator=(const XMLDocument&) = delete;
    ~XMLDocument();

    // Back to an empty document with the five predefined entities; deletes the tree unless it is to be kept.
    void Reset();

    // Parses a file. Its path, with forward slashes, becomes the entity "filename", and its folder, if the path names
    // one, "filepath". path: UTF-8 of at most 512 UTF-16 units, or UTF-16. False at once if there is a tree already.
    bool ParseFile(const char* path);
    bool ParseFile(const char16_t* path);

    // Parses UTF-8 text of length bytes; a length of 0 means up to the terminating zero, which must then be there.
    // A null text is empty. False at once if there is a tree already.
    bool ParseBuffer(const char* text, std::size_t length = 0);

    // Enters an entity or replaces its value. Names differ by case.
    void AddEntity(const char* name, const char* value);

    void SetErrorText(std::string_view text);

    XMLNode* Root = nullptr; // null before a parse
    XMLNode* Current = nullptr; // receives new children during a parse
    bool KeepTree;
    std::map<std::string, std::string, std::less<>> Entities;
    char ErrorText[Limits::MarkupErrorBytes];
    u64 FailedAt = 0; // so many UTF-16 units of the input were taken when the parse failed; a byte-order mark is none
    std::unique_ptr<XMLStream> Stream; // during a parse only

private:
    void EnterPredefinedEntities();
    void EnterFileEntities(std::string_view path);
    bool ParseOpened(const char16_t* path, const char* utf8Path);
    bool ParseStream(std::unique_ptr<XMLStream> stream);
};
