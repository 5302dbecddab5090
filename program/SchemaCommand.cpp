#include "host/schema/SchemaJson.h"
#include "host/schema/SchemaPages.h"
#include "host/schema/SchemaXsd.h"
#include "program/Commands.h"
#include "teskara/script/Schema.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

namespace {

struct SchemaOptions {
    bool Json = false;
    bool Xsd = false;
    bool Markdown = false;
    std::string Output; // a file, of pages their folder; empty for standard output
};

bool WriteFile(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
        std::cerr << "teskara: cannot write " << path.string() << "\n";
    return static_cast<bool>(file);
}

bool WriteText(const SchemaOptions& options, const std::string& text)
{
    if (!options.Output.empty())
        return WriteFile(options.Output, text);
    std::cout << text << std::flush;
    return static_cast<bool>(std::cout);
}

bool WritePages(const std::filesystem::path& folder, const Schema& schema)
{
    for (const host::SchemaPage& page : host::WriteSchemaPages(schema)) {
        const std::filesystem::path path = folder / page.Path;
        std::error_code failed;
        std::filesystem::create_directories(path.parent_path(), failed);
        if (!WriteFile(path, page.Text))
            return false;
    }
    return true;
}

int RunSchema(const SchemaOptions& options)
{
    if (options.Markdown && options.Output.empty()) {
        std::cerr << "teskara: --markdown makes many pages; name their folder with -o\n";
        return ExitUsage;
    }
    const Schema schema;
    bool isDone = false;
    if (options.Markdown)
        isDone = WritePages(options.Output, schema);
    else
        isDone = WriteText(options, options.Xsd ? host::WriteSchemaXsd(schema) : host::WriteSchemaJson(schema));
    return isDone ? ExitDone : ExitFailed;
}

} // namespace

void AddSchemaCommand(CLI::App& app, int& exitCode)
{
    const auto options = std::make_shared<SchemaOptions>();
    CLI::App* command = app.add_subcommand("schema", "Tell all that markup and scripts may say");
    CLI::Option_group* form = command->add_option_group("form");
    form->add_flag("--json", options->Json, "As one JSON object");
    form->add_flag("--xsd", options->Xsd, "As an XML schema of interface files, for editors");
    form->add_flag("--markdown", options->Markdown, "As pages to read, in a folder");
    form->require_option(1);
    command->add_option("-o,--output", options->Output, "The file, of --markdown the folder; else standard output");
    command->callback([options, &exitCode] { exitCode = RunSchema(*options); });
}
