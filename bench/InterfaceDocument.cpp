#include "bench/InterfaceDocument.h"

#include <cstdint>

namespace {

constexpr const char* Kinds[] = {"text", "button", "check", "slider", "panel"};
constexpr unsigned ControlsOfWindow = 20;

// Numbers that look random and are the same in every run.
class Numbers
{
public:
    unsigned Below(unsigned limit)
    {
        m_State = m_State * 6364136223846793005u + 1442695040888963407u;
        return static_cast<unsigned>(m_State >> 33) % limit;
    }

private:
    std::uint64_t m_State = 777;
};

std::string Padded(unsigned number, std::size_t width)
{
    const std::string digits = std::to_string(number);
    return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

std::string Color(unsigned value)
{
    std::string color;
    for (int shift = 20; shift >= 0; shift -= 4)
        color += "0123456789abcdef"[value >> shift & 15u];
    return color;
}

void AddValue(std::string& to, std::size_t indent, const std::string& tag, const std::string& value)
{
    to.append(indent, ' ');
    to += "<" + tag + ">" + value + "</" + tag + ">\n";
}

void AddPair(std::string& to, std::size_t indent, const std::string& tag, unsigned first, unsigned second)
{
    AddValue(to, indent, tag, std::to_string(first) + "," + std::to_string(second));
}

void AddControl(std::string& to, Numbers& numbers, unsigned index)
{
    const std::string kind = Kinds[index % 5];
    to += "    <" + kind + " name=\"" + kind + Padded(index, 2) + "\" anchor=\"left top\">\n";
    AddPair(to, 6, "position", numbers.Below(600), numbers.Below(400));
    AddPair(to, 6, "size", 20 + numbers.Below(180), 16 + numbers.Below(20));
    AddValue(to, 6, "color", Color(numbers.Below(0x1000000)));
    AddValue(to, 6, "caption", "Caption of " + kind + " " + std::to_string(index));
    AddValue(to, 6, "enabled", numbers.Below(2) ? "true" : "false");
    to += "    </" + kind + ">\n";
}

void AddWindow(std::string& to, Numbers& numbers, unsigned index)
{
    to += "  <window name=\"page" + Padded(index, 5) + "\" style=\"dialog\" movable=\"true\">\n";
    AddPair(to, 4, "position", numbers.Below(1920), numbers.Below(1080));
    AddPair(to, 4, "size", 200 + numbers.Below(400), 100 + numbers.Below(300));
    AddValue(to, 4, "title", "Page &amp; title " + std::to_string(index));
    for (unsigned control = 0; control < ControlsOfWindow; ++control)
        AddControl(to, numbers, control);
    to += "  </window>\n";
}

} // namespace

std::string InterfaceDocument(std::size_t bytes)
{
    std::string document = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<interface version=\"1\">\n";
    document.reserve(bytes + 8192);
    Numbers numbers;
    for (unsigned window = 0; document.size() < bytes; ++window)
        AddWindow(document, numbers, window);
    return document + "</interface>\n";
}
