#pragma once

#include "host/script/CompletionNames.h"
#include "teskara/script/ToolkitType.h"

namespace host {

class ScriptEngine;

// The names that a script engine knows.
class ScriptNames : public CompletionNames
{
public:
    // The engine is borrowed.
    explicit ScriptNames(ScriptEngine& engine) : m_Engine(engine) { }

    std::vector<std::string> Commands() const override;
    std::vector<std::string> Variables() const override;
    std::vector<std::string> MembersOf(const std::string& path) override;
    std::vector<std::string> MethodsOf(const std::string& path) override;

private:
    using Rows = void (ToolkitType::*)(const ToolkitType::RowVisitor& visit) const;

    std::vector<std::string> NamesOf(const std::string& path, Rows rows);

    ScriptEngine& m_Engine;
};

} // namespace host
