#include "teskara/text/TeskTextEdit.h"

#include "teskara/controls/ScrollBarMarkup.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <cstring>

namespace {

constexpr char Kind[] = "textedit";

// clang-format off
constexpr MarkupValue<TeskTextEdit> EditValues[] = {
    {"CaretOuterColor",       Markup::Hex<&TeskTextEdit::CaretOuterColor>,           0},
    {"CaretInnerColor",       Markup::Hex<&TeskTextEdit::CaretInnerColor>,           0},
    {"SelectionColor",        Markup::Hex<&TeskTextEdit::SelectionColor>,            0},
    {"Font",                  Markup::FixedFont<&TeskTextEdit::Font>,                {}},
    {"CaretTexture",          Markup::Texture<&TeskTextEdit::CaretTexture>,          {}},
    {"CaretOverwriteTexture", Markup::Texture<&TeskTextEdit::CaretOverwriteTexture>, {}},
};
// clang-format on

constexpr MarkupPart BarPart = {"VerticalScrollBar", "scrollbar", MarkupPlace::NamedChild};
constexpr MarkupPart EditParts[] = {BarPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskTextEditType,
    .Tables = {&RowsOf<EditValues>},
    .Parts = {EditParts},
});

// At the right edge.
_CreateScrollBar EdgeScrollBar()
{
    _CreateScrollBar values = UprightScrollBar();
    values.PositionX = {PositionFarEdge, values.Width};
    return values;
}

// Terminates a line where it ends. Returns the next one; null if there is none.
char* CutLine(char* line)
{
    char* end = std::strchr(line, '\n');
    if (!end)
        return nullptr;

    char* next = end + 1;
    if (end != line && end[-1] == '\r')
        --end;
    *end = 0;
    return next;
}

} // namespace

// The scroll bar is still there and hears of it.
TeskTextEdit::~TeskTextEdit()
{
    TeskTextEdit::Clear();
}

bool TeskTextEdit::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<EditValues>(*this, source) || !Font)
        return false;

    const ElementWatch self(*this);
    TeskScrollBar* bar = LoadScrollBar(*this, source, BarPart.Name, EdgeScrollBar());
    if (!bar || !self.Exists())
        return false;

    ScrollBar = bar;
    ScrollBar->Range = 1;
    ScrollBar->RecalculateSize(true);
    if (self.Exists())
        SetText("");
    if (self.Exists() && ScrollBar)
        ScrollBar->SetValue(1);
    return self.Exists();
}

bool TeskTextEdit::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskTextEdit::GetMvType()
{
    return pTeskTextEditType;
}

// The text is kept first: it may be that of a line which ends here.
void TeskTextEdit::SetText(const char* text)
{
    const std::shared_ptr<char[]> kept = Lines.Keep(TextOrEmpty(text));
    if (!kept)
        return;

    const ElementWatch self(*this);
    Clear();
    if (self.Exists())
        AddText(kept.get());
    if (self.Exists())
        View.ShowFirst();
}

// Scripts may change the text while it is added; what is left of it is added then.
void TeskTextEdit::AddText(const char* text)
{
    const std::shared_ptr<char[]> kept = Lines.Keep(TextOrEmpty(text));
    const ElementWatch self(*this);
    for (char* line = kept.get(); line && self.Exists();) {
        char* const next = CutLine(line);
        AddLine(line);
        line = next;
    }
}

void TeskTextEdit::AddLine(const char* text)
{
    CTextEditLine* line = Lines.Append(TextOrEmpty(text));
    if (!line)
        return;

    if (Lines.Count() == 1) {
        View.ViewTop.Line = line;
        View.ViewBottom.Line = line;
    }
    TellLines();
}

void TeskTextEdit::InsertText(TextEditPos&, const char*) { }

CTextEditLine* TeskTextEdit::InsertLineAfter(CTextEditLine* line, const char* text)
try {
    LivePosition inserted(Lines);
    inserted.Line = Lines.InsertAfter(line, TextOrEmpty(text));
    const CTextEditLine* made = inserted.Line;
    return made && TellLines() && inserted.Line == made ? inserted.Line : nullptr;
} catch (...) {
    return nullptr;
}

void TeskTextEdit::RemoveLine(CTextEditLine* line, bool upward)
{
    if (!line)
        return;
    if (Lines.Count() == 1) {
        line->Cut(0);
        View.Caret.Column = 0;
        return;
    }
    const bool hadCaret = View.Caret.Line == line;
    Lines.Remove(*line, upward ? RemovedLine::ToPrevious : RemovedLine::ToNext);
    if (hadCaret)
        View.Caret.Column = View.HeldColumn();
    TellLines();
}

void TeskTextEdit::Clear()
{
    Lines.Clear();
    if (ScrollBar)
        ScrollBar->SetRange(1);
}

// Tells the scroll bar where the caret is. False: the field has died of it.
bool TeskTextEdit::TellCaretLine()
{
    const ElementWatch self(*this);
    if (ScrollBar && View.Caret.Line)
        ScrollBar->SetValue(static_cast<u32>(Lines.Count() - View.Caret.Line->GetNumber()));
    return self.Exists();
}

// Tells it also how many lines there are.
bool TeskTextEdit::TellLines()
{
    const ElementWatch self(*this);
    if (ScrollBar)
        ScrollBar->SetRange(static_cast<u32>(Lines.Count()));
    return self.Exists() && TellCaretLine();
}
