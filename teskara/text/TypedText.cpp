#include "teskara/text/TypedText.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Utf8.h"
#include "teskara/core/platform/PlatformCalls.h"

#include <algorithm>

TypedText::TypedText(u32 key)
{
    char characters[MostCharacters] = {};
    const int count = System::ToAscii(key, g_UIManager.KeyState, characters);
    if (count <= 0)
        return;

    char16_t units[MostCharacters] = {};
    const std::size_t length = std::min(static_cast<std::size_t>(count), MostCharacters);
    for (std::size_t index = 0; index < length; ++index)
        units[index] = System::AnsiToWide(static_cast<u8>(characters[index]));
    m_Size = Utf16ToUtf8({units, length}, m_Bytes, sizeof(m_Bytes));
}
