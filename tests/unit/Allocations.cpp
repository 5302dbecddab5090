#include "tests/unit/Allocations.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace {

std::atomic<std::size_t> g_Count = 0;
std::atomic<std::size_t> g_FirstFailure = SIZE_MAX;
std::atomic<bool> g_FailsFromThenOn = false;

thread_local int g_Spared = 0;
Allocations::Judge g_Judge = nullptr;

// The blocks that stand in the books: a hash table, at most half full, in memory of the system's. Books are kept on one
// thread at a time.
class Books
{
public:
    static constexpr std::size_t Places = std::size_t{1} << 18;

    bool AreKept() const { return m_Blocks != nullptr; }
    std::size_t Size() const { return m_Size; }

    void Begin()
    {
        if (!m_Blocks)
            m_Blocks = static_cast<void**>(std::calloc(Places, sizeof(void*)));
        else
            std::memset(m_Blocks, 0, Places * sizeof(void*));
        m_Size = 0;
    }

    void End()
    {
        std::free(m_Blocks);
        m_Blocks = nullptr;
    }

    void Enter(void* block)
    {
        if (2 * m_Size >= Places)
            std::abort();
        std::size_t place = Home(block);
        while (m_Blocks[place])
            place = (place + 1) % Places;
        m_Blocks[place] = block;
        ++m_Size;
    }

    // Closes the gap, so that a search may end at the first empty place.
    void Leave(const void* block)
    {
        std::size_t gap = Home(block);
        for (; m_Blocks[gap] != block; gap = (gap + 1) % Places) {
            if (!m_Blocks[gap])
                return;
        }
        --m_Size;
        m_Blocks[gap] = nullptr;
        for (std::size_t place = (gap + 1) % Places; m_Blocks[place]; place = (place + 1) % Places) {
            if ((place - Home(m_Blocks[place])) % Places < (place - gap) % Places)
                continue;
            m_Blocks[gap] = m_Blocks[place];
            m_Blocks[place] = nullptr;
            gap = place;
        }
    }

private:
    static std::size_t Home(const void* block)
    {
        return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(block) / 16 * 0x9e3779b97f4a7c15u >> 40)
            % Places;
    }

    void** m_Blocks = nullptr;
    std::size_t m_Size = 0;
};

constinit Books g_Books;

bool Fails()
{
    const std::size_t index = g_Count++;
    if (index == g_FirstFailure || (index > g_FirstFailure && g_FailsFromThenOn))
        return true;
    return g_Judge && g_Judge();
}

void* AllocateOrNull(std::size_t size)
{
    const std::size_t bytes = size > 0 ? size : 1;
    if (g_Spared > 0)
        return std::malloc(bytes);
    if (Fails())
        return nullptr;

    void* memory = std::malloc(bytes);
    if (g_Books.AreKept() && memory)
        g_Books.Enter(memory);
    return memory;
}

void Free(void* memory)
{
    if (g_Books.AreKept() && memory)
        g_Books.Leave(memory);
    std::free(memory);
}

void* Allocate(std::size_t size)
{
    void* memory = AllocateOrNull(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

namespace Allocations {

std::size_t Count()
{
    return g_Count;
}

void FailAfter(std::size_t count, Failing failing)
{
    g_FailsFromThenOn = failing == Failing::FromThenOn;
    g_FirstFailure = g_Count + count;
}

void Allow()
{
    g_FirstFailure = SIZE_MAX;
}

void SetJudge(Judge judge)
{
    g_Judge = judge;
}

void BeginBooks()
{
    g_Books.Begin();
}

void EndBooks()
{
    g_Books.End();
}

std::size_t Outstanding()
{
    return g_Books.Size();
}

Spared::Spared()
{
    ++g_Spared;
}

Spared::~Spared()
{
    --g_Spared;
}

Counted::Counted() : m_Spared(std::exchange(g_Spared, 0)) { }

Counted::~Counted()
{
    g_Spared = m_Spared;
}

} // namespace Allocations

void* operator new(std::size_t size)
{
    return Allocate(size);
}

void* operator new[](std::size_t size)
{
    return Allocate(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return AllocateOrNull(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return AllocateOrNull(size);
}

void operator delete(void* memory) noexcept
{
    Free(memory);
}

void operator delete[](void* memory) noexcept
{
    Free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    Free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    Free(memory);
}
