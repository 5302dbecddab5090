#include "tests/unit/reentrancy/MatrixHost.h"

#include "teskara/element/TeskElement.h"
#include "teskara/script/MvTypeVar.h"
#include "tests/unit/reentrancy/Bomb.h"
#include "tests/unit/reentrancy/Scene.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <unistd.h>

Bomb& g_Bomb = *new Bomb;

namespace {

// Of "atom auto(ARGUMENTS)\n{\nBODY\n}\n".
std::string_view BodyOf(std::string_view source)
{
    constexpr std::string_view before = "\n{\n";
    constexpr std::string_view after = "\n}\n";
    source.remove_prefix(source.find(before) + before.size());
    return source.substr(0, source.size() - after.size());
}

} // namespace

bool MatrixScripts::ParseTypedValue(const char*, _MvTypeVar& result, u32)
{
    g_Bomb.Reach("ParseTypedValue");
    return AskSelf("Texture", result);
}

u32 MatrixScripts::CreateQuery(MvTypeDefinition*, const char*, u32)
{
    g_Bomb.Reach("CreateQuery");
    return 1;
}

bool MatrixScripts::EvaluateQuery(u32, _MvTypeVar&, bool&)
{
    g_Bomb.Reach("EvaluateQuery");
    return true;
}

MatrixHost::MatrixHost()
{
    Recorded = 0;
    NamesKeys = true;
    NamedScripts["Compare"] = [](const std::vector<std::string>&) {
        g_Bomb.Reach("ExecuteAtomForText");
        return "1";
    };
}

MatrixHost::~MatrixHost()
{
    for (const auto& [name, path] : Located)
        std::remove(path.c_str());
}

void MatrixHost::WriteFile(const char* name, const std::string& markup)
{
    std::string& path = Located[name];
    if (path.empty()) {
        path = "/tmp/teskara-unit-XXXXXX";
        close(mkstemp(path.data()));
    }
    std::ofstream(path) << "<Tesk>" << markup << "</Tesk>";
}

int MatrixHost::ExecuteCommand(const char*)
{
    g_Bomb.Reach("ExecuteCommand");
    return 0;
}

const char* MatrixHost::CompleteCommandLine(const char*, bool)
{
    g_Bomb.Reach("CompleteCommandLine");
    return "completed";
}

int MatrixHost::DataParse(const char*, char* output, u32 size)
{
    g_Bomb.Reach("DataParse");
    std::snprintf(output, size, "words of several lines");
    return 1;
}

bool MatrixHost::Calculate(const char*, double& result)
{
    g_Bomb.Reach("Calculate");
    result = 1;
    return true;
}

// Keeps no lines: what they say is the affair of other tests.
void MatrixHost::PrintLine(const char* format, ...)
{
    char line[512];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    const bool isOfScript = std::string_view(line).find("embedded script") != std::string_view::npos;
    g_Bomb.Reach(isOfScript ? "PrintLine of a script" : "PrintLine");
}

u32 MatrixHost::CompileAtom(const char* source, u32 length)
{
    const std::string_view body = BodyOf({source, length});
    if (body == BrokenScript)
        return 0;

    auto place = m_Places.find(body);
    if (place == m_Places.end())
        place = m_Places.emplace(body).first;
    m_PlacesOfAtoms.push_back(&*place);
    return Books.Lend("atom", static_cast<u32>(m_PlacesOfAtoms.size()));
}

void MatrixHost::ReleaseAtom(u32 atom)
{
    Books.TakeBack("atom", atom);
}

int MatrixHost::ExecuteAtom(u32 atom, u32, int, char**, _MvTypeVar* self)
{
    Books.Use("atom", atom);
    const std::string& place = *m_PlacesOfAtoms.at(atom - 1);
    if (const auto script = Scripts.find(place); script != Scripts.end() && self)
        script->second(*static_cast<TeskElement*>(self->Value.Object));
    g_Bomb.Reach(place);
    return 0;
}

u32 MatrixHost::PreParseSequence(const char*, u32)
{
    return Books.Lend("sequence", ++m_LastSequence);
}

bool MatrixHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    Books.Use("sequence", sequence);
    g_Bomb.Reach("RetrieveProcessedText");
    std::snprintf(buffer, size, "words");
    return true;
}

// Objects that never had a sequence give back the number 0.
void MatrixHost::FreeSequence(u32 sequence)
{
    if (sequence)
        Books.TakeBack("sequence", sequence);
}

void MatrixHost::SaveElementPosition(TeskElement*)
{
    g_Bomb.Reach("SaveElementPosition");
}

void MatrixHost::LoadElementPosition(TeskElement*)
{
    g_Bomb.Reach("LoadElementPosition");
}

void MatrixHost::SetOutputConsole(const char*)
{
    g_Bomb.Reach("SetOutputConsole");
}

u32 MatrixHost::CreateFontResource(const char* name, u8 height, bool fixed, bool bold)
{
    return Books.Lend("font", TestHost::CreateFontResource(name, height, fixed, bold));
}

void MatrixHost::ReleaseFontResource(u32 font)
{
    Books.TakeBack("font", font);
}

u32 MatrixHost::LoadTextureResource(const char* path, u32 colorKey)
{
    return Books.Lend("texture", TestHost::LoadTextureResource(path, colorKey));
}

void MatrixHost::ReleaseTextureResource(u32 texture)
{
    Books.TakeBack("texture", texture);
}
