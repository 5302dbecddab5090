#include "host/script/ScriptEngine.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace host {

namespace {

// Temporary texts live at least until so many others were made.
constexpr std::size_t TempTextsKept = 256;

} // namespace

u32 ScriptEngine::Compile(const char*, u32)
{
    return 0;
}

int ScriptEngine::Execute(u32, int, char**, _MvTypeVar*)
{
    return 0;
}

bool ScriptEngine::Calculate(const char* text, double& result)
{
    const char* end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, result);
    return error == std::errc() && stop == end;
}

bool ScriptEngine::ParseTypedValue(const char*, _MvTypeVar&, u32)
{
    return false;
}

MvTypeDefinition* ScriptEngine::FindTypeByName(const char*, u32, u32)
{
    return nullptr;
}

char* ScriptEngine::MakeTempBuffer(std::size_t size, const char* text)
{
    std::string& kept = m_TempTexts.emplace_back(text ? text : "");
    kept.resize(std::max(size, kept.size() + 1));
    if (m_TempTexts.size() > TempTextsKept)
        m_TempTexts.pop_front();
    return kept.data();
}

u32 ScriptEngine::RegisterTransientClass2(const char*)
{
    return ++m_LastClass;
}

void ScriptEngine::InvalidateTransientObject2(u32, void*) { }

u32 ScriptEngine::CreateQuery(MvTypeDefinition*, const char*, u32)
{
    return 0;
}

bool ScriptEngine::EvaluateQuery(u32, _MvTypeVar&, bool&)
{
    return false;
}

void ScriptEngine::FreeQuery(u32) { }

} // namespace host
