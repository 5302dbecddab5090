#include "host/record/ToolkitCalls.h"

#include "host/record/Boundary.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"
#include "teskara/script/MvTypeDefinition.h"
#include "teskara/text/TeskCommandEntry.h"
#include "teskara/text/TeskConsole.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapBlip.h"
#include "teskara/windows/TeskMapView.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace host::Toolkit {

namespace {

constexpr u32 LongestText = 4096; // of an object

void Cross(Operation operation, std::initializer_list<Field> fields, Passage passage)
{
    if (Boundary* boundary = Boundary::Current())
        boundary->Cross(operation, fields, passage);
    else
        passage();
}

// A call without arguments that says whether it was taken.
template <bool (CUIManager::*Press)()> bool CrossPress(Operation operation)
{
    bool isTaken = false;
    Cross(operation, {Out(isTaken)}, [&] { isTaken = (g_UIManager.*Press)(); });
    return isTaken;
}

template <class Kind> Kind* Find(u32 id)
{
    return dynamic_cast<Kind*>(g_UIManager.FindElementByID(id));
}

// Types of the host's own are asked without a call into the toolkit. A replay has no object yet.
bool IsOwn(const _MvTypeVar& object)
{
    Boundary* boundary = Boundary::Current();
    return !boundary || (object.Type && !boundary->Names().IsToolkitType(object.Type));
}

void EndScript(u32 number)
{
    Cross(Operation::EndScript, {In(number)}, [&] { Boundary::Current()->Scripts().End(number); });
}

// How each call is made without knowing its arguments.
struct Repetition {
    Operation Call;
    void (*Again)();
};

// A call that wants a place for its result.
template <auto Ask, class... Arguments> void AskAgain(Arguments... arguments)
{
    _MvTypeVar result;
    Ask(arguments..., result);
}

constexpr Repetition Repetitions[] = {
    {Operation::Initialize, [] { Start(nullptr); }},
    {Operation::Reset, Reset},
    {Operation::Shutdown, Shutdown},
    {Operation::Render, Render},
    {Operation::SetFrameTick, [] { SetFrameTick(0); }},
    {Operation::LoadInterface, [] { LoadInterface(nullptr, false, nullptr); }},
    {Operation::OnMouseMove, [] { OnMouseMove({}); }},
    {Operation::OnLMouseDown, [] { OnLMouseDown(); }},
    {Operation::OnLMouseUp, [] { OnLMouseUp(); }},
    {Operation::OnRMouseDown, [] { OnRMouseDown(); }},
    {Operation::OnRMouseUp, [] { OnRMouseUp(); }},
    {Operation::OnMouseWheel, [] { OnMouseWheel(0); }},
    {Operation::OnKeyDown, [] { OnKeyDown(0); }},
    {Operation::OnKeyUp, [] { OnKeyUp(0); }},
    {Operation::ShowElement, [] { ShowElement(nullptr, false); }},
    {Operation::RaiseElement, [] { RaiseElement(0); }},
    {Operation::FocusElement, [] { FocusElement(0); }},
    {Operation::AddToHistory, [] { AddToHistory(0, nullptr); }},
    {Operation::MeasureConsole, [] { MeasureConsole(0); }},
    {Operation::PrintInConsole, [] { PrintInConsole(0, nullptr); }},
    {Operation::MoveBlip, [] { MoveBlip(0, 0, {}); }},
    {Operation::ViewBlip, [] { ViewBlip(0, 0); }},
    {Operation::RunCommand, [] { RunCommand(nullptr, nullptr, 0, nullptr); }},
    {Operation::AskTopLevelObject, [] { AskAgain<AskTopLevelObject>(nullptr, 0, nullptr); }},
    {Operation::DispatchMember, [] { AskAgain<DispatchMember>(_MvTypeVar(), nullptr, 0, nullptr); }},
    {Operation::DispatchMethod, [] { DispatchMethod({}, nullptr, 0, nullptr); }},
    {Operation::GetIndex, [] { AskAgain<GetIndex>(_MvTypeVar(), 0, nullptr); }},
    {Operation::ToText, [] { ToText({}, nullptr, 0); }},
    {Operation::EndScript, [] { EndScript(0); }},
};
static_assert(std::size(Repetitions)
    == static_cast<std::size_t>(Operation::Count) - static_cast<std::size_t>(Operation::Initialize));

u32 ColumnsOf(TeskConsole& console)
{
    const u32 barWidth = console.ScrollBar ? console.ScrollBar->Width : 0;
    return console.Font && console.Width > barWidth
        ? static_cast<u32>((console.Width - barWidth) / console.Font->GetCharWidthA())
        : 0;
}

} // namespace

