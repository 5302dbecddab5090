#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class XMLNode;

namespace host {

// Writes a tree of markup as indented text: elements, attributes, texts and comments. What is short stands on one line,
// values beside each other, and a text of several lines keeps its indents among themselves.
class MarkupWriter
{
public:
    // The node with all that is under it. Each line ends with a line end.
    static std::string Write(const XMLNode& node);

private:
    void WriteNode(const XMLNode& node);
    void WriteElement(const XMLNode& node);
    void WriteText(std::string_view text);

    // Puts something on a line of its own, or where there is room beside what was put by the same operation just before.
    void PutLine(std::string_view text);
    void PutBeside(std::string_view text);

    std::size_t Room() const;

    std::string m_Text;
    std::size_t m_Depth = 0;
    std::size_t m_OpenLine = 0; // where a line begins that takes more values
    bool m_HasOpenLine = false;
};

} // namespace host
