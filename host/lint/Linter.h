#pragma once

#include "host/lint/Finding.h"
#include "host/lint/LintFile.h"
#include "host/lint/LintTemplates.h"
#include "host/script/LuaState.h"
#include "teskara/script/Schema.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace host {

class LintModel;

// What is looked for besides what always is.
struct LintScope {
    bool Strict = false; // what may well be meant
    bool Scripts = true; // what scripts and data sequences say
};

// Looks for what the toolkit is silent about, in interface files as they would be shown in a skin. Nothing is loaded, no
// script is run. What lies in the folders of the files is read as well: they may use each other's templates.
class Linter
{
public:
    // skin: its name in the skins that come with the program, or its folder; empty for the first one.
    explicit Linter(const std::string& skin = {});

    // False, and what is wrong with it in why: the file cannot be read.
    bool AddFile(const std::string& path, std::string& why);

    // The same for a text. name: where the folder would be.
    void AddText(std::string name, std::string text);

    // In the order of the files, and of their lines.
    std::vector<Finding> Look(const LintScope& scope);

private:
    struct Entry {
        std::unique_ptr<LintFile> File;
        std::filesystem::path Path; // the same for the same file; empty for a text
        bool IsAsked;
    };

    Entry* FindEntry(const std::filesystem::path& path);
    void AddUnasked(const std::filesystem::path& path);
    void AddNeighbours(const std::filesystem::path& folder);
    void LookAt(std::size_t file, const LintModel& model, const LintScope& scope, std::vector<Finding>& findings);

    Schema m_Schema;
    LuaState m_Lua;
    LintSkin m_Skin;
    std::vector<Entry> m_Entries; // those of the skin first
    std::vector<std::filesystem::path> m_Folders; // whose files have been read
};

} // namespace host
