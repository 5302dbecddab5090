#pragma once

#include "tests/unit/XMLPlainParser.h"

#include "teskara/markup/XMLDocument.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

// The tree below the document's root, as DumpTree writes it but for the level of the root; for a failed parse "failed: "
// with the message and then the tree.
inline std::string Parsed(std::string_view text)
{
    XMLDocument document;
    const std::string bytes(text);
    const bool parsed = document.ParseBuffer(bytes.c_str(), bytes.size());
    std::string tree = DumpTree(document.Root);
    const std::size_t rootEnd = tree.find('\n');
    tree.erase(0, rootEnd == tree.npos ? 0 : rootEnd + 1);
    return parsed ? tree : "failed: " + std::string(document.ErrorText) + "\n" + tree;
}

// Only the message; "parsed" if there was no failure.
inline std::string ParseError(std::string_view text)
{
    XMLDocument document;
    const std::string bytes(text);
    return document.ParseBuffer(bytes.c_str(), bytes.size()) ? "parsed" : document.ErrorText;
}
