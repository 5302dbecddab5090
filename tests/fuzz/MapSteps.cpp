#include "tests/fuzz/MapSteps.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"
#include "tests/fuzz/MapModel.h"
#include "tests/fuzz/ModelCheck.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr u32 Pixels = 200;

constexpr char DotValues[] = "<Template><Font><Size>9</Size></Font></Template>";
constexpr char MapValues[] =
    "<Template><Width>200</Width><Height>200</Height><MapSizeX>40</MapSizeX><MapSizeY>40</MapSizeY></Template>";
constexpr char ViewValues[] =
    "<Template><Width>200</Width><Height>200</Height><MapSizeX>20</MapSizeX><MapSizeY>20</MapSizeY></Template>";

// What is under test, and what it should be.
struct Scene {
    TeskMap& Map;
    TeskMapView& View;
    MapModel Model;
    u32 LastID = 0;
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

// Few names, so that many are taken; some differ in case alone.
std::string NameFrom(u8 byte)
{
    constexpr const char* names[] = {"a", "A", "b", "ab", "Ab", "c", "\xc3\xa4", "a name that needs memory of its own"};
    return std::string(names[byte % std::size(names)]) + (byte >= 128 ? std::to_string(byte / 8 % 8) : "");
}

// Mostly what lies around the origin, on edges too, and at times no place at all.
float NumberFrom(u8 byte)
{
    constexpr float ends[] = {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity(), 3e38f, -3e38f, 1e-40f, -0.0f, 16777217.0f};
    return byte >= 0xf8 ? ends[byte & 7u] : static_cast<float>(byte - 120) / 4;
}

_Point3f PointFrom(Decisions& bytes)
{
    const float x = NumberFrom(bytes.Next());
    const float y = NumberFrom(bytes.Next());
    return {x, y, NumberFrom(bytes.Next())};
}

// One of the blips, by its place in the order of ids; now and then an id that is none.
u32 IDFrom(const Scene& scene, u8 byte)
{
    if (scene.Model.Blips.empty() || byte == 0xff)
        return byte;
    return std::next(scene.Model.Blips.begin(), byte % static_cast<std::ptrdiff_t>(scene.Model.Blips.size()))->first;
}

void Add(Scene& scene, Decisions& bytes)
{
    const std::string name = NameFrom(bytes.Next());
    const u8 look = bytes.Next();
    const std::optional<std::string> label = look % 2 == 0 ? std::nullopt : std::optional(std::string(look / 8, 'x'));
    const _Point3f location = PointFrom(bytes);
    const u32 size = look % 5 == 4 ? 0xffffffffu : look % 64u;
    const bool isFree = scene.Model.MakeRoom(name);
    const u32 id = scene.Map.AddBlip(
        name.c_str(), location, size, label ? label->c_str() : nullptr, look % 4 >= 2 ? "dot" : nullptr, nullptr);
    Require(isFree == (id != 0), "a blip was added where it should not, or not where it should");
    if (!isFree)
        return;
    Require(id > scene.LastID, "an id came back");
    scene.LastID = id;
    scene.Model.Add(id, {name, location, size, label, true, {}, false, 0, true, {}});
}

void Remove(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    scene.Map.RemoveBlip(id);
    scene.Model.Remove(id);
}

void DeleteChild(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    if (!scene.Model.Find(id))
        return;
    scene.Map.DeleteChild(g_UIManager.FindElementByID(id));
    scene.Model.Remove(id);
}

void Clear(Scene& scene, Decisions&)
{
    scene.Map.ClearBlips();
    scene.Model.Clear();
}

void Update(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    const _Point3f location = PointFrom(bytes);
    scene.Map.UpdateBlip(id, location);
    if (MapModel::Blip* blip = scene.Model.Find(id))
        blip->Location = location;
}

void SetLabel(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    const std::string label = NameFrom(bytes.Next());
    scene.Map.UpdateBlipLabel(id, label.c_str());
    if (MapModel::Blip* blip = scene.Model.Find(id))
        blip->Label = label;
}

void SetSize(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    const u32 size = bytes.Next();
    scene.Map.UpdateBlipSize(id, size);
    if (MapModel::Blip* blip = scene.Model.Find(id))
        blip->Size = size;
}

void Toggle(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    MapModel::Blip* blip = scene.Model.Find(id);
    if (!blip)
        return;
    blip->Visible = !blip->Visible;
    g_UIManager.FindElementByID(id)->Show(blip->Visible);
}

void ShowInView(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    MapModel::Blip* blip = scene.Model.Find(id);
    if (!blip)
        return;
    TeskMapBlipView* view = scene.View.AddBlipView(scene.Map.BlipsByID.Find(id));
    Require(view || !blip->IsInView, "a blip is no longer in the view");
    if (!view)
        return; // the frame of a former blip of that name is there still
    if (!blip->IsInView)
        blip->SizeInView = blip->Size;
    blip->IsInView = true;
}

void TakeFromView(Scene& scene, Decisions& bytes)
{
    const u32 id = IDFrom(scene, bytes.Next());
    scene.View.RemoveBlipView(id);
    if (MapModel::Blip* blip = scene.Model.Find(id)) {
        blip->IsInView = false;
        blip->PlaceInView = {};
    }
}

// Frees the names of blips that are gone.
void SweepView(Scene& scene, Decisions&)
{
    std::vector<u32> gone;
    for (TeskElement* child = scene.View.FirstChild; child; child = child->Next) {
        auto* view = dynamic_cast<TeskMapBlipView*>(child);
        if (view && !view->Blip())
            gone.push_back(view->GetBlipID());
    }
    for (const u32 id : gone)
        scene.View.RemoveBlipView(id);
}

// The same to the map or the view, and to its model.
void SetArea(Scene& scene, Decisions& bytes)
{
    const u8 what = bytes.Next();
    MapDisplay& real = what % 2 == 0 ? static_cast<MapDisplay&>(scene.Map) : scene.View;
    MapModel::Display& plain = what % 2 == 0 ? scene.Model.Map : scene.Model.View;
    switch (what / 2 % 7) {
    case 0:
        real.Origin = plain.Origin = PointFrom(bytes);
        break;
    case 1:
        real.Rotation = plain.Rotation = NumberFrom(bytes.Next());
        break;
    case 2:
        real.MapSizeX = plain.SizeX = NumberFrom(bytes.Next());
        break;
    case 3:
        real.MapSizeY = plain.SizeY = NumberFrom(bytes.Next());
        break;
    case 4:
        real.Radial = plain.IsRound = !plain.IsRound;
        break;
    case 5:
        real.ZClipping = plain.ClipsZ = !plain.ClipsZ;
        break;
    default:
        real.RotationEnabled = plain.IsRotated = !plain.IsRotated;
    }
}

void Draw(Scene& scene, Decisions&)
{
    g_UIManager.Render();
    scene.Model.Draw(Pixels);
}

// clang-format off
constexpr Step Steps[] = {
    {"add",            Add},
    {"add too",        Add},
    {"remove",         Remove},
    {"delete child",   DeleteChild},
    {"clear",          Clear},
    {"update",         Update},
    {"set label",      SetLabel},
    {"set size",       SetSize},
    {"toggle",         Toggle},
    {"show in view",   ShowInView},
    {"take from view", TakeFromView},
    {"sweep view",     SweepView},
    {"set area",       SetArea},
    {"frame",          Draw},
};
// clang-format on

bool AreSame(const _Point2i& left, const _Point2i& right)
{
    return left.x == right.x && left.y == right.y;
}

void CompareBlip(Scene& scene, u32 id, const MapModel::Blip& plain)
{
    const TeskMapBlip* blip = scene.Map.BlipsByID.Find(id);
    Require(blip && blip == g_UIManager.FindElementByID(id), "a blip is not found by its id");
    Require(blip == scene.Map.FindBlip(plain.Name.c_str()), "a blip is not found by its name");
    Require(blip->Width == plain.Size && blip->Height == plain.Size, "a size differs");
    Require(blip->Visible == plain.Visible, "a blip is shown or hidden wrongly");
    Require(AreSame({blip->X, blip->Y}, plain.Place), "a blip stands elsewhere");
    Require((blip->Label ? std::optional(*blip->Label) : std::nullopt) == plain.Label, "a label differs");

    const TeskMapBlipView* view = scene.View.FindBlipView(id);
    Require(plain.IsInView == (view != nullptr), "a blip is in the view wrongly");
    if (!view)
        return;
    Require(view->Blip() == blip && view->Width == plain.SizeInView, "a view shows something else");
}

void Compare(Scene& scene)
{
    std::vector<std::string> names;
    std::size_t place = 0;
    for (const auto& [id, plain] : scene.Model.Blips) {
        CompareBlip(scene, id, plain);
        names.push_back(plain.Name);
        while (place < scene.Map.BlipsByID.Places() && !scene.Map.BlipsByID.At(place).Element)
            ++place;
        Require(place < scene.Map.BlipsByID.Places() && scene.Map.BlipsByID.At(place).ID == id, "the orders differ");
        ++place;
    }
    for (; place < scene.Map.BlipsByID.Places(); ++place)
        Require(!scene.Map.BlipsByID.At(place).Element, "there are too many blips");

    std::sort(names.begin(), names.end());
    const TeskMapBlip* blip = scene.Map.FirstBlip();
    for (const std::string& name : names) {
        Require(blip && blip == scene.Map.FindBlip(name.c_str()), "the orders of names differ");
        blip = scene.Map.NextBlip(*blip);
    }
    Require(!blip, "there are too many names");
    Require(scene.Map.BlipCount == scene.Model.Count, "the counts differ");
}

// Only a frame tells where a blip stands in the view.
void CompareView(Scene& scene)
{
    for (const auto& [id, plain] : scene.Model.Blips) {
        const TeskMapBlipView* view = scene.View.FindBlipView(id);
        if (!view)
            continue;
        Require(view->Visible == plain.VisibleInView, "a blip is shown or hidden wrongly in the view");
        Require(
            !view->Visible || AreSame({view->X, view->Y}, plain.PlaceInView), "a blip stands elsewhere in the view");
    }
}

MapModel::Display AreaOf(const MapDisplay& display)
{
    return {display.Origin, display.Rotation, display.MapSizeX, display.MapSizeY, display.Radial, display.ZClipping,
        display.RotationEnabled};
}

} // namespace

void RunMapSteps(Decisions& bytes)
{
    KeptTemplate("dot", DotValues);
    auto& map = MakeOnScreen<TeskMap>("map", "m", KeptTemplate("map", MapValues));
    auto& view = MakeOnScreen<TeskMapView>("mapview", "v", KeptTemplate("view", ViewValues));
    Scene scene = {map, view, {}, 0};
    scene.Model.Map = AreaOf(map);
    scene.Model.View = AreaOf(view);
    for (std::size_t number = 0; number < MostModelSteps && !bytes.IsUsedUp(); ++number) {
        const Step& step = Steps[bytes.Next() % std::size(Steps)];
        step.Run(scene, bytes);
        Compare(scene);
        if (step.Run == Draw)
            CompareView(scene);
    }
}
