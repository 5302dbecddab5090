#include "tests/unit/hostile/ScriptActs.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeDefinition.h"

#include <algorithm>
#include <cstdio>

namespace Script {

namespace {

// Arguments as a script hands them over.
class ArgumentVector
{
public:
    ArgumentVector(Arguments arguments) : m_Count(static_cast<int>(arguments.size()))
    {
        std::transform(
            arguments.begin(), arguments.end(), m_Texts, [](const char* text) { return const_cast<char*>(text); });
    }
    int Count() const { return m_Count; }
    char** Texts() { return m_Texts; }

private:
    char* m_Texts[10] = {};
    int m_Count;
};

} // namespace

TeskElement* FindMade(const char* kind)
{
    char name[64];
    std::snprintf(name, sizeof(name), "made %s@%s", kind, MadeHolder);
    return g_UIManager.FindElement(name);
}

void Tell(TeskElement* element, const char* method, Arguments arguments)
{
    MvTypeDefinition* type = element ? element->GetMvType() : nullptr;
    if (!type)
        return;

    ArgumentVector argv(arguments);
    MvValue object;
    object.Object = element;
    type->DispatchMethod(object, method, argv.Count(), argv.Texts());
}

_MvTypeVar Ask(TeskElement* element, const char* member, Arguments arguments)
{
    _MvTypeVar result;
    MvTypeDefinition* type = element ? element->GetMvType() : nullptr;
    if (!type)
        return result;

    ArgumentVector argv(arguments);
    MvValue object;
    object.Object = element;
    if (type->DispatchMember(object, member, argv.Count(), argv.Texts(), result) != DispatchDone)
        result.Type = nullptr;
    return result;
}

void TellPart(const _MvTypeVar& part, const char* method, const char* argument)
{
    ArgumentVector argv({argument});
    if (part.Type && part.Value.Object)
        part.Type->DispatchMethod(part.Value, method, argv.Count(), argv.Texts());
}

void TellBoth(const char* kind, const char* method, Arguments arguments)
{
    Tell(g_UIManager.FindElement(kind), method, arguments);
    Tell(FindMade(kind), method, arguments);
}

} // namespace Script
