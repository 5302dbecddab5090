#pragma once

#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/TestHost.h"

#include <cstdarg>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

class TestScript : public HostScript
{
public:
    const char* GetName() const override { return Name; }
    bool IsInsideAtom() const override { return InsideAtom; }
    const char* GetUserInput() const override
    {
        if (Throws)
            throw std::runtime_error("no answer");
        return UserInput;
    }
    void SetUserInput(const char* text) override
    {
        m_Answer = text ? text : "";
        UserInput = text ? m_Answer.c_str() : nullptr;
    }

    const char* Name = "Worker";
    bool InsideAtom = false;
    bool Throws = false;
    const char* UserInput = nullptr;

private:
    std::string m_Answer;
};

// Keeps what the toolkit offers to scripts, and lets a test act in the middle of it.
class ScriptHost : public TestHost
{
public:
    HostScript* GetCurrentScript() override { return Script; }
    HostScriptInterface* GetScriptInterface() override { return Interface; }
    void AddCommand(const char* name, CommandHandler handler, int, int) override { Commands[name] = handler; }
    void RemoveCommand(const char* name) override { Commands.erase(name); }
    void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) override { Objects[name] = handler; }
    void RemoveTopLevelObject(const char* name) override { Objects.erase(name); }
    MvTypeDefinition* FindType(const char* name) override
    {
        if (OtherTypes.count(name) != 0)
            return OtherTypes[name];
        return HasTypes ? (HostTypes[name] = std::make_unique<MvTypeDefinition>(name)).get() : nullptr;
    }
    void AddType(MvTypeDefinition* type) override
    {
        Types[type->GetName()] = type;
        if (OnAddType)
            OnAddType(type);
    }
    void RemoveType(MvTypeDefinition* type) override
    {
        Types.erase(type->GetName());
        if (OnRemoveType)
            OnRemoveType(type);
    }
    void InvalidateObject(u32, void*) override
    {
        if (OnInvalidateObject)
            OnInvalidateObject();
    }
    void SetTypeObjectClass(MvTypeDefinition* type, u32) override { Classed.push_back(type->GetName()); }
    bool Calculate(const char* text, double& result) override { return OnCalculate && OnCalculate(text, result); }
    void PrintLine(const char* format, ...) override
    {
        char line[4096];
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(line, sizeof(line), format, arguments);
        va_end(arguments);
        Lines.push_back(line);
        if (OnPrintLine)
            OnPrintLine();
    }

    MvTypeDefinition& Type(const char* name) { return *Types.at(name); }

    bool Ask(const char* object, std::vector<const char*> index, _MvTypeVar& result)
    {
        return Objects.at(object)(static_cast<int>(index.size()), const_cast<char**>(index.data()), result);
    }

    int Run(const char* name, std::vector<const char*> arguments)
    {
        arguments.insert(arguments.begin(), name);
        return Commands.at(name)(static_cast<int>(arguments.size()), const_cast<char**>(arguments.data()));
    }

    bool HasTypes = true;
    HostScript* Script = nullptr;
    HostScriptInterface* Interface = nullptr;
    std::map<std::string, std::unique_ptr<MvTypeDefinition>> HostTypes;
    std::map<std::string, MvTypeDefinition*> OtherTypes; // found in place of those
    std::map<std::string, MvTypeDefinition*> Types;
    std::map<std::string, CommandHandler> Commands;
    std::map<std::string, TopLevelObjectHandler> Objects;
    std::vector<std::string> Classed;
    std::vector<std::string> Lines;
    std::function<void(MvTypeDefinition*)> OnAddType;
    std::function<void(MvTypeDefinition*)> OnRemoveType;
    std::function<void()> OnPrintLine;
    std::function<void()> OnInvalidateObject;
    std::function<bool(const std::string& expression, double& result)> OnCalculate;
};

// Runs a body, in a process of its own, with a host that is not started yet.
void WithHost(const std::function<void(ScriptHost&)>& body);

// The same with a toolkit that is.
void WithToolkit(const std::function<void(ScriptHost&)>& body);
