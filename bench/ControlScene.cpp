#include "bench/ControlScene.h"

#include <cstdarg>
#include <cstdio>

namespace {

enum class Kind { Text, Button, Check, Slider, Panel };

// Ten children in a row of the pattern; ten rows of it make a window.
constexpr Kind Pattern[10] = {Kind::Text, Kind::Button, Kind::Text, Kind::Check, Kind::Text, Kind::Button, Kind::Slider,
    Kind::Text, Kind::Button, Kind::Panel};

constexpr int Columns = 5;
constexpr int CellWidth = 172;
constexpr int CellHeight = 20;
constexpr int ChildWidth = 168;
constexpr int ChildHeight = 18;

__attribute__((format(printf, 1, 2))) std::string Format(const char* format, ...)
{
    char text[512];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof(text), format, arguments);
    va_end(arguments);
    return text;
}

// Fonts and colours that every text and panel of the scene shares.
const char* const Templates =
    "<Template name=\"text\"><Font><Name>Sans</Name><Size>13</Size><Color>FFE0E0E0</Color></Font></Template>\n"
    "<Template name=\"button\"><Font><Name>Sans</Name><Size>13</Size><Color>FFE0E0E0</Color></Font>"
    "<BackgroundColor>FF304050</BackgroundColor></Template>\n"
    "<Template name=\"checkbox\"><Font><Name>Sans</Name><Size>13</Size><Color>FFE0E0E0</Color></Font>"
    "<Texture Filename=\"#box\"/><TextureChecked Filename=\"#checked\"/></Template>\n"
    "<Template name=\"frame\"><BackgroundColor>FF202830</BackgroundColor></Template>\n";

std::string Geometry(int x, int y, int width, int height)
{
    return Format("<X>%d</X><Y>%d</Y><Height>%d</Height><Width>%d</Width>", x, y, height, width);
}

const char* WordOf(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return "text";
    case Kind::Button:
        return "button";
    case Kind::Check:
        return "checkbox";
    default:
        return "frame";
    }
}

std::string Caption(Kind kind, int window, int child)
{
    const int serial = window * ControlScene::ChildrenOfWindow + child;
    switch (kind) {
    case Kind::Text:
        return Format("Status line %03d.%04d", window, child * 7);
    case Kind::Button:
        return Format("Button %04d", serial % 10000);
    case Kind::Check:
        return Format("Option %03d", serial % 1000);
    default:
        return {};
    }
}

std::string Child(int window, int child)
{
    const Kind kind = Pattern[child % 10];
    const std::string geometry =
        Geometry(child % Columns * CellWidth, child / Columns * CellHeight, ChildWidth, ChildHeight);
    const std::string caption = Caption(kind, window, child);
    const std::string text = caption.empty() ? caption : "<Text>" + caption + "</Text>";
    const char* word = WordOf(kind);
    return Format("<%s name=\"c%02d\">%s%s</%s>\n", word, child, geometry.c_str(), text.c_str(), word);
}

// A thousand texts side by side and what each of them shows.
template <class TextOf> std::string GridMarkup(TextOf&& textOf)
{
    std::string markup = std::string("<Tesk>\n") + Templates;
    for (int text = 0; text < ControlScene::ChangingTexts; ++text) {
        markup += Format("<text name=\"t%03d\">", text);
        markup += Geometry(text % 25 * CellWidth, text / 25 * CellHeight, ChildWidth, ChildHeight);
        markup += "<Text>" + textOf(text) + "</Text></text>\n";
    }
    return markup + "</Tesk>\n";
}

} // namespace

std::string ControlScene::Markup()
{
    std::string markup = std::string("<Tesk>\n") + Templates;
    for (int window = 0; window < Windows; ++window) {
        markup += Format("<frame name=\"w%03d\">", window);
        markup += Geometry(window % 10 * 900, window / 10 * 460, 890, 450) + "<Children>\n";
        for (int child = 0; child < ChildrenOfWindow; ++child)
            markup += Child(window, child);
        markup += "</Children></frame>\n";
    }
    return markup + "</Tesk>\n";
}

std::string ControlScene::TextGridMarkup()
{
    return GridMarkup([](int text) { return ChangingText(text, 0); });
}

std::string ControlScene::SequenceGridMarkup(const std::string& sequence)
{
    return GridMarkup([&](int text) {
        std::string numbered = sequence;
        if (const std::size_t place = numbered.find('#'); place != numbered.npos)
            numbered.replace(place, 1, Format("%03d", text));
        return Format("Value %04d is ", text) + numbered;
    });
}

std::string ControlScene::ChangingText(int element, int frame)
{
    const long long value = (static_cast<long long>(element) * 7919 + static_cast<long long>(frame) * 104729) % 1000000;
    return Format("Value %04d is %06lld", element % 10000, value);
}
