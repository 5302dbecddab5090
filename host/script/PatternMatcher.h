#pragma once

#include "host/script/LuaState.h"

#include <string_view>

namespace host {

// Matches a subject against a pattern of Lua's. Its steps count as instructions of the script, since some patterns never
// come to an end; what is wrong with a pattern is raised as an error in the script.
class PatternMatcher
{
public:
    // The texts are borrowed.
    PatternMatcher(lua_State* thread, std::string_view subject, std::string_view pattern);

    // Tries to match at one place of the subject. The end of the match; null if there is none. A "^" at the start of a
    // pattern is the caller's.
    const char* MatchAt(const char* place);

    int CaptureCount() const { return m_Count; }

    // Pushes one of the last match's captures. Without any, the whole match is the first.
    void PushCapture(int index, const char* start, const char* end);

    // Pushes all of them, and gives their number. wholeIfNone: without any, the whole match is pushed.
    int PushCaptures(const char* start, const char* end, bool wholeIfNone);

private:
    static constexpr int MostCaptures = 32;
    static constexpr int MostNested = 200;
    static constexpr std::ptrdiff_t Unfinished = -1;
    static constexpr std::ptrdiff_t Position = -2;

    struct Capture {
        const char* Start;
        std::ptrdiff_t Length;
    };

    const char* Match(const char* at, const char* pattern);
    const char* MatchNested(const char* at, const char* pattern);
    const char* MatchItem(const char*& at, const char*& pattern, bool& isDone);
    const char* MatchEscaped(const char* at, char letter, const char*& pattern);
    const char* MatchSimple(const char*& at, const char*& pattern, bool& isDone);
    const char* MatchMost(const char* at, const char* pattern, const char* itemEnd);
    const char* MatchFewest(const char* at, const char* pattern, const char* itemEnd);
    const char* MatchBalanced(const char* at, const char* pattern);
    const char* StartCapture(const char* at, const char* pattern, std::ptrdiff_t length);
    const char* EndCapture(const char* at, const char* pattern);
    const char* MatchCapture(const char* at, char digit);
    bool IsFrontier(const char* at, const char* set, const char* setEnd);
    bool MatchesOne(const char* at, const char* pattern, const char* itemEnd);
    bool MatchesSet(char character, const char* set, const char* setEnd);
    const char* ItemEnd(const char* pattern);
    void Step();

    lua_State* m_Thread;
    std::string_view m_Subject;
    std::string_view m_Pattern;
    Capture m_Captures[MostCaptures] = {};
    int m_Count = 0;
    int m_Depth = 0;
    u32 m_Steps = 0;
};

} // namespace host
