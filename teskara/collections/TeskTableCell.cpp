#include "teskara/collections/TeskTableCell.h"

#include "teskara/collections/TeskTable.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/MarkupSource.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "tablecell";

constexpr MarkupPart RowSpanPart = {"RowSpan", "integer", MarkupPlace::Attribute};
constexpr MarkupPart ColSpanPart = {"ColSpan", "integer", MarkupPlace::Attribute};
constexpr MarkupPart CellParts[] = {RowSpanPart, ColSpanPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .Parts = {CellParts},
});

u32 SpanOf(XMLNode* node, const char* attribute)
{
    return std::max(XMLHelper::GetIntAttribute(node, attribute, 1), 1u);
}

} // namespace

// A parent that is ending itself is no table any more.
TeskTableCell::~TeskTableCell()
{
    if (auto* table = dynamic_cast<TeskTable*>(Parent))
        table->RemoveCell(*this);
}

bool TeskTableCell::FromXML(XMLNode* node, XMLNode* templateNode)
{
    if (XMLNode* own = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, TemplateAttribute, "")))
        templateNode = own;
    if (!TeskFrame::FromXML(node, TemplateFor(node, templateNode, Kind)))
        return false;

    RowSpan = RowSpanOf(node);
    ColSpan = ColSpanOf(node);
    return true;
}

bool TeskTableCell::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

u32 TeskTableCell::RowSpanOf(XMLNode* node)
{
    return SpanOf(node, RowSpanPart.Name.Text);
}

u32 TeskTableCell::ColSpanOf(XMLNode* node)
{
    return SpanOf(node, ColSpanPart.Name.Text);
}