// Ids go on from run to run of one process, and are the same in a replay.
void Start(HostObject* host)
{
    u32 nextID = g_UIManager.NextElementID;
    Boundary* boundary = Boundary::Current();
    Cross(Operation::Initialize, {In(nextID)}, [&] {
        g_UIManager.NextElementID = nextID;
        F1(boundary ? &boundary->Host() : host)->Initialize();
    });
}

void Reset()
{
    Cross(Operation::Reset, {}, [] { g_UIManager.Reset(); });
}

void Shutdown()
{
    Cross(Operation::Shutdown, {}, [] { g_UIManager.Shutdown(); });
}

void Render()
{
    Cross(Operation::Render, {}, [] { g_UIManager.Render(); });
}

void SetFrameTick(u32 tick)
{
    Cross(Operation::SetFrameTick, {In(tick)}, [&] { g_UIManager.FrameTick = tick; });
}

bool LoadInterface(const char* file, bool replace, const char* skin)
{
    bool isLoaded = false;
    Cross(Operation::LoadInterface, {In(file), In(replace), In(skin), Out(isLoaded)}, [&] {
        isLoaded = file && g_UIManager.LoadInterfaceXML(file, replace, skin ? g_UIManager.FindSkin(skin) : nullptr);
    });
    return isLoaded;
}

bool OnMouseMove(_Point2i position)
{
    bool isTaken = false;
    Cross(Operation::OnMouseMove, {In(position), Out(isTaken)}, [&] { isTaken = g_UIManager.OnMouseMove(position); });
    return isTaken;
}

bool OnLMouseDown()
{
    return CrossPress<&CUIManager::OnLMouseDown>(Operation::OnLMouseDown);
}

bool OnLMouseUp()
{
    return CrossPress<&CUIManager::OnLMouseUp>(Operation::OnLMouseUp);
}

bool OnRMouseDown()
{
    return CrossPress<&CUIManager::OnRMouseDown>(Operation::OnRMouseDown);
}

bool OnRMouseUp()
{
    return CrossPress<&CUIManager::OnRMouseUp>(Operation::OnRMouseUp);
}

bool OnMouseWheel(int offset)
{
    bool isTaken = false;
    Cross(Operation::OnMouseWheel, {In(offset), Out(isTaken)}, [&] { isTaken = g_UIManager.OnMouseWheel(offset); });
    return isTaken;
}

bool OnKeyDown(u32 key)
{
    bool isTaken = false;
    Cross(Operation::OnKeyDown, {In(key), Out(isTaken)}, [&] { isTaken = g_UIManager.OnKeyDown(key); });
    return isTaken;
}

bool OnKeyUp(u32 key)
{
    bool isTaken = false;
    Cross(Operation::OnKeyUp, {In(key), Out(isTaken)}, [&] { isTaken = g_UIManager.OnKeyUp(key); });
    return isTaken;
}

bool ShowElement(const char* name, bool show)
{
    bool isThere = false;
    Cross(Operation::ShowElement, {In(name), In(show), Out(isThere)},
        [&] { isThere = g_UIManager.ShowElement(name, show); });
    return isThere;
}

void RaiseElement(u32 id)
{
    Cross(Operation::RaiseElement, {In(id)}, [&] {
        if (auto* element = Find<TeskElement>(id))
            element->MoveZTop(false);
    });
}

void FocusElement(u32 id)
{
    Cross(Operation::FocusElement, {In(id)}, [&] {
        if (auto* element = Find<TeskElement>(id))
            g_UIManager.SetFocusElement(element);
    });
}

void AddToHistory(u32 commandEntry, const char* line)
{
    Cross(Operation::AddToHistory, {In(commandEntry), In(line)}, [&] {
        auto* entry = Find<TeskCommandEntry>(commandEntry);
        if (entry && line)
            entry->History.Add(line);
    });
}

u32 MeasureConsole(u32 console)
{
    u32 columns = 0;
    Cross(Operation::MeasureConsole, {In(console), Out(columns)}, [&] {
        if (auto* element = Find<TeskConsole>(console))
            columns = ColumnsOf(*element);
    });
    return columns;
}

void PrintInConsole(u32 console, const char* text)
{
    Cross(Operation::PrintInConsole, {In(console), In(text)}, [&] {
        auto* element = Find<TeskConsole>(console);
        if (element && text)
            element->Print(text);
    });
}

