#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/host.h"

#include <array>
#include <string>

// The second table of a host that is a flat table of functions.
class FlatScripts : public HostScriptInterface
{
public:
    explicit FlatScripts(const teskara_host& table) : m_Table(table) { }

    bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) override;
    MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) override;
    char* MakeTempBuffer(std::size_t size, const char* text) override;
    u32 RegisterTransientClass2(const char* name) override;
    void InvalidateTransientObject2(u32 classID, void* object) override;
    u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) override;
    bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) override;
    void FreeQuery(u32 query) override;

private:
    // So many values of texts can be in use at once.
    static constexpr std::size_t KeptTexts = 256;

    const teskara_host& m_Table; // borrowed
    std::array<std::string, KeptTexts> m_Texts;
    std::size_t m_NextText = 0;
};

// A script of a program that is no C++.
struct teskara_script : HostScript {
    teskara_script(const char* name, bool (*isInsideAtom)(void* user), void* user)
        : m_Name(name), m_IsInsideAtom(isInsideAtom), m_User(user)
    {
    }

    const char* GetName() const override { return m_Name.c_str(); }
    bool IsInsideAtom() const override { return m_IsInsideAtom && m_IsInsideAtom(m_User); }
    const char* GetUserInput() const override { return m_HasInput ? m_Input.c_str() : nullptr; }
    void SetUserInput(const char* text) override
    {
        m_HasInput = text;
        m_Input = text ? text : "";
    }

private:
    std::string m_Name;
    bool (*m_IsInsideAtom)(void* user);
    void* m_User;
    std::string m_Input;
    bool m_HasInput = false;
};
