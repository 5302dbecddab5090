#include "tests/fuzz/AnswerScripts.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeVar.h"
#include "tests/fuzz/HostileActs.h"

// A null object of a type of the toolkit's, some element, or a type alone.
bool AnswerScripts::ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag)
{
    const Answer answer = m_Told.Next(HostCall::ParseTypedValue);
    if (answer == Answer::True || answer == Answer::Failure)
        return m_Usual.ParseTypedValue(text, result, flag);

    TeskElement* element = FindByPlace(m_Told.Detail() % 16);
    if (answer != Answer::Empty && element)
        result.Type = element->GetMvType();
    if (answer == Answer::Huge)
        result.Value.Object = element;
    return m_Told.Of(answer, 1) != 0 || answer == Answer::Empty;
}

MvTypeDefinition* AnswerScripts::FindTypeByName(const char* name, u32 first, u32 second)
{
    return m_Usual.FindTypeByName(name, first, second);
}

char* AnswerScripts::MakeTempBuffer(std::size_t size, const char* text)
{
    const Answer answer = m_Told.Next(HostCall::MakeTempBuffer);
    if (answer == Answer::Failure)
        return nullptr;
    m_Told.Of(answer, 0);
    return m_Usual.MakeTempBuffer(size, text);
}

u32 AnswerScripts::RegisterTransientClass2(const char* name)
{
    return m_Told.Of(m_Told.Next(HostCall::RegisterTransientClass2), m_Usual.RegisterTransientClass2(name));
}

void AnswerScripts::InvalidateTransientObject2(u32 classID, void* object)
{
    m_Usual.InvalidateTransientObject2(classID, object);
    m_Told.Finish(HostCall::InvalidateTransientObject2);
}

u32 AnswerScripts::CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra)
{
    const u32 query = m_Usual.CreateQuery(owner, text, extra);
    return m_Told.Of(m_Told.Next(HostCall::CreateQuery), query);
}

bool AnswerScripts::EvaluateQuery(u32 query, _MvTypeVar& object, bool& result)
{
    const bool done = m_Usual.EvaluateQuery(query, object, result);
    return m_Told.Of(m_Told.Next(HostCall::EvaluateQuery), int{done}) != 0;
}

void AnswerScripts::FreeQuery(u32 query)
{
    m_Usual.FreeQuery(query);
    m_Told.Finish(HostCall::FreeQuery);
}
