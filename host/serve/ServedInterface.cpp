#include "host/serve/ServedInterface.h"

#include "host/files/WholeFile.h"
#include "host/lint/LintReport.h"
#include "host/lint/Linter.h"
#include "host/serve/Base64.h"
#include "host/serve/ElementReport.h"
#include "host/serve/LuaJson.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/TeskScreen.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace host {

namespace {

constexpr std::size_t MostLines = 1000;
constexpr int MostLevels = 256;
constexpr int WheelNotch = 120;

int PixelsOf(int side, float scale)
{
    return static_cast<int>(std::lround(static_cast<float>(side) * scale));
}

std::set<u32> TopElements()
{
    std::set<u32> ids;
    for (const TeskElement* child = g_UIManager.Screen ? g_UIManager.Screen->FirstChild : nullptr; child;
         child = child->Next)
        ids.insert(child->ID);
    return ids;
}

MouseButton ButtonOf(const ServeRequest& request)
{
    const std::string button = request.Text("button", "left");
    if (button == "left")
        return MouseButton::Left;
    if (button == "right")
        return MouseButton::Right;
    throw ServeFault("there is no button '" + button.substr(0, 64) + "'; expected left or right");
}

std::string FileText(const std::string& file)
{
    return "the file '" + file + "'";
}

std::string Join(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "; ") + line;
    return text;
}

} // namespace

ServedInterface::ServedInterface(const Settings& settings)
    : m_Settings(settings),
      m_Picture(PixelsOf(settings.Width, settings.Scale), PixelsOf(settings.Height, settings.Scale))
{
}

bool ServedInterface::Start()
{
    if (!m_Picture.Target()) {
        m_Lines.push_back(std::string("Could not make a picture: ") + SDL_GetError());
        return false;
    }
    InterfaceSession::Settings settings;
    settings.ClockStandsStill = true;
    settings.Trust = m_Settings.Trust;
    settings.Between = &m_Listing;
    settings.Width = m_Settings.Width;
    settings.Height = m_Settings.Height;
    m_Session.emplace(m_Picture.Target(), settings);
    m_Session->Host().Output().SendTo([this](const std::string& line) {
        if (m_Lines.size() < MostLines)
            m_Lines.push_back(line);
        else
            ++m_LinesLeftOut;
    });
    m_Input.emplace(*m_Session);
    return m_Session->Open({}, m_Settings.Skin);
}

std::vector<std::string> ServedInterface::TakeLines()
{
    if (const std::size_t more = std::exchange(m_LinesLeftOut, 0))
        m_Lines.push_back("and " + std::to_string(more) + " more lines");
    return std::exchange(m_Lines, {});
}

bool ServedInterface::Open(const std::vector<std::string>& files)
{
    for (const std::string& file : files)
        if (!OpenFile(file))
            return false;
    m_Input->Settle();
    return true;
}

bool ServedInterface::OpenFile(const std::string& file)
{
    std::error_code error;
    m_Session->Host().Paths().AddInterfaceFile(file);
    m_Listing.AddFolder(std::filesystem::absolute(file, error).parent_path());
    return m_Session->OpenFile(file);
}

Json ServedInterface::Load(const ServeRequest& request)
{
    const std::string file = request.Text("file");
    const std::string skin = request.Text("skin");
    if (!skin.empty() && !m_Session->OpenSkin(skin))
        throw ServeFault("the skin '" + skin + "' cannot be used: " + Join(TakeLines()));

    const std::set<u32> before = TopElements();
    if (!OpenFile(file))
        throw ServeFault(FileText(file) + " was not loaded: " + Join(TakeLines()));

    m_Input->Settle();
    Json names = Json::array();
    for (const u32 id : TopElements())
        if (!before.contains(id))
            names.push_back(g_UIManager.FindElementByID(id)->FullName.c_str());
    return {{"elements", names}};
}

Json ServedInterface::Tree(const ServeRequest& request)
{
    const auto levels = static_cast<int>(request.Number("levels", MostLevels));
    return ReportTree(NamedElement(request.Text("element", "Screen")), levels);
}

Json ServedInterface::Find(const ServeRequest& request)
{
    constexpr i64 MostFound = 1000;
    const ElementQuery query{request.Text("name"), request.Text("kind"), request.Text("text"), request.Flag("visible")};
    return FindElements(query, static_cast<std::size_t>(request.Number("most", MostFound)));
}

// The middle of an element, or a point that counts from its corner; without an element, from that of the display.
_Point2i ServedInterface::PointTo(const ServeRequest& request)
{
    const bool isPoint = request.Has("x") && request.Has("y");
    if (request.Has("x") != request.Has("y") || (!isPoint && !request.Has("element")))
        throw ServeFault("it is not said where; expected the field 'element', the fields 'x' and 'y', or all three");

    _Point2i place{static_cast<i32>(request.Number("x")), static_cast<i32>(request.Number("y"))};
    if (!request.Has("element"))
        return place;
    const TeskElement& element = NamedElement(request.Text("element"));
    if (!element.IsReallyVisible())
        throw ServeFault("the element '" + request.Text("element") + "' cannot be seen: it or one around it is hidden");
    if (!isPoint)
        place = {static_cast<i32>(element.Width / 2), static_cast<i32>(element.Height / 2)};
    return {WrapAdd(element.AbsoluteX, place.x), WrapAdd(element.AbsoluteY, place.y)};
}

void ServedInterface::MoveTo(_Point2i place)
{
    m_Input->MoveMouse(place);
    m_Input->PassFrames(1);
}

