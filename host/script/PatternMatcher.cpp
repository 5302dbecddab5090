#include "host/script/PatternMatcher.h"

#include <cstring>

namespace host {

namespace {

constexpr char Escape = '%';
constexpr u32 CountedAtOnce = 256; // steps

bool IsLower(char c)
{
    return c >= 'a' && c <= 'z';
}

bool IsUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsVisible(char c)
{
    return c > ' ' && c < 0x7F;
}

bool IsAlphanumeric(char c)
{
    return IsLower(c) || IsUpper(c) || IsDigit(c);
}

char ToLower(char c)
{
    return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whether a character is of the class that a letter stands for; a letter that stands for none is itself.
bool IsOfClass(char c, char letter)
{
    bool is = false;
    switch (ToLower(letter)) {
    case 'a':
        is = IsLower(c) || IsUpper(c);
        break;
    case 'c':
        is = (c >= 0 && c < ' ') || c == 0x7F;
        break;
    case 'd':
        is = IsDigit(c);
        break;
    case 'g':
        is = IsVisible(c);
        break;
    case 'l':
        is = IsLower(c);
        break;
    case 'p':
        is = IsVisible(c) && !IsAlphanumeric(c);
        break;
    case 's':
        is = c == ' ' || (c >= '\t' && c <= '\r');
        break;
    case 'u':
        is = IsUpper(c);
        break;
    case 'w':
        is = IsAlphanumeric(c);
        break;
    case 'x':
        is = IsDigit(c) || (ToLower(c) >= 'a' && ToLower(c) <= 'f');
        break;
    case 'z':
        is = c == '\0';
        break;
    default:
        return letter == c;
    }
    return IsUpper(letter) ? !is : is;
}

} // namespace

PatternMatcher::PatternMatcher(lua_State* thread, std::string_view subject, std::string_view pattern)
    : m_Thread(thread), m_Subject(subject), m_Pattern(pattern)
{
}

const char* PatternMatcher::MatchAt(const char* place)
{
    m_Count = 0;
    m_Depth = 0;
    return MatchNested(place, m_Pattern.data());
}

void PatternMatcher::PushCapture(int index, const char* start, const char* end)
{
    if (index >= m_Count) {
        if (index != 0)
            luaL_error(m_Thread, "invalid capture index %%%d", index + 1);
        lua_pushlstring(m_Thread, start, static_cast<std::size_t>(end - start));
        return;
    }

    const Capture& capture = m_Captures[index];
    if (capture.Length == Unfinished)
        luaL_error(m_Thread, "unfinished capture");
    else if (capture.Length == Position)
        lua_pushinteger(m_Thread, capture.Start - m_Subject.data() + 1);
    else
        lua_pushlstring(m_Thread, capture.Start, static_cast<std::size_t>(capture.Length));
}

int PatternMatcher::PushCaptures(const char* start, const char* end, bool wholeIfNone)
{
    const int count = m_Count == 0 && wholeIfNone ? 1 : m_Count;
    luaL_checkstack(m_Thread, count, "too many captures");
    for (int index = 0; index < count; ++index)
        PushCapture(index, start, end);
    return count;
}

const char* PatternMatcher::MatchNested(const char* at, const char* pattern)
{
    if (++m_Depth > MostNested)
        luaL_error(m_Thread, "pattern too complex");
    const char* end = Match(at, pattern);
    --m_Depth;
    return end;
}

// Takes one item of the pattern after the other, and goes deeper only where there is a choice.
const char* PatternMatcher::Match(const char* at, const char* pattern)
{
    const char* patternEnd = m_Pattern.data() + m_Pattern.size();
    while (pattern != patternEnd) {
        bool isDone = true;
        const char* end = MatchItem(at, pattern, isDone);
        if (isDone)
            return end;
    }
    return at;
}

// One item. Done: the result is that of the rest of the pattern as well; else at and pattern stand behind the item.
const char* PatternMatcher::MatchItem(const char*& at, const char*& pattern, bool& isDone)
{
    Step();
    const char* patternEnd = m_Pattern.data() + m_Pattern.size();
    const char* subjectEnd = m_Subject.data() + m_Subject.size();
    const char next = pattern + 1 < patternEnd ? pattern[1] : '\0';
    if (*pattern == '(')
        return next == ')' ? StartCapture(at, pattern + 2, Position) : StartCapture(at, pattern + 1, Unfinished);
    if (*pattern == ')')
        return EndCapture(at, pattern + 1);
    if (*pattern == '$' && pattern + 1 == patternEnd)
        return at == subjectEnd ? at : nullptr;

    if (*pattern == Escape && (next == 'b' || next == 'f' || IsDigit(next))) {
        at = MatchEscaped(at, next, pattern);
        isDone = at == nullptr;
        return nullptr;
    }
    return MatchSimple(at, pattern, isDone);
}

// %b, %f and %1 with what belongs to them. The pattern goes on behind them.
const char* PatternMatcher::MatchEscaped(const char* at, char letter, const char*& pattern)
{
    const char* patternEnd = m_Pattern.data() + m_Pattern.size();
    const char* after = pattern + 2;
    if (letter == 'b') {
        pattern = after + 2;
        return MatchBalanced(at, after);
    }
    if (letter == 'f') {
        if (after == patternEnd || *after != '[')
            luaL_error(m_Thread, "missing '[' after '%%f' in pattern");
        pattern = ItemEnd(after);
        return IsFrontier(at, after, pattern) ? at : nullptr;
    }
    pattern = after;
    return MatchCapture(at, letter);
}

// A character, a class or a set, as often as the sign behind it says.
const char* PatternMatcher::MatchSimple(const char*& at, const char*& pattern, bool& isDone)
{
    const char* patternEnd = m_Pattern.data() + m_Pattern.size();
    const char* itemEnd = ItemEnd(pattern);
    const char suffix = itemEnd < patternEnd ? *itemEnd : '\0';
    if (suffix == '*' || suffix == '+')
        return suffix == '*' || MatchesOne(at, pattern, itemEnd)
            ? MatchMost(suffix == '+' ? at + 1 : at, pattern, itemEnd)
            : nullptr;
    if (suffix == '-')
        return MatchFewest(at, pattern, itemEnd);

    const bool matches = MatchesOne(at, pattern, itemEnd);
    if (suffix == '?') {
        const char* end = matches ? MatchNested(at + 1, itemEnd + 1) : nullptr;
        pattern = itemEnd + 1;
        isDone = end != nullptr;
        return end;
    }
    at += matches ? 1 : 0;
    pattern = itemEnd;
    isDone = !matches;
    return nullptr;
}

const char* PatternMatcher::MatchMost(const char* at, const char* pattern, const char* itemEnd)
{
    std::ptrdiff_t count = 0;
    while (MatchesOne(at + count, pattern, itemEnd))
        ++count;
    for (; count >= 0; --count) {
        Step();
        if (const char* end = MatchNested(at + count, itemEnd + 1))
            return end;
    }
    return nullptr;
}

const char* PatternMatcher::MatchFewest(const char* at, const char* pattern, const char* itemEnd)
{
    while (true) {
        if (const char* end = MatchNested(at, itemEnd + 1))
            return end;
        if (!MatchesOne(at, pattern, itemEnd))
            return nullptr;
        ++at;
    }
}

const char* PatternMatcher::MatchBalanced(const char* at, const char* pattern)
{
    if (pattern + 1 >= m_Pattern.data() + m_Pattern.size())
        luaL_error(m_Thread, "malformed pattern (missing arguments to '%%b')");

    const char* subjectEnd = m_Subject.data() + m_Subject.size();
    if (at == subjectEnd || *at != pattern[0])
        return nullptr;
    int depth = 1;
    while (++at != subjectEnd) {
        Step();
        if (*at == pattern[1] && --depth == 0)
            return at + 1;
        if (*at == pattern[0] && pattern[0] != pattern[1])
            ++depth;
    }
    return nullptr;
}

const char* PatternMatcher::StartCapture(const char* at, const char* pattern, std::ptrdiff_t length)
{
    if (m_Count >= MostCaptures)
        luaL_error(m_Thread, "too many captures");

    m_Captures[m_Count++] = {at, length};
    const char* end = MatchNested(at, pattern);
    if (!end)
        --m_Count;
    return end;
}

const char* PatternMatcher::EndCapture(const char* at, const char* pattern)
{
    int open = m_Count - 1;
    while (open >= 0 && m_Captures[open].Length != Unfinished)
        --open;
    if (open < 0)
        luaL_error(m_Thread, "invalid pattern capture");

    m_Captures[open].Length = at - m_Captures[open].Start;
    const char* end = MatchNested(at, pattern);
    if (!end)
        m_Captures[open].Length = Unfinished;
    return end;
}

const char* PatternMatcher::MatchCapture(const char* at, char digit)
{
    const int index = digit - '1';
    if (index < 0 || index >= m_Count || m_Captures[index].Length == Unfinished)
        luaL_error(m_Thread, "invalid capture index %%%d", index + 1);

    const Capture& capture = m_Captures[index];
    const std::ptrdiff_t length = capture.Length;
    const bool isSame = length >= 0 && m_Subject.data() + m_Subject.size() - at >= length
        && std::memcmp(capture.Start, at, static_cast<std::size_t>(length)) == 0;
    return isSame ? at + length : nullptr;
}

bool PatternMatcher::IsFrontier(const char* at, const char* set, const char* setEnd)
{
    const char before = at == m_Subject.data() ? '\0' : at[-1];
    const char after = at == m_Subject.data() + m_Subject.size() ? '\0' : *at;
    return !MatchesSet(before, set, setEnd) && MatchesSet(after, set, setEnd);
}

bool PatternMatcher::MatchesOne(const char* at, const char* pattern, const char* itemEnd)
{
    Step();
    if (at == m_Subject.data() + m_Subject.size())
        return false;

    switch (*pattern) {
    case '.':
        return true;
    case Escape:
        return IsOfClass(*at, pattern[1]);
    case '[':
        return MatchesSet(*at, pattern, itemEnd);
    default:
        return *pattern == *at;
    }
}

// The set stands in brackets, both of which are given.
bool PatternMatcher::MatchesSet(char character, const char* set, const char* setEnd)
{
    const auto code = [](char c) { return static_cast<unsigned char>(c); };
    const char* last = setEnd - 1;
    ++set;
    const bool wanted = *set != '^';
    if (!wanted)
        ++set;
    for (; set < last; ++set) {
        Step();
        if (*set == Escape) {
            if (IsOfClass(character, *++set))
                return wanted;
        } else if (set[1] == '-' && set + 2 < last) {
            if (code(*set) <= code(character) && code(character) <= code(set[2]))
                return wanted;
            set += 2;
        } else if (*set == character) {
            return wanted;
        }
    }
    return !wanted;
}

// The place behind one character, class or set of the pattern.
const char* PatternMatcher::ItemEnd(const char* pattern)
{
    const char* end = m_Pattern.data() + m_Pattern.size();
    const char first = *pattern++;
    if (first == Escape) {
        if (pattern == end)
            luaL_error(m_Thread, "malformed pattern (ends with '%%')");
        return pattern + 1;
    }
    if (first != '[')
        return pattern;

    if (pattern != end && *pattern == '^')
        ++pattern;
    do { // a bracket that comes first is one of the set
        if (pattern == end)
            luaL_error(m_Thread, "malformed pattern (missing ']')");
        if (*pattern++ == Escape && pattern != end)
            ++pattern;
        Step();
    } while (pattern == end || *pattern != ']');
    return pattern + 1;
}

void PatternMatcher::Step()
{
    if (++m_Steps % CountedAtOnce != 0)
        return;
    if (const char* why = LuaState::Of(m_Thread).Budget().Spend(CountedAtOnce))
        luaL_error(m_Thread, "%s", why);
}

} // namespace host
