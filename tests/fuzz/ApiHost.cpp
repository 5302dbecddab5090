#include "tests/fuzz/ApiHost.h"

#include <algorithm>
#include <cstring>

void ApiHost::Keep(const _MvTypeVar& value)
{
    if (!IsToolkitType(value.Type))
        return;
    if (Values.size() < MostValues)
        Values.push_back(value);
    else
        Values[m_NextKept++ % MostValues] = value;
}

bool ApiHost::IsToolkitType(const MvTypeDefinition* type) const
{
    return std::find(Types.begin(), Types.end(), type) != Types.end();
}

bool ApiHost::IsElementType(const MvTypeDefinition* type)
{
    constexpr const char* Others[] = {
        "teskara", "tesklistboxitem", "teskfont", "tesktab", "tesktexture", "tesktreenode"};
    return std::none_of(std::begin(Others), std::end(Others),
        [type](const char* other) { return std::strcmp(type->GetName(), other) == 0; });
}

MvTypeDefinition* ApiHost::FindType(const char* name)
{
    auto& type = m_OwnTypes[name];
    if (!type)
        type = std::make_unique<MvTypeDefinition>(name);
    return type.get();
}

void ApiHost::LetGo(const void* object)
{
    for (_MvTypeVar& value : Values) {
        if (IsElementType(value.Type) && value.Value.Object == object)
            value.Value = {};
    }
}
