#include "teskara/markup/XMLAttribute.h"

#include "teskara/core/AsciiCase.h"

XMLAttribute::~XMLAttribute() = default;

void XMLAttribute::Delete()
{
    delete this;
}

bool XMLAttribute::HasName(std::string_view name, u32 foldedHash) const
{
    return m_NameHash == foldedHash && EqualsNoCase({Name, m_NameLength}, name);
}
