#include "host/lint/ScriptScan.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>

namespace host {

namespace {

constexpr std::string_view Blanks = " \t\r\n";

bool IsNameCharacter(char character)
{
    const auto isIn = [character](char first, char last) { return character >= first && character <= last; };
    return isIn('a', 'z') || isIn('A', 'Z') || isIn('0', '9') || character == '_';
}

class ScriptReader
{
public:
    ScriptReader(std::string_view text, const std::vector<std::string_view>& objects) : m_Text(text), m_Objects(objects)
    {
    }

    std::vector<ObjectUse> Read()
    {
        PairBrackets();
        while (m_At < m_Text.size())
            ReadToken();
        return std::move(m_Uses);
    }

private:
    // A name that stands behind a point or a colon is a member of something else.
    void ReadToken()
    {
        if (SkipUncounted())
            return;
        const char character = m_Text[m_At];
        if (m_Text.substr(m_At).starts_with("..")) { // joins texts
            m_At = std::min(m_Text.find_first_not_of('.', m_At), m_Text.size());
            m_IsMember = false;
            return;
        }
        if (!IsNameCharacter(character)) {
            m_IsMember = character == '.' || character == ':' || (m_IsMember && Blanks.find(character) != Blanks.npos);
            ++m_At;
            return;
        }
        const std::string_view name = TakeName();
        const bool isObject = std::find(m_Objects.begin(), m_Objects.end(), name) != m_Objects.end();
        if (isObject && !m_IsMember)
            ReadUse(name);
        m_IsMember = false;
    }

    // What arguments hold is read once more: there may be uses in it.
    void ReadUse(std::string_view object)
    {
        ObjectUse use;
        use.Object = object;
        const std::size_t behindObject = m_At;
        SkipArguments();
        while (true) {
            SkipBlanks();
            const bool isStep = m_At + 1 < m_Text.size() && (m_Text[m_At] == '.' || m_Text[m_At] == ':')
                && m_Text[m_At + 1] != m_Text[m_At];
            if (!isStep)
                break;
            const bool isMethod = m_Text[m_At++] == ':';
            SkipBlanks();
            const std::size_t offset = m_At;
            const std::string_view name = TakeName();
            if (name.empty())
                break;
            use.Steps.push_back({name, offset, isMethod});
            SkipArguments();
        }
        const std::string_view rest = m_Text.substr(std::min(m_At, m_Text.size()));
        use.IsAssigned = !use.Steps.empty() && rest.starts_with('=') && !rest.starts_with("==");
        m_At = behindObject;
        m_Uses.push_back(std::move(use));
    }

    void SkipArguments()
    {
        SkipBlanks();
        while (m_At < m_Text.size() && (m_Text[m_At] == '(' || m_Text[m_At] == '[')) {
            const auto end = m_Ends.find(m_At);
            m_At = end == m_Ends.end() ? m_Text.size() : end->second;
            SkipBlanks();
        }
    }

    // Finds out once where each bracket ends: there may be brackets in brackets, with a use in each.
    void PairBrackets()
    {
        std::vector<std::size_t> open;
        while (m_At < m_Text.size()) {
            if (SkipUncounted())
                continue;
            const char character = m_Text[m_At++];
            if (character == '(' || character == '[' || character == '{') {
                open.push_back(m_At - 1);
            } else if ((character == ')' || character == ']' || character == '}') && !open.empty()) {
                m_Ends[open.back()] = m_At;
                open.pop_back();
            }
        }
        m_At = 0;
    }

    // A comment or a text.
    bool SkipUncounted()
    {
        const std::string_view rest = m_Text.substr(m_At);
        if (rest.starts_with("--")) {
            m_At += 2;
            if (!SkipLong())
                m_At = std::min(m_Text.find('\n', m_At), m_Text.size());
            return true;
        }
        if (rest.starts_with('"') || rest.starts_with('\'')) {
            for (++m_At; m_At < m_Text.size() && m_Text[m_At] != rest.front(); ++m_At)
                m_At += m_Text[m_At] == '\\';
            m_At = std::min(m_At + 1, m_Text.size());
            return true;
        }
        return SkipLong();
    }

    // [[text]] and [==[text]==].
    bool SkipLong()
    {
        const std::string_view rest = m_Text.substr(m_At);
        const std::size_t level = rest.starts_with('[') ? rest.find_first_not_of('=', 1) : rest.npos;
        if (level == rest.npos || rest[level] != '[')
            return false;
        const std::string end = "]" + std::string(level - 1, '=') + "]";
        m_At = std::min(m_Text.find(end, m_At + level), m_Text.size() - end.size()) + end.size();
        return true;
    }

    std::string_view TakeName()
    {
        const std::size_t begin = m_At;
        while (m_At < m_Text.size() && IsNameCharacter(m_Text[m_At]))
            ++m_At;
        return m_Text.substr(begin, m_At - begin);
    }

    void SkipBlanks() { m_At = std::min(m_Text.find_first_not_of(Blanks, m_At), m_Text.size()); }

    std::string_view m_Text;
    const std::vector<std::string_view>& m_Objects;
    std::size_t m_At = 0;
    bool m_IsMember = false;
    std::unordered_map<std::size_t, std::size_t> m_Ends; // behind the bracket that ends what one begins
    std::vector<ObjectUse> m_Uses;
};

} // namespace

std::vector<ObjectUse> FindObjectUses(std::string_view script, const std::vector<std::string_view>& objects)
{
    return ScriptReader(script, objects).Read();
}

} // namespace host
