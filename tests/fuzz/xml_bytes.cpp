// Any bytes through both sources of the parser, and through the plain one: all three must tell the same.

#include "tests/unit/XMLPlainParser.h"

#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include <unistd.h>

namespace {

// A name for this process alone, so that several can search at a time.
const std::string& TemporaryPath()
{
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("xml_bytes." + std::to_string(getpid()))).string();
    return path;
}

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void WriteFile(std::string_view bytes)
{
    std::FILE* const file = std::fopen(TemporaryPath().c_str(), "wb");
    Require(file != nullptr, "the temporary file cannot be written");
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
}

std::string Result(bool parsed, std::string_view error, const std::string& tree)
{
    return (parsed ? "true " : "false ") + std::string(error) + "\n" + tree;
}

std::string ParseFile()
{
    XMLDocument document;
    const bool parsed = document.ParseFile(TemporaryPath().c_str());
    return Result(parsed, document.ErrorText, DumpTree(document.Root));
}

// Reads every node by its own name in every form; what comes out is of no interest.
void ReadValues(XMLNode* root)
{
    ElementPosition position;
    float factor = 0;
    unsigned int value = 0;
    for (XMLNode* node = root; node; node = node->FirstChild) {
        const char* const name = node->Name;
        XMLHelper::GetElementPositionValueEx(node->Parent, name, position, value);
        XMLHelper::GetElementPositionAttribute(node, "a", position, XMLHelper::GetIntValue(node->Parent, name, value));
        XMLHelper::GetFactorValue(node->Parent, name, factor, XMLHelper::GetHexValue(node->Parent, name, 0));
        XMLHelper::GetFactorAttribute(node, "a", factor, XMLHelper::GetToggle(node->Parent, name, true));
        XMLHelper::GetHexAttribute(node, "a", XMLHelper::GetIntAttribute(node, "a", 0));
        XMLHelper::GetFloatAttribute(node, "a", XMLHelper::GetFloatValue(node->Parent, name, 0));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    WriteFile(bytes);
    const std::string fromFile = ParseFile();
    std::remove(TemporaryPath().c_str());

    // A file loses a byte-order mark; a buffer does not.
    if (size >= 3 && data[0] == 0xEF)
        bytes.remove_prefix(3);
    const std::string folder = TemporaryPath().substr(0, TemporaryPath().rfind('/'));

    XMLDocument document;
    document.AddEntity("filename", TemporaryPath().c_str());
    document.AddEntity("filepath", folder.c_str());
    const std::string text(bytes);
    const bool parsed = document.ParseBuffer(text.c_str(), text.size());
    const std::string tree = DumpTree(document.Root);
    Require(fromFile == Result(parsed, document.ErrorText, tree), "file and buffer differ");

    XMLPlainParser plain(bytes);
    plain.Entities["filename"] = TemporaryPath();
    plain.Entities["filepath"] = folder;
    const bool plainParsed = plain.Parse();
    Require(fromFile == Result(plainParsed, plain.ErrorText, plain.Dump()), "the plain parser differs");

    ReadValues(document.Root);
    const XMLTree copy(document.Root ? document.Root->Clone(nullptr) : nullptr);
    document.Reset();
    Require(tree == DumpTree(copy.get()), "the copy differs");
    return 0;
}
