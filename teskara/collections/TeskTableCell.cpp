#include "teskara/collections/TeskTableCell.h"

#include "teskara/collections/TeskTable.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/markup/MarkupSource.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "tablecell";

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
    if (XMLNode* own = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, "Template", "")))
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
    return SpanOf(node, "RowSpan");
}

u32 TeskTableCell::ColSpanOf(XMLNode* node)
{
    return SpanOf(node, "ColSpan");
}
