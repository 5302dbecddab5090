#include "bench/bounds/HostileMarkup.h"

#include "teskara/core/Limits.h"

#include <algorithm>
#include <string_view>

namespace {

// Whole units, as many as fit between the beginning and the end.
std::string Repeated(
    std::size_t bytes, std::string_view unit, std::string_view begin = "<a>", std::string_view end = "</a>")
{
    std::string all(begin);
    all.reserve(bytes);
    while (all.size() + unit.size() + end.size() <= bytes)
        all += unit;
    return all.append(end);
}

std::string Times(std::size_t count, std::string_view unit)
{
    std::string all;
    for (; count > 0; --count)
        all += unit;
    return all;
}

std::string Depths(std::size_t bytes)
{
    constexpr std::size_t Depth = Limits::MarkupNesting - 1;
    return Repeated(bytes, Times(Depth, "<b>") + Times(Depth, "</b>"));
}

std::string OpeningTags(std::size_t bytes)
{
    return Repeated(bytes, "<a>", "", "");
}

// As many attributes as a tag may have, tag after tag.
std::string Attributes(std::size_t bytes)
{
    std::string tag = "<b";
    for (unsigned index = 0; index < Limits::NodeAttributes; ++index)
        tag += " n" + std::to_string(index) + "=''";
    return Repeated(bytes, tag + "/>");
}

std::string SmallBehindLarge(std::size_t bytes)
{
    return Repeated(bytes, " ;", "<a>" + std::string(bytes / 40, 'x'));
}

std::string Entities(std::size_t bytes)
{
    return Repeated(bytes, "&none;");
}

std::string Comments(std::size_t bytes)
{
    return Repeated(bytes, "<!---->");
}

std::string Sections(std::size_t bytes)
{
    return Repeated(bytes, "<![CDATA[x]]>");
}

std::string LongText(std::size_t bytes)
{
    return Repeated(bytes, "A text of many words that never ends, ");
}

std::string Children(std::size_t bytes)
{
    return Repeated(bytes, "<b/>");
}

std::string ChildrenAndTexts(std::size_t bytes)
{
    return Repeated(bytes, "<b/>x");
}

std::string IllFormedBytes(std::size_t bytes)
{
    return Repeated(bytes, "\xFF\xC3\xED\xA0\x80\xF0\x9F ");
}

// Each built on the one before.
std::string TemplateChains(std::size_t bytes)
{
    std::string all = "<Tesk>";
    for (std::size_t index = 0; all.size() + 64 < bytes; ++index)
        all += "<Template name='" + std::to_string(index) + "' Template='"
            + std::to_string(index - std::min<std::size_t>(index, 1)) + "'/>";
    return all + "</Tesk>";
}

// Each holds the texts of all before it once more, and one of its own.
std::string DoublingTemplates(std::size_t bytes)
{
    std::string all = "<Tesk>";
    for (std::size_t index = 0; all.size() + 64 < bytes; ++index)
        all += "<Template name='" + std::to_string(index) + "' Template='"
            + std::to_string(index - std::min<std::size_t>(index, 1)) + "'>x</Template>";
    return all + "</Tesk>";
}

// Half of the bytes are one template's children, the other half those of another that is built on it.
std::string WideTemplates(std::size_t bytes)
{
    std::string all = "<Tesk><Template name='wide'>";
    std::size_t index = 0;
    for (const std::size_t half : {bytes / 2, bytes - 16}) {
        while (all.size() + 48 < half)
            all += "<n" + std::to_string(index++) + "/>";
        if (half < bytes - 16) {
            all += "</Template><Template name='wider' Template='wide'>";
            index /= 2;
        }
    }
    return all + "</Template></Tesk>";
}

// Two nodes for five bytes: no markup makes a larger tree.
constexpr std::size_t DensestFactor = 31;

constexpr HostileShape Shapes[] = {
    {"depths", "elements as deep as they may be, again and again", false, Depths},
    {"openings", "opening tags only", false, OpeningTags},
    {"attributes", "tags of ten thousand attributes", false, Attributes},
    {"smallbehindlarge", "one large token, then small ones only", false, SmallBehindLarge},
    {"entities", "references to entities that nobody knows", false, Entities},
    {"comments", "empty comments", false, Comments},
    {"sections", "literal sections of one letter", false, Sections},
    {"text", "one long text", false, LongText},
    {"children", "elements without anything in them", false, Children},
    {"mixed", "elements and texts by turns", false, ChildrenAndTexts, DensestFactor},
    {"illformed", "bytes that are no UTF-8", false, IllFormedBytes},
    {"chains", "templates each built on the one before", true, TemplateChains},
    {"doubling", "templates whose texts double from one to the next", true, DoublingTemplates, 24,
        Limits::TemplateFirstBasesBytes + Limits::TemplateOtherBasesBytes},
    {"wide", "a template of many children built on another", true, WideTemplates},
};

} // namespace

std::span<const HostileShape> HostileShapes()
{
    return Shapes;
}
