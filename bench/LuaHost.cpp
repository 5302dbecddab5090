#include "bench/LuaHost.h"

#include "teskara/element/TeskElement.h"

int LuaHost::DataParse(const char* text, char* output, u32 size)
{
    Scripts.Sequences.Expand(text, output, size);
    return 0;
}

void LuaHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    Scripts.AddTopLevelObject(name, handler);
}

int LuaHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    const auto* element = self ? static_cast<const TeskElement*>(self->Value.Object) : nullptr;
    return Scripts.Scripts.Run(atom, argc, argv, self, element, nullptr) ? 0 : -1;
}

bool LuaHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    return Scripts.Sequences.WriteProcessed(sequence, buffer, size);
}
