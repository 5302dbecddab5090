// Files, stored positions, keys, the clipboard and the console of the recording host.

#include "host/probe/RecordingHost.h"

#include "host/probe/Keyboard.h"
#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/element/TeskElement.h"

namespace {

constexpr std::size_t PathRoom = 4096;

} // namespace

bool RecordingHost::FindResourceFile(const char* name, char* path)
{
    return FindFile(HostOperation::FindResourceFile, name, path);
}

bool RecordingHost::LocateFile(const char* name, char* path)
{
    return FindFile(HostOperation::LocateFile, name, path);
}

bool RecordingHost::FindFile(HostOperation operation, const char* name, char* path)
{
    TracedCall call(m_Session.Output, operation);
    call.Text(name).ReturnsBool(false);
    if (m_Session.Refusals.Refuses(operation) || !name)
        return false;

    const ProbeFiles& files = m_Session.Files;
    const auto found = operation == HostOperation::LocateFile ? files.Locate(name) : files.Find(name);
    if (!found)
        return false;

    CopyText(path, PathRoom, *found);
    call.ReturnsText(path);
    return true;
}

bool RecordingHost::OpenClipboard()
{
    TracedCall call(m_Session.Output, HostOperation::OpenClipboard);
    const bool opened = !m_Session.Refusals.Refuses(HostOperation::OpenClipboard);
    call.ReturnsBool(opened);
    return opened;
}

void RecordingHost::SaveElementPosition(TeskElement* element)
{
    TracedCall(m_Session.Output, HostOperation::SaveElementPosition).Argument(ElementText(element));
    if (m_Session.Refusals.Refuses(HostOperation::SaveElementPosition) || !element)
        return;

    StoredPosition position;
    position.Name = element->FullName;
    if (element->GetStoragePosition(position.X, position.Y, position.Width, position.Height))
        m_Session.Positions.Store(position);
}

void RecordingHost::LoadElementPosition(TeskElement* element)
{
    TracedCall(m_Session.Output, HostOperation::LoadElementPosition).Argument(ElementText(element));
    if (m_Session.Refusals.Refuses(HostOperation::LoadElementPosition) || !element)
        return;

    if (const StoredPosition* position = m_Session.Positions.Find(element->FullName)) {
        element->X = position->X;
        element->Y = position->Y;
        element->Width = position->Width;
        element->Height = position->Height;
    }
}

bool RecordingHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    TracedCall call(m_Session.Output, HostOperation::GetKeyName);
    call.Number(key).ReturnsBool(false);
    if (m_Session.Refusals.Refuses(HostOperation::GetKeyName) || !size)
        return false;

    CopyText(buffer, size, KeyNameFor(key));
    call.ReturnsText(buffer);
    return true;
}

void RecordingHost::GetOutputConsole(char* buffer, u32 size)
{
    TracedCall call(m_Session.Output, HostOperation::GetOutputConsole);
    if (m_Session.Refusals.Refuses(HostOperation::GetOutputConsole) || !size)
        return;

    CopyText(buffer, size, m_Console);
    call.ReturnsText(buffer);
}

void RecordingHost::SetOutputConsole(const char* name)
{
    TracedCall(m_Session.Output, HostOperation::SetOutputConsole).Text(name);
    if (!m_Session.Refusals.Refuses(HostOperation::SetOutputConsole))
        m_Console = name ? name : "";
}
