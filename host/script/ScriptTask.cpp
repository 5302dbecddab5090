#include "host/script/ScriptTask.h"

#include "host/record/ToolkitCalls.h"
#include "teskara/core/CUIManager.h"

namespace host {

namespace {

bool IsOpen(u32 dialog)
{
    return dialog != 0 && g_UIManager.FindElementByID(dialog);
}

} // namespace

ScriptTask::~ScriptTask()
{
    Toolkit::EndScript(*this);
}

void ScriptTask::SetUserInput(const char* text)
{
    if (text)
        m_Answer = text;
    else
        m_Answer.reset();
}

bool ScriptTask::IsDue(u32 now) const
{
    if (m_IsEnded)
        return true;
    if (m_WaitsForAnswer)
        return !HasDialog();
    return !m_WakeTick || static_cast<i32>(now - *m_WakeTick) >= 0;
}

bool ScriptTask::HasDialog() const
{
    return IsOpen(MessageBoxID) || IsOpen(InputBoxID);
}

void ScriptTask::GoOn()
{
    m_AtomsOutside = m_Atoms;
    m_WakeTick.reset();
    m_WaitsForAnswer = false;
}

} // namespace host
