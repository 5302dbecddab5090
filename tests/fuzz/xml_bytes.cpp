// Any bytes through both sources of the parser, and through the plain one: all three must tell the same.

#include "tests/unit/XMLPlainParser.h"

#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"
#include "tests/fuzz/ChaosHost.h"
#include "tests/fuzz/ModelCheck.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr char Folder[] = "folder";
constexpr char Path[] = "folder/file";

// The only file there is holds the input.
class OneFile final : public QuietPlatform
{
public:
    std::string_view Bytes;

    // A stream over no bytes at all cannot be had.
    std::FILE* OpenFile(const char16_t*) override
    {
        return Bytes.empty() ? std::fopen("/dev/null", "rb")
                             : fmemopen(const_cast<char*>(Bytes.data()), Bytes.size(), "rb");
    }
};

std::string Result(bool parsed, std::string_view error, const std::string& tree)
{
    return (parsed ? "true " : "false ") + std::string(error) + "\n" + tree;
}

std::string ParseFile()
{
    XMLDocument document;
    const bool parsed = document.ParseFile(Path);
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
    static OneFile& file = *new OneFile; // outlives the library's end
    SetPlatform(&file);
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    file.Bytes = bytes;
    const std::string fromFile = ParseFile();

    // A file loses a byte-order mark; a buffer does not.
    if (size >= 3 && data[0] == 0xEF)
        bytes.remove_prefix(3);

    XMLDocument document;
    document.AddEntity("filename", Path);
    document.AddEntity("filepath", Folder);
    const std::string text(bytes);
    const bool parsed = document.ParseBuffer(text.c_str(), text.size());
    const std::string tree = DumpTree(document.Root);
    Require(fromFile == Result(parsed, document.ErrorText, tree), "file and buffer differ");

    XMLPlainParser plain(bytes);
    plain.Entities["filename"] = Path;
    plain.Entities["filepath"] = Folder;
    const bool plainParsed = plain.Parse();
    Require(fromFile == Result(plainParsed, plain.ErrorText, plain.Dump()), "the plain parser differs");

    ReadValues(document.Root);
    const XMLTree copy(document.Root ? document.Root->Clone(nullptr) : nullptr);
    document.Reset();
    Require(tree == DumpTree(copy.get()), "the copy differs");
    return 0;
}
