#include "host/live/LiveReload.h"

#include "host/InterfaceSession.h"
#include "host/files/MarkupFault.h"
#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"

#include <SDL_stdinc.h>

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr const char* NoticeFile = "notice.xml";
constexpr const char* NoticeName = "Live Notice";
constexpr const char* NoticeText = "Lines@Live Notice";
constexpr u32 NoticeMargin = 24; // above and below its text together

bool IsOnScreen(const std::string& name)
{
    const TeskElement* element = g_UIManager.FindElement(name.c_str());
    return element && element->Parent == g_UIManager.Screen;
}

void RemoveFromScreen(const std::string& name)
{
    TeskElement* element = g_UIManager.FindElement(name.c_str());
    if (element && element->Parent == g_UIManager.Screen)
        g_UIManager.Screen->DeleteChild(element);
}

// Tags of a file that make no element.
bool IsLooks(const char* tag)
{
    return SDL_strcasecmp(tag, "Template") == 0 || SDL_strcasecmp(tag, "Skin") == 0;
}

} // namespace

LiveReload::LiveReload(InterfaceSession& session, Watching watching) : m_Session(session), m_Watching(watching)
{
    m_Session.Host().Scripts().Commands.Add("skin", [this](int argc, char** argv) { return AnswerSkin(argc, argv); });
}

LiveReload::~LiveReload()
{
    m_Session.Host().Scripts().Commands.Remove("skin");
}

// skin [NAME]
int LiveReload::AnswerSkin(int argc, char** argv)
{
    if (argc > 1)
        m_WantedSkin = argv[1];
    else
        m_Session.Host().Output().Answer(m_Session.Skin());
    return 0;
}

void LiveReload::Advance()
{
    if (!m_PutBack.IsEmpty()) {
        m_PutBack.PutBackAfterFrame();
        m_PutBack = {};
    }
    NoteFiles();
    if (TakeChanges() || !m_WantedSkin.empty())
        Reload();
}

// What was loaded since the last frame, by whomever.
void LiveReload::NoteFiles()
{
    const UsedFiles& used = m_Session.Host().Files();
    const std::size_t known = m_Files.size();
    for (std::size_t at = known; at < used.Interfaces().size(); ++at)
        m_Files.push_back({used.Interfaces()[at], ElementsIn(used.Interfaces()[at])});
    if (m_Files.size() != known)
        m_Before.AddNew(InterfaceState::Take());
    if (m_Watching == Watching::Off)
        return;

    for (std::size_t at = known; at < m_Files.size(); ++at)
        m_Watch.Add(m_Files[at].Path);
    for (; m_WatchedImages < used.Images().size(); ++m_WatchedImages)
        m_Watch.Add(used.Images()[m_WatchedImages]);
}

bool LiveReload::TakeChanges()
{
    if (m_Watching == Watching::Off)
        return false;

    const std::vector<std::string> changed = m_Watch.TakeChanged();
    for (const std::string& path : changed)
        m_Session.Host().ReadImageAnew(path);
    return !changed.empty();
}

void LiveReload::Reload()
{
    const std::string skin = std::exchange(m_WantedSkin, {});
    Console& output = m_Session.Host().Output();
    std::string lines;
    std::string* const before = output.CopyTo(&lines);
    if (AreSound()) {
        const InterfaceState changes = InterfaceState::Take().ChangesSince(m_Before);
        m_Session.OpenSkin(skin.empty() ? m_Session.Skin() : skin);
        LoadFiles();
        m_Before = InterfaceState::Take();
        changes.PutBack();
        m_PutBack = changes;
    }
    output.CopyTo(before);
    Tell(std::move(lines));
}

// False: a line has said what is wrong with which.
bool LiveReload::AreSound() const
{
    bool sound = true;
    for (const LiveFile& file : m_Files) {
        const auto fault = FindMarkupFault(file.Path);
        // A file that has gone may come back.
        if (!fault || fault->Line == 0)
            continue;
        m_Session.Host().Output().Warn("%s", Describe(file.Path, *fault).c_str());
        sound = false;
    }
    return sound;
}

void LiveReload::LoadFiles()
{
    std::vector<LiveFile*> shown;
    for (LiveFile& file : m_Files)
        if (IsShown(file))
            shown.push_back(&file);
    for (LiveFile* file : shown)
        LoadFile(*file);
}

// An element that was renamed or taken out of the file goes.
void LiveReload::LoadFile(LiveFile& file)
{
    const std::vector<std::string> before = std::exchange(file.Elements, ElementsIn(file.Path));
    for (const std::string& name : before)
        if (std::find(file.Elements.begin(), file.Elements.end(), name) == file.Elements.end())
            RemoveFromScreen(name);
    m_Session.OpenFile(file.Path);
}

bool LiveReload::IsShown(const LiveFile& file)
{
    return std::any_of(file.Elements.begin(), file.Elements.end(), IsOnScreen);
}

// In small letters, as elements keep them.
std::vector<std::string> LiveReload::ElementsIn(const std::string& path)
{
    XMLDocument document;
    std::vector<std::string> names;
    if (!document.ParseFile(path.c_str()))
        return names;

    const XMLNode* root = document.Root->FirstChild;
    while (root && root->Type != XMLElementNode)
        root = root->Next;
    for (XMLNode* node = root ? root->FirstChild : nullptr; node; node = node->Next)
        if (node->Type == XMLElementNode && !IsLooks(node->Name))
            names.push_back(XMLHelper::GetStringAttribute(node, "name", ""));
    return names;
}

// Empty: all is well.
void LiveReload::Tell(std::string lines)
{
    while (lines.ends_with('\n'))
        lines.pop_back();
    if (!lines.empty() && !IsOnScreen(NoticeName))
        m_Session.OpenOwn(NoticeFile);
    TeskElement* notice = g_UIManager.FindElement(NoticeName);
    auto* text = dynamic_cast<TeskText*>(g_UIManager.FindElement(NoticeText));
    if (!notice || !text)
        return;

    text->SetText(lines.c_str());
    notice->Height = NoticeMargin + text->Font->Size * static_cast<u32>(text->NumLines);
    notice->RecalculateChildrenSize();
    g_UIManager.ShowElement(NoticeName, !lines.empty());
}

} // namespace host
