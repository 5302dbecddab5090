#include "teskara/windows/DialogText.h"

#include "teskara/controls/TeskText.h"
#include "teskara/controls/TextSplit.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"

static_assert(sizeof(DataText::Buffer) == TextSplit::BufferSize);

void DialogText::Set(const char* text)
{
    CopyBounded(m_Text, sizeof(m_Text), TextOrEmpty(text));
}

void DialogText::Expand()
{
    DataText::Expand(m_Text);
}

void DialogText::Split(TeskFont* font)
{
    const u32 screenWidth = g_UIManager.Screen ? g_UIManager.Screen->Width : 0;
    m_LineCount = TeskText::Split(m_Text, screenWidth * 7 / 10, font, &m_Width);
}
