#include "tests/unit/hostile/Hostility.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/hostile/Scenario.h"

#include <new>
#include <stdexcept>

Hostility& g_Hostility = *new Hostility;

namespace {

bool HasElements()
{
    return g_UIManager.Screen && g_UIManager.Screen->FirstChild;
}

bool DeleteByID(u32 id)
{
    TeskElement* element = g_UIManager.FindElementByID(id);
    if (!element || !element->Parent)
        return false;

    element->Parent->DeleteChild(element);
    return true;
}

bool DeleteAll()
{
    const bool hasElements = HasElements();
    g_UIManager.Reset();
    return hasElements;
}

// The element with the next higher id, so that in the end all have their turn. 0: there are none.
u32 NextInTurn(u32 last)
{
    u32 next = 0;
    u32 first = 0;
    for (const auto& [id, element] : g_UIManager.ElementsByID) {
        if (!element->Parent)
            continue;
        if (id > last && (next == 0 || id < next))
            next = id;
        if (first == 0 || id < first)
            first = id;
    }
    return next ? next : first;
}

void AskTheToolkit()
{
    g_UIManager.GetFocusElement();
    g_UIManager.GetMouseOverElement();
    g_UIManager.SetMouseOverElement();
    if (TeskElement* element = g_UIManager.FindElement("frame"))
        element->FindChild("in");
}

void SendInput()
{
    _Point2i point = {45, 45};
    g_UIManager.OnMouseMove(point);
    g_UIManager.OnLMouseDown();
    g_UIManager.OnKeyDown('A');
    g_UIManager.OnMouseWheel(-120);
    g_UIManager.OnLMouseUp();
    g_UIManager.OnRMouseDown();
    g_UIManager.OnRMouseUp();
}

void CallBack(Answer answer)
{
    switch (answer) {
    case Answer::Asks:
        AskTheToolkit();
        break;
    case Answer::Draws:
        g_UIManager.Render();
        break;
    case Answer::SendsInput:
        SendInput();
        break;
    case Answer::LoadsAFile:
        g_UIManager.LoadInterfaceXML(ScenarioPart, true, nullptr);
        break;
    default:
        g_UIManager.Shutdown();
        break;
    }
}

} // namespace

void Hostility::Begin(Operation operation, Answer answer, Rhythm rhythm)
{
    *this = {};
    m_Operation = operation;
    m_Answer = answer;
    m_Rhythm = rhythm;
}

void Hostility::End()
{
    m_Operation = Operation::Count;
}

Answer Hostility::Take(Operation operation)
{
    ++m_Calls[static_cast<u32>(operation)];
    if (operation != m_Operation || m_Acting)
        return Answer::Good;

    ++m_Call;
    if (m_Rhythm == Rhythm::NowAndThen && m_Call < m_NextCall)
        return Answer::Good;
    if (IsAct(m_Answer)) {
        Act();
        return Answer::Good;
    }
    CountDeviation();
    if (m_Answer == Answer::Throws && m_Deviations % 2 == 0)
        throw std::bad_alloc();
    if (m_Answer == Answer::Throws)
        throw std::runtime_error("the host's own affair");
    return m_Answer;
}

void Hostility::CountDeviation()
{
    ++m_Deviations;
    m_NextCall = m_Call + m_Deviations;
}

// Where there was nothing to act upon its turn is still to come.
void Hostility::Act()
{
    if (m_Rhythm == Rhythm::NowAndThen && !HasElements())
        return;

    m_Acting = true;
    if (!IsDeletion(m_Answer))
        CallBack(m_Answer);
    if (!IsDeletion(m_Answer) || Delete())
        CountDeviation();
    m_Acting = false;
}

// False: there was nothing.
bool Hostility::Delete()
{
    switch (m_Answer) {
    case Answer::DeletesMouseOver:
        return DeleteByID(g_UIManager.MouseOverElementID);
    case Answer::DeletesFocus:
        return DeleteByID(g_UIManager.FocusElementID);
    case Answer::DeletesInTurn:
        m_LastDeleted = NextInTurn(m_LastDeleted);
        return DeleteByID(m_LastDeleted);
    default:
        return DeleteAll();
    }
}
