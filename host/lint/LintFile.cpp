#include "host/lint/LintFile.h"

#include "host/files/WholeFile.h"
#include "host/lint/LintName.h"

#include <filesystem>
#include <utility>

namespace host {

namespace {

namespace fs = std::filesystem;

// Far beyond any interface that a person writes.
constexpr std::uintmax_t MostBytes = 64 * 1024 * 1024;

// Many faults have no message of their own.
std::string WhyRefused(const XMLDocument& document)
{
    const std::string_view message = document.ErrorText;
    return std::string(message == "Unknown Error" ? "reading ends here" : message);
}

} // namespace

LintFile::LintFile(std::string path, std::string text) : m_Path(std::move(path)), m_Source(std::move(text))
{
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
    std::string_view markup = m_Source.Text();
    if (markup.starts_with(byteOrderMark))
        markup.remove_prefix(byteOrderMark.size());
    const fs::path folder = fs::path(m_Path).parent_path();
    m_Document.AddEntity("filename", m_Path.c_str());
    m_Document.AddEntity("filepath", folder.c_str());
    if (!m_Document.ParseBuffer(markup.data(), markup.size()))
        m_Fault = markup.empty() ? "The file is empty" : WhyRefused(m_Document);
    m_Places.emplace(m_Source.Text(), m_Document.Root);
}

std::unique_ptr<LintFile> LintFile::Open(const std::string& path, std::string& why)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        why = "there is no such file";
    else if (fs::is_directory(status))
        why = "this is a folder";
    else if (!fs::is_regular_file(status))
        why = "this is no file to be read";
    else if (fs::file_size(path, error) > MostBytes || error)
        why = "the file is larger than 64 MB, which no interface is";
    if (!why.empty())
        return nullptr;

    std::optional<std::string> text = ReadWholeFile(path);
    if (!text) {
        why = "the file cannot be read";
        return nullptr;
    }
    return std::make_unique<LintFile>(path, std::move(*text));
}

SourcePlace LintFile::FaultPlace() const
{
    return m_Source.PlaceOf(m_Source.OffsetOfUnits(m_Document.FailedAt));
}

XMLNode* LintFile::RootElement(std::string_view tag) const
{
    XMLNode* node = m_Fault || !m_Document.Root ? nullptr : m_Document.Root->FirstChild;
    while (node && (node->Type != XMLElementNode || !IsSameName(node->Name, tag)))
        node = node->Next;
    return node;
}

SourcePlace LintFile::PlaceOf(const XMLNode* node) const
{
    while (node) {
        if (const auto offset = m_Places->Find(node))
            return m_Source.PlaceOf(*offset);
        node = node->Parent;
    }
    return {};
}

SourcePlace LintFile::PlaceOf(const XMLAttribute* attribute, const XMLNode* node) const
{
    const auto offset = attribute ? m_Places->Find(attribute) : std::nullopt;
    return offset ? m_Source.PlaceOf(*offset) : PlaceOf(node);
}

} // namespace host
