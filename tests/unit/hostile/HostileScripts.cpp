#include "tests/unit/hostile/HostileScripts.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/hostile/Answering.h"
#include "tests/unit/hostile/HostileHost.h"

const char* HostileScript::GetName() const
{
    return Answering::TextPointer(Operation::GetScriptName, [&] { return TestScript::GetName(); });
}

bool HostileScript::IsInsideAtom() const
{
    return Answering::Decision(Operation::IsInsideAtom, [&] { return TestScript::IsInsideAtom(); });
}

const char* HostileScript::GetUserInput() const
{
    return Answering::TextPointer(Operation::GetUserInput, [&] { return TestScript::GetUserInput(); });
}

void HostileScript::SetUserInput(const char* text)
{
    Answering::Nothing(Operation::SetUserInput, [&] { TestScript::SetUserInput(text); });
}

// --- The table

// A reference leads to the texture of the frame.
bool HostileScripts::ParseTypedValue(const char*, _MvTypeVar& result, u32)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(Operation::ParseTypedValue);
    if (answer != Answer::Good)
        return m_Host.SpoilValue(answer, result);

    TeskElement* frame = g_UIManager.FindElement("frame");
    MvTypeDefinition* type = frame ? frame->GetMvType() : nullptr;
    MvValue object;
    object.Object = frame;
    return type && type->DispatchMember(object, "Texture", 0, nullptr, result) == DispatchDone;
}

MvTypeDefinition* HostileScripts::FindTypeByName(const char* name, u32, u32)
{
    return Answering::Pointer<MvTypeDefinition>(Operation::FindTypeByName, [&] { return m_Host.FindType(name); });
}

char* HostileScripts::MakeTempBuffer(std::size_t size, const char*)
{
    return Answering::Pointer<char>(Operation::MakeTempBuffer, [&] {
        m_Buffer.assign(size, 0);
        return m_Buffer.data();
    });
}

u32 HostileScripts::RegisterTransientClass2(const char*)
{
    return Answering::Number(Operation::RegisterTransientClass2, [] { return 2u; });
}

void HostileScripts::InvalidateTransientObject2(u32, void*)
{
    Answering::Nothing(Operation::InvalidateTransientObject2, [] {});
}

u32 HostileScripts::CreateQuery(MvTypeDefinition*, const char*, u32)
{
    return m_Host.Books.Lend(Loan::Query, Answering::Number(Operation::CreateQuery, [&] { return ++m_LastQuery; }));
}

bool HostileScripts::EvaluateQuery(u32, _MvTypeVar&, bool& result)
{
    const Allocations::Spared spared;
    const Answer answer = g_Hostility.Take(Operation::EvaluateQuery);
    result = answer != Answer::Null && answer != Answer::Fails;
    return answer != Answer::Fails;
}

void HostileScripts::FreeQuery(u32 query)
{
    m_Host.Books.TakeBack(Loan::Query, query);
    Answering::Nothing(Operation::FreeQuery, [] {});
}
