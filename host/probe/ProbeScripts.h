#pragma once

#include "teskara/core/HostInterface.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

// A script that a transcript says is running.
class ProbeScript : public HostScript
{
public:
    explicit ProbeScript(std::string name) : m_Name(std::move(name)) { }

    const char* GetName() const override { return m_Name.c_str(); }
    bool IsInsideAtom() const override { return InsideAtom; }
    const char* GetUserInput() const override { return m_UserInput ? m_UserInput->c_str() : nullptr; }

    void SetUserInput(const char* text) override
    {
        if (text)
            m_UserInput = std::string(text);
        else
            m_UserInput.reset();
    }

    bool InsideAtom = false;

private:
    std::string m_Name;
    std::optional<std::string> m_UserInput;
};

// The scripts by name. A script lives as long as the run.
class ProbeScripts
{
public:
    ProbeScript* Current() const { return m_Current; }
    void SelectNone() { m_Current = nullptr; }

    void Select(const std::string& name, bool insideAtom)
    {
        auto& script = m_Scripts[name];
        if (!script)
            script = std::make_unique<ProbeScript>(name);
        script->InsideAtom = insideAtom;
        m_Current = script.get();
    }

private:
    std::map<std::string, std::unique_ptr<ProbeScript>> m_Scripts;
    ProbeScript* m_Current = nullptr;
};
