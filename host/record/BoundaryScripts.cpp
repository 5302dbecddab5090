#include "host/record/BoundaryScripts.h"

#include "host/record/Boundary.h"

namespace host {

const char* BoundaryScript::GetName() const
{
    const char* name = nullptr;
    m_Boundary.Cross(Operation::GetScriptName, {In(m_Number), Out(name)}, [&] { name = m_Inner->GetName(); });
    m_Name = name ? name : "";
    return name ? m_Name.c_str() : nullptr;
}

bool BoundaryScript::IsInsideAtom() const
{
    bool isInside = false;
    m_Boundary.Cross(
        Operation::IsInsideAtom, {In(m_Number), Out(isInside)}, [&] { isInside = m_Inner->IsInsideAtom(); });
    return isInside;
}

const char* BoundaryScript::GetUserInput() const
{
    const char* text = nullptr;
    m_Boundary.Cross(Operation::GetUserInput, {In(m_Number), Out(text)}, [&] { text = m_Inner->GetUserInput(); });
    return text;
}

void BoundaryScript::SetUserInput(const char* text)
{
    m_Boundary.Cross(Operation::SetUserInput, {In(m_Number), In(text)}, [&] { m_Inner->SetUserInput(text); });
}

u32 BoundaryScripts::NumberOf(HostScript* inner)
{
    if (!inner)
        return 0;
    if (const u32 number = Find(*inner))
        return number;

    const auto number = static_cast<u32>(m_Scripts.size() + 1);
    m_Scripts.push_back(std::make_unique<BoundaryScript>(m_Boundary, number, inner));
    return number;
}

BoundaryScript* BoundaryScripts::At(u32 number)
{
    if (number != 0 && number == m_Scripts.size() + 1)
        m_Scripts.push_back(std::make_unique<BoundaryScript>(m_Boundary, number, nullptr));
    return number == 0 || number > m_Scripts.size() ? nullptr : m_Scripts[number - 1].get();
}

u32 BoundaryScripts::Find(const HostScript& inner) const
{
    for (std::size_t index = 0; index < m_Scripts.size(); ++index)
        if (m_Scripts[index] && m_Scripts[index]->Inner() == &inner)
            return static_cast<u32>(index + 1);
    return 0;
}

void BoundaryScripts::End(u32 number)
{
    if (number != 0 && number <= m_Scripts.size())
        m_Scripts[number - 1].reset();
}

void BoundaryScripts::ShareDialogs() const
{
    for (const auto& script : m_Scripts) {
        if (!script || !script->Inner())
            continue;
        script->Inner()->MessageBoxID = script->MessageBoxID;
        script->Inner()->InputBoxID = script->InputBoxID;
    }
}

} // namespace host
