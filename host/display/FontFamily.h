#pragma once

#include "host/display/Typeface.h"

#include <fontconfig/fontconfig.h>

#include <memory>
#include <string>
#include <vector>

namespace host {

// The faces that the system offers for a name, the best first: the face of that name, then those that stand in for
// characters that it lacks. Faces are opened when they are first needed.
class FontFamily
{
public:
    // An empty name is the host's choice. The library is borrowed.
    FontFamily(FT_Library library, const std::string& name, bool fixed, bool bold);
    ~FontFamily();
    FontFamily(const FontFamily&) = delete;
    FontFamily& operator=(const FontFamily&) = delete;

    // The face that the name stands for; null if the system has no usable font at all.
    const Typeface* Main();

    // The first face that has a character; null if none has.
    const Typeface* ForCharacter(char32_t character);

private:
    struct Candidate {
        FcPattern* Pattern = nullptr; // owned by m_Sorted
        std::unique_ptr<Typeface> Face;
        bool Tried = false;
    };

    const Typeface* Open(Candidate& candidate);

    FT_Library m_Library;
    bool m_Bold;
    FcFontSet* m_Sorted = nullptr;
    std::vector<Candidate> m_Candidates;
};

} // namespace host
