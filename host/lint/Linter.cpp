#include "host/lint/Linter.h"

#include "host/files/SearchPaths.h"
#include "host/lint/LintContext.h"
#include "host/lint/LintModel.h"
#include "host/lint/LintRule.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace host {

namespace {

namespace fs = std::filesystem;

constexpr const char* DefaultSkin = "slate";
constexpr std::size_t MostNeighbours = 256;
constexpr std::uintmax_t MostNeighbourBytes = 1024 * 1024;

fs::path Canonical(const fs::path& path)
{
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(path, error);
    return error ? path : canonical;
}

bool IsNeighbour(const fs::directory_entry& entry)
{
    std::error_code error;
    return entry.path().extension() == ".xml" && entry.is_regular_file(error)
        && entry.file_size(error) <= MostNeighbourBytes && !error;
}

void CheckMarkup(LintContext& context, std::string_view rootTag)
{
    context.Begin(MarkupRule.Name);
    const LintFile& file = context.Source();
    if (file.Fault())
        context.Report(file.FaultPlace(), "this is no markup: " + *file.Fault());
    else if (!context.Markup())
        context.Report(SourcePlace{1, 1}, "the file has no element " + Quoted(rootTag) + " around everything",
            "<" + std::string(rootTag) + ">...</" + std::string(rootTag) + ">");
}

bool IsWanted(const LintRule& rule, const LintScope& scope)
{
    switch (rule.When) {
    case LintWhen::Always:
        break;
    case LintWhen::Strict:
        return scope.Strict;
    case LintWhen::Scripts:
        return scope.Scripts;
    }
    return true;
}

auto OrderOf(const Finding& finding)
{
    return std::tie(finding.Place.Line, finding.Place.Column, finding.Rule, finding.Message);
}

} // namespace

Linter::Linter(const std::string& skin)
{
    const fs::path skins = SearchPaths().InterfacesFolder() / "skins";
    m_Skin.Name = skin.empty() ? DefaultSkin : skin;
    m_Skin.Folder = m_Skin.Name.find('/') == std::string::npos ? skins / m_Skin.Name : fs::path(m_Skin.Name);
    AddUnasked(m_Skin.Folder / "skin.xml");
    AddUnasked(skins / "templates.xml");
    AddUnasked(m_Skin.Folder / "templates.xml");
    m_Skin.Files = m_Entries.size();
}

Linter::Entry* Linter::FindEntry(const fs::path& path)
{
    const auto found =
        std::find_if(m_Entries.begin(), m_Entries.end(), [&path](const Entry& entry) { return entry.Path == path; });
    return found == m_Entries.end() ? nullptr : &*found;
}

void Linter::AddUnasked(const fs::path& path)
{
    std::string why;
    if (auto file = LintFile::Open(path.string(), why))
        m_Entries.push_back({std::move(file), Canonical(path), false});
}

bool Linter::AddFile(const std::string& path, std::string& why)
{
    auto file = LintFile::Open(path, why);
    if (!file)
        return false;

    const fs::path canonical = Canonical(path);
    if (Entry* entry = FindEntry(canonical)) {
        entry->File = std::move(file);
        entry->IsAsked = true;
    } else {
        m_Entries.push_back({std::move(file), canonical, true});
    }
    return true;
}

void Linter::AddText(std::string name, std::string text)
{
    m_Entries.push_back({std::make_unique<LintFile>(std::move(name), std::move(text)), {}, true});
}

void Linter::AddNeighbours(const fs::path& folder)
{
    if (std::find(m_Folders.begin(), m_Folders.end(), folder) != m_Folders.end())
        return;

    m_Folders.push_back(folder);
    std::error_code error;
    std::vector<fs::path> paths;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (IsNeighbour(*entry))
            paths.push_back(entry->path());
    }
    std::sort(paths.begin(), paths.end());
    paths.resize(std::min(paths.size(), MostNeighbours));
    for (const fs::path& path : paths) {
        if (!FindEntry(path))
            AddUnasked(path);
    }
}

std::vector<Finding> Linter::Look(const LintScope& scope)
{
    for (std::size_t index = 0, count = m_Entries.size(); index < count; ++index) {
        if (m_Entries[index].IsAsked && !m_Entries[index].Path.empty())
            AddNeighbours(m_Entries[index].Path.parent_path());
    }

    std::vector<const LintFile*> files;
    for (const Entry& entry : m_Entries)
        files.push_back(entry.File.get());
    const LintModel model(m_Schema, files, m_Skin);
    std::vector<Finding> findings;
    for (std::size_t file = 0; file < files.size(); ++file) {
        if (m_Entries[file].IsAsked)
            LookAt(file, model, scope, findings);
    }
    return findings;
}

void Linter::LookAt(std::size_t file, const LintModel& model, const LintScope& scope, std::vector<Finding>& findings)
{
    SearchPaths paths;
    paths.AddInterfaceFile(model.Files()[file]->Path());
    paths.SetSkinFolder(m_Skin.Folder);
    const std::size_t before = findings.size();
    LintContext context(model, file, paths, m_Lua, findings);
    CheckMarkup(context, m_Schema.RootTag);
    for (const LintRule& rule : LintRules()) {
        if (!IsWanted(rule, scope))
            continue;
        context.Begin(rule.Name);
        rule.Check(context);
    }
    std::stable_sort(findings.begin() + static_cast<std::ptrdiff_t>(before), findings.end(),
        [](const Finding& left, const Finding& right) { return OrderOf(left) < OrderOf(right); });
}

} // namespace host