void MoveBlip(u32 map, u32 blip, _Point3f location)
{
    Cross(Operation::MoveBlip, {In(map), In(blip), In(location)}, [&] {
        if (auto* element = Find<TeskMap>(map))
            element->UpdateBlip(blip, location);
    });
}

bool ViewBlip(u32 view, u32 blip)
{
    bool isShown = false;
    Cross(Operation::ViewBlip, {In(view), In(blip), Out(isShown)}, [&] {
        auto* element = Find<TeskMapView>(view);
        auto* shown = Find<TeskMapBlip>(blip);
        isShown = element && shown && element->AddBlipView(shown);
    });
    return isShown;
}

int RunCommand(const char* name, CommandHandler handler, int argc, char** argv)
{
    TextList arguments{argc, argv};
    int result = 0;
    Cross(Operation::RunCommand, {In(name), In(arguments), Out(result)}, [&] {
        const CommandHandler body = handler ? handler : Boundary::Current()->Names().FindCommand(name);
        if (body)
            result = body(arguments.Count, arguments.Texts);
    });
    return result;
}

bool AskTopLevelObject(TopLevelObjectHandler handler, int argc, char** argv, _MvTypeVar& result)
{
    Boundary* boundary = Boundary::Current();
    const char* name = boundary && handler ? boundary->Names().NameOf(handler) : nullptr;
    TextList index{argc, argv};
    bool isValue = false;
    Cross(Operation::AskTopLevelObject, {In(name), In(index), Out(result), Out(isValue)}, [&] {
        const TopLevelObjectHandler body = handler ? handler : boundary->Names().FindTopLevelObject(name);
        isValue = body && body(index.Count, index.Texts, result);
    });
    return isValue;
}

int DispatchMember(const _MvTypeVar& object, const char* name, int argc, char** argv, _MvTypeVar& result)
{
    if (IsOwn(object))
        return object.Type->DispatchMember(object.Value, name, argc, argv, result);

    HeldValue held{object};
    TextList arguments{argc, argv};
    int done = 0;
    Cross(Operation::DispatchMember, {In(held), In(name), In(arguments), Out(result), Out(done)}, [&] {
        if (held.Value.Type)
            done = held.Value.Type->DispatchMember(held.Value.Value, name, arguments.Count, arguments.Texts, result);
    });
    return done;
}

int DispatchMethod(const _MvTypeVar& object, const char* name, int argc, char** argv)
{
    if (IsOwn(object))
        return object.Type->DispatchMethod(object.Value, name, argc, argv);

    HeldValue held{object};
    TextList arguments{argc, argv};
    int done = 0;
    Cross(Operation::DispatchMethod, {In(held), In(name), In(arguments), Out(done)}, [&] {
        if (held.Value.Type)
            done = held.Value.Type->DispatchMethod(held.Value.Value, name, arguments.Count, arguments.Texts);
    });
    return done;
}

int GetIndex(const _MvTypeVar& object, int argc, char** argv, _MvTypeVar& result)
{
    if (IsOwn(object))
        return object.Type->GetIndex(object.Value, argc, argv, result);

    HeldValue held{object};
    TextList arguments{argc, argv};
    int done = 0;
    Cross(Operation::GetIndex, {In(held), In(arguments), Out(result), Out(done)}, [&] {
        if (held.Value.Type)
            done = held.Value.Type->GetIndex(held.Value.Value, arguments.Count, arguments.Texts, result);
    });
    return done;
}

bool ToText(const _MvTypeVar& object, char* buffer, u32 size)
{
    if (IsOwn(object))
        return object.Type->ToText(object.Value, buffer, size);

    HeldValue held{object};
    char own[LongestText]; // for a replay
    TextBuffer text{buffer ? buffer : own, size};
    bool isText = false;
    Cross(Operation::ToText, {In(held), In(size), Out(text), Out(isText)}, [&] {
        text.Size = buffer ? size : std::min(size, LongestText);
        isText = held.Value.Type && held.Value.Type->ToText(held.Value.Value, text.Bytes, text.Size);
    });
    return isText;
}

void EndScript(const HostScript& script)
{
    Boundary* boundary = Boundary::Current();
    const u32 number = boundary ? boundary->Scripts().Find(script) : 0;
    if (number != 0)
        EndScript(number);
}

bool Repeat(Operation operation)
{
    for (const Repetition& row : Repetitions) {
        if (row.Call == operation) {
            row.Again();
            return true;
        }
    }
    return false;
}

} // namespace host::Toolkit
