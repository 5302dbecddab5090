#include "host/script/CallTrail.h"

#include <filesystem>

namespace host {

const std::string& CallTrail::Where() const
{
    static const std::string nowhere;
    return m_Steps.empty() ? nowhere : *m_Steps.back()->m_Where;
}

void CallTrail::NoteFile(const std::string& name)
{
    if (m_Steps.empty() || !m_Steps.back()->m_File)
        return;

    TrailStep& step = *m_Steps.back();
    *step.m_File = std::filesystem::path(name).filename().string();
    step.m_Where = step.m_File;
}

CommandStep::CommandStep(CallTrail& trail, const std::string& line)
    : TrailStep(trail, trail.Where()), m_Name("command " + line)
{
    m_File = &m_Name;
    if (IsOutermost())
        m_Where = &m_Name;
}

} // namespace host
