#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

// The list of children runs from the bottom to the top. An element that is out of its parent's list, on its way out,
// stays out.

// Does not climb over a higher stratum.
void TeskElement::MoveZUp()
{
    g_UIManager.ZOrderChanged = true;
    if (!IsLinked() || !Next || Strata < Next->Strata)
        return;

    TeskElement* above = Next;
    Unlink();
    LinkAfter(above);
}

// May sink below a lower stratum.
void TeskElement::MoveZDown()
{
    g_UIManager.ZOrderChanged = true;
    if (!IsLinked() || !Previous)
        return;

    TeskElement* below = Previous->Previous;
    Unlink();
    LinkAfter(below);
}

void TeskElement::MoveZBottom()
{
    g_UIManager.ZOrderChanged = true;
    if (!IsLinked() || !Previous)
        return;

    Unlink();
    LinkAfter(nullptr);
}

// Ends above its equals and below the higher strata.
void TeskElement::MoveZTop(bool includeParents)
{
    g_UIManager.ZOrderChanged = true;
    const ElementWatch self(*this);
    if (includeParents && Parent)
        Parent->MoveZTop(true);
    if (!self.Exists() || !Parent || !IsLinked())
        return;

    TeskElement* below = Parent->LastChild;
    while (below && (below == this || below->Strata > Strata))
        below = below->Previous;
    if (below == Previous)
        return;

    if (!below) {
        MoveZBottom();
        return;
    }
    Unlink();
    LinkAfter(below);
}

void TeskElement::RaiseTopLevel()
{
    TeskElement* element = this;
    while (element->Parent && element->Parent->Parent)
        element = element->Parent;
    if (!element->IsGoing())
        element->MoveZTop(false);
}
