#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace host {

// The text of an atom, "atom NAME(TYPE NAME, ...)\n{\nBODY\n}\n", in its parts. They are borrowed from the text.
struct AtomSource {
    struct Parameter {
        std::string_view Type; // such as int; empty if only a name is written
        std::string_view Name;
    };

    // Nothing if the text is no atom.
    static std::optional<AtomSource> Read(std::string_view text);

    std::string_view Name;
    std::vector<Parameter> Parameters;
    std::string_view Body;
};

} // namespace host
