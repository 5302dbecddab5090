#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

// UTF-8 text that owns its bytes and knows its length.
using utf8string = std::string;

// Replaces a text, which from may be a part of; null is empty. False, and the text as it was, if memory ran out.
bool TryAssign(utf8string& text, const char* from) noexcept;

// The same for names: compared without regard to ASCII case. Keeps the spelling it was made with.
class utf8stringnocase
{
public:
    explicit utf8stringnocase(std::string_view text) : m_Text(text) { }

    operator std::string_view() const { return m_Text; }
    const utf8string& Text() const { return m_Text; }

private:
    utf8string m_Text;
};

// Hashes names so that spellings that differ in case alone fall together. Seeded for each run of a program, so that
// nobody can prepare names that collide; no order that depends on it is ever visible.
struct TESKARA_EXPORT NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const noexcept;
};

struct TESKARA_EXPORT NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const noexcept;
};

// A map by name. Look up with any text: map.find(std::string_view(...)).
template <class Value> using NameMap = std::unordered_map<utf8stringnocase, Value, NameHash, NameEqual>;
