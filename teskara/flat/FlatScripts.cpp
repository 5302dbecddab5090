#include "teskara/flat/FlatScripts.h"

#include "teskara/core/BoundedText.h"
#include "teskara/flat/FlatTable.h"
#include "teskara/flat/FlatValue.h"

#include <algorithm>

bool FlatScripts::ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag)
{
    return TakeFlat(
        result, [&](teskara_value* value) { return CallFlat(m_Table, m_Table.parse_value, false, text, value, flag); });
}

MvTypeDefinition* FlatScripts::FindTypeByName(const char*, u32, u32)
{
    return nullptr; // the toolkit finds its own, and asks FindType for the program's
}

char* FlatScripts::MakeTempBuffer(std::size_t size, const char* text)
{
    std::string& kept = m_Texts[m_NextText];
    m_NextText = (m_NextText + 1) % KeptTexts;
    kept = TextOrEmpty(text);
    kept.resize(std::max(size, kept.size() + 1));
    return kept.data();
}

u32 FlatScripts::RegisterTransientClass2(const char* name)
{
    return CallFlat(m_Table, m_Table.register_container_class, 0u, name);
}

void FlatScripts::InvalidateTransientObject2(u32 classID, void* object)
{
    CallFlat(m_Table, m_Table.invalidate_container, classID, object);
}

u32 FlatScripts::CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra)
{
    return CallFlat(m_Table, m_Table.create_query, 0u, ToFlat(owner), text, extra);
}

bool FlatScripts::EvaluateQuery(u32 query, _MvTypeVar& object, bool& result)
{
    const teskara_value value = ToFlat(object);
    return CallFlat(m_Table, m_Table.evaluate_query, false, query, &value, &result);
}

void FlatScripts::FreeQuery(u32 query)
{
    CallFlat(m_Table, m_Table.free_query, query);
}