Json ServedInterface::Moment() const
{
    return {{"frame", m_Input->Frames()}, {"milliseconds", m_Input->Milliseconds()}};
}

// hit: who is under the mouse, which is another one if something covers what was meant.
Json ServedInterface::MouseReport(_Point2i place) const
{
    const TeskElement* element = g_UIManager.GetMouseOverElement();
    return {{"x", place.x}, {"y", place.y}, {"hit", element ? Json(element->FullName.c_str()) : Json(nullptr)}};
}

Json ServedInterface::Click(const ServeRequest& request)
{
    const MouseButton button = ButtonOf(request);
    const _Point2i place = PointTo(request);
    MoveTo(place);
    const Json report = MouseReport(place);
    for (i64 times = request.Number("times", 1); times > 0; --times) {
        m_Input->Press(button);
        m_Input->PassFrames(1);
        m_Input->Release(button);
        m_Input->PassFrames(1);
    }
    return report;
}

Json ServedInterface::Move(const ServeRequest& request)
{
    const _Point2i place = PointTo(request);
    MoveTo(place);
    return MouseReport(place);
}

Json ServedInterface::Press(const ServeRequest& request)
{
    m_Input->Press(ButtonOf(request));
    m_Input->PassFrames(1);
    return Moment();
}

Json ServedInterface::Release(const ServeRequest& request)
{
    m_Input->Release(ButtonOf(request));
    m_Input->PassFrames(1);
    return Moment();
}

Json ServedInterface::Wheel(const ServeRequest& request)
{
    if (request.Has("element") || request.Has("x") || request.Has("y"))
        MoveTo(PointTo(request));
    m_Input->TurnWheel(static_cast<int>(request.Number("notches")) * WheelNotch);
    m_Input->PassFrames(1);
    return Moment();
}

Json ServedInterface::Type(const ServeRequest& request)
{
    m_Input->Type(request.Text("text"));
    m_Input->PassFrames(1);
    return Moment();
}

// All names are known before the first key is pressed.
Json ServedInterface::Keys(const ServeRequest& request)
{
    std::vector<std::vector<u32>> chords;
    for (const std::string& chord : request.Texts("keys")) {
        std::string_view unknown;
        chords.push_back(FindKeys(chord, unknown));
        if (chords.back().empty())
            throw ServeFault("there is no key '" + std::string(unknown.substr(0, 64))
                + "'; expected names of keys such as A, Enter, F5, Page Up, or several such as Ctrl+Shift+Left");
    }
    for (const std::vector<u32>& chord : chords)
        m_Input->PressTogether(chord);
    m_Input->PassFrames(1);
    return Moment();
}

Json ServedInterface::Wait(const ServeRequest& request)
{
    if (request.Has("frames") && request.Has("milliseconds"))
        throw ServeFault("there are both 'frames' and 'milliseconds'; expected one of them");
    m_Input->PassFrames(static_cast<u32>(request.Number("frames", request.Has("milliseconds") ? 0 : 1)));
    m_Input->PassTime(static_cast<u32>(request.Number("milliseconds")));
    return Moment();
}

Json ServedInterface::RunText(std::string_view prefix, const std::string& text)
{
    ScriptEngine& scripts = m_Session->Host().Scripts();
    Json value;
    std::string why;
    const auto take = [&](lua_State* thread) { value = LuaToJson(thread, -1, scripts.Values); };
    if (!scripts.RunText(prefix, text, take, why))
        throw ServeFault("the script failed: " + why);
    return value;
}

Json ServedInterface::Get(const ServeRequest& request)
{
    return RunText("return ", request.Text("expression"));
}

Json ServedInterface::Do(const ServeRequest& request)
{
    const Json value = RunText({}, request.Text("script"));
    m_Input->Settle();
    return value;
}

Json ServedInterface::List(const ServeRequest& request)
{
    m_Listing.Begin(m_Settings.Width, m_Settings.Height);
    m_Input->Settle();
    const std::string text = WriteDrawList(m_Listing.End());
    if (!request.Has("file"))
        return {{"list", text}};
    const std::string file = request.Text("file");
    if (!WriteWholeFile(file, text))
        throw ServeFault(FileText(file) + " cannot be written");
    return {{"file", file}};
}

Json ServedInterface::TakePicture(const ServeRequest& request)
{
    m_Session->DrawFrame(m_Settings.Width, m_Settings.Height, m_Settings.Scale);
    const std::string file = request.Text("file");
    if (request.Has("file")) {
        if (!m_Picture.Save(file))
            throw ServeFault(FileText(file) + " cannot be written: " + SDL_GetError());
        return {{"file", file}};
    }
    const std::optional<std::string> bytes = m_Picture.Encode();
    if (!bytes)
        throw ServeFault(std::string("the picture cannot be made: ") + SDL_GetError());
    return {{"png", ToBase64(*bytes)}};
}

// In the skin that is in use.
Json ServedInterface::Lint(const ServeRequest& request)
{
    if (request.Has("files") == request.Has("text"))
        throw ServeFault("it is not said what to look at; expected the field 'files', or the field 'text'");
    Linter linter(m_Session->Skin());
    for (const std::string& file : request.Texts("files")) {
        std::string why;
        if (!linter.AddFile(file, why))
            throw ServeFault(FileText(file) + " cannot be read: " + why);
    }
    if (request.Has("text"))
        linter.AddText("text", request.Text("text"));
    return Json::parse(FindingsAsJson(linter.Look({.Strict = request.Flag("strict")})));
}

} // namespace host
