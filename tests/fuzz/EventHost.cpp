#include "tests/fuzz/EventHost.h"

#include "teskara/script/MvTypeVar.h"
#include "tests/fuzz/HostileActs.h"

#include <cstdlib>
#include <cstring>
#include <functional>
#include <string_view>
#include <utility>

namespace {

// Acts may begin others; an input ends all the same.
constexpr u32 MostActs = 500;

// The second table: it keeps texts, each until the next few are asked for, and tells of queries, which hold sometimes.
class EventScripts final : public HostScriptInterface
{
public:
    explicit EventScripts(std::function<void()> calledOut) : m_CalledOut(std::move(calledOut)) { }

    bool ParseTypedValue(const char*, _MvTypeVar&, u32) override { return false; }
    MvTypeDefinition* FindTypeByName(const char*, u32, u32) override { return nullptr; }
    char* MakeTempBuffer(std::size_t size, const char* text) override
    {
        std::string& kept = m_Kept[m_Next++ % m_Kept.size()];
        kept.assign(size, 0);
        std::strncpy(kept.data(), text, size);
        return kept.data();
    }
    u32 RegisterTransientClass2(const char*) override { return 1; }
    void InvalidateTransientObject2(u32, void*) override { }
    u32 CreateQuery(MvTypeDefinition*, const char*, u32) override
    {
        m_CalledOut();
        return 1;
    }
    bool EvaluateQuery(u32, _MvTypeVar&, bool& result) override
    {
        m_CalledOut();
        result = ++m_Asked % 4 == 0;
        return true;
    }
    void FreeQuery(u32) override { }

private:
    std::array<std::string, 8> m_Kept;
    std::size_t m_Next = 0;
    std::function<void()> m_CalledOut;
    u32 m_Asked = 0;
};

// The number that is the body of "atom auto(ARGUMENTS)\n{\nBODY\n}\n".
u8 NumberIn(std::string_view source)
{
    const std::size_t body = source.find("\n{\n");
    return body == std::string_view::npos ? u8{0}
                                          : static_cast<u8>(std::strtoul(source.data() + body + 3, nullptr, 10));
}

} // namespace

void EventHost::StartAnew()
{
    m_Mines = {};
    m_PlaceOfAtom.clear();
    m_ActsLeft = MostActs;
    m_RefusableCalls = 0;
    m_RefuseEach = 0;
    m_Width = 800;
    m_Height = 600;
    Quiet.Ticks = 10000;
    Quiet.Clipboard.clear();
}

void EventHost::Arm(u8 place, u8 act, u8 argument, u8 times)
{
    m_Mines[place % Places] = {act, argument, times};
}

void EventHost::SetDisplaySize(int width, int height)
{
    m_Width = width;
    m_Height = height;
}

MvTypeDefinition* EventHost::FindType(const char* name)
{
    auto& type = m_Types[name];
    if (!type)
        type = std::make_unique<MvTypeDefinition>(name);
    return type.get();
}

HostScriptInterface* EventHost::GetScriptInterface()
{
    static EventScripts scripts([this] { CalledOut(CallOut::Query, nullptr); }); // there is one such host
    return &scripts;
}

u32 EventHost::CompileAtom(const char* source, u32 length)
{
    const u32 atom = ChaosHost::CompileAtom(source, length);
    m_PlaceOfAtom[atom] = NumberIn({source, length});
    return atom;
}

int EventHost::ExecuteAtom(u32 atom, u32, int, char**, _MvTypeVar* self)
{
    Books.Use("atom", atom);
    Reach(m_PlaceOfAtom[atom], self ? static_cast<TeskElement*>(self->Value.Object) : nullptr);
    return 0;
}

bool EventHost::LocateFile(const char* name, char* path)
{
    if (std::strcmp(name, "part") != 0)
        return ChaosHost::LocateFile(name, path);

    std::strcpy(path, Part.c_str());
    return !Refuses();
}

bool EventHost::GetDisplaySize(int& width, int& height)
{
    width = m_Width;
    height = m_Height;
    return !Refuses();
}

bool EventHost::Refuses()
{
    return m_RefuseEach != 0 && ++m_RefusableCalls % m_RefuseEach == 0;
}

void EventHost::CalledOut(CallOut place, TeskElement* self)
{
    Reach(static_cast<u8>(place), self);
}

void EventHost::Reach(u8 place, TeskElement* self)
{
    Mine& mine = m_Mines[place % Places];
    if (mine.Left == 0 || m_ActsLeft == 0)
        return;

    --mine.Left;
    --m_ActsLeft;
    if (!self)
        self = FindByPlace(mine.Argument);
    if (self)
        DoHarm(mine.Act, *self, mine.Argument);
}
