#include "teskara/windows/TeskMap.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <utility>

namespace {

constexpr char Kind[] = "map";
constexpr char BlipKind[] = "mapblip";

constexpr MarkupForm<TeskMap> FactoryElseBlip = {
    "string", [](TeskMap& map, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        const char* factory = source.Text(tag, fallback.Text);
        CopyBounded(map.BlipFactory, sizeof(map.BlipFactory), *factory ? factory : BlipKind);
    }};

constexpr MarkupForm<TeskMap> OwnTemplate = {
    "string", [](TeskMap& map, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        map.BlipTemplate = std::make_unique<utf8string>(source.Text(tag, fallback.Text));
    }};

// clang-format off
constexpr MarkupValue<TeskMap> MapValues[] = {
    {"BlipFactory",  FactoryElseBlip, ""},
    {"BlipTemplate", OwnTemplate,     ""},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "map area",
    .ScriptType = &pTeskMapType,
    .Tables = {&RowsOf<MapValues>},
});

bool IsEmpty(const char* text)
{
    return !text || !*text;
}

const _Point3f* PointOf(const TeskMapBlip& blip)
{
    return &blip.Location;
}

} // namespace

bool TeskMap::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!MapDisplay::FromXML(node, templateNode) || !ReadArea(node, templateNode))
        return false;

    return ReadMarkup<MapValues>(*this, {node, templateNode});
}

bool TeskMap::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || MapDisplay::IsTypeOf(word);
}

MvTypeDefinition* TeskMap::GetMvType()
{
    return pTeskMapType;
}

void TeskMap::Render()
{
    const ElementWatch self(*this);
    if (Radial)
        UpdateRadius();
    else
        UpdateBox();
    if (self.Exists())
        MapDisplay::Render();
}

void TeskMap::UpdateRadius()
{
    PlaceInCircle(BlipsByID, PointOf);
}

void TeskMap::UpdateBox()
{
    PlaceInBox(BlipsByID, PointOf);
}

void TeskMap::BlipHover(TeskMapBlip* blip, _Point2i&)
{
    if (blip)
        StartHover(*blip);
}

void TeskMap::BlipHoverStop(TeskMapBlip* blip)
{
    if (blip)
        StopHover(*blip);
}

// The one that is replaced keeps its place in the count. What was handed over may belong to it.
unsigned int TeskMap::AddBlip(const char* name, const _Point3f& location, unsigned int size, const char* label,
    const char* templateName, const char* factory)
try {
    if (!m_TakesBlips)
        return 0;

    utf8string ownName = TextOrEmpty(name);
    const utf8string ownTemplate = TextOrEmpty(templateName);
    const utf8string ownFactory = TextOrEmpty(factory);
    auto ownLabel = label ? std::make_unique<utf8string>(label) : nullptr;
    const _Point3f ownLocation = location;
    if (TeskMapBlip* namesake = FindBlip(ownName.c_str())) {
        const ElementWatch self(*this);
        Leave(*namesake);
        DeleteChild(namesake);
        if (!self.Exists())
            return 0;
    }

    TeskMapBlip* blip = NewBlip(ownName.c_str(), ownTemplate.c_str(), ownFactory.c_str());
    if (!blip)
        return 0;

    blip->Width = size;
    blip->Height = size;
    blip->Label = std::move(ownLabel);
    blip->Location = ownLocation;
    return Enter(*blip, std::move(ownName)) ? blip->ID : 0;
} catch (...) {
    return 0; // no memory
}

// Another one that has come to that name meanwhile loses it. False: there was no memory, and the blip is gone.
bool TeskMap::Enter(TeskMapBlip& blip, utf8string name)
{
    try {
        BlipsByID.Enter(blip.ID, blip);
        const auto [entry, isNew] = BlipsByName.try_emplace(std::move(name), &blip);
        if (!isNew)
            BlipsByID.Leave(std::exchange(entry->second, &blip)->ID);
        blip.m_Entry = entry;
        ++BlipCount;
        return true;
    } catch (...) {
        BlipsByID.Leave(blip.ID);
        DeleteChild(&blip);
        return false;
    }
}

// True if it was there.
bool TeskMap::Leave(TeskMapBlip& blip)
{
    if (!BlipsByID.Leave(blip.ID))
        return false;

    BlipsByName.erase(blip.m_Entry);
    return true;
}

void TeskMap::Forget(TeskMapBlip& blip)
{
    const ElementWatch self(*this);
    if (HoverBlip == blip.ID)
        BlipHoverStop(&blip);
    if (self.Exists() && Leave(blip))
        --BlipCount;
}

void TeskMap::RemoveBlip(unsigned int id)
{
    TeskMapBlip* blip = BlipsByID.Find(id);
    if (!blip)
        return;

    Leave(*blip);
    --BlipCount;
    DeleteChild(blip);
}

// Blips that are added by the end of others are deleted too. So that this comes to an end, what they add in their turn
// is refused.
void TeskMap::ClearBlips()
{
    const ElementWatch self(*this);
    const u32 firstNewID = g_UIManager.NextElementID;
    const bool tookBlips = m_TakesBlips;
    std::size_t place = 0;
    while (place < BlipsByID.Places()) {
        const auto [id, blip] = BlipsByID.At(place++);
        if (!blip)
            continue;

        m_TakesBlips = tookBlips && id < firstNewID;
        DeleteChild(blip);
        if (!self.Exists())
            return;
        if (BlipsByID.Find(id) == blip)
            Leave(*blip); // it could not be deleted
        place = BlipsByID.PlaceBehind(id);
    }
    m_TakesBlips = tookBlips;
    BlipCount = 0;
}

void TeskMap::UpdateBlip(unsigned int id, const _Point3f& location)
{
    if (TeskMapBlip* blip = BlipsByID.Find(id))
        blip->Location = location;
}

void TeskMap::UpdateBlipLabel(unsigned int id, const char* label)
try {
    if (TeskMapBlip* blip = BlipsByID.Find(id))
        blip->Label = label ? std::make_unique<utf8string>(label) : nullptr;
} catch (...) {
    return; // no memory
}

void TeskMap::UpdateBlipSize(unsigned int id, unsigned int size)
{
    TeskMapBlip* blip = BlipsByID.Find(id);
    if (!blip)
        return;

    blip->Width = size;
    blip->Height = size;
}

TeskMapBlip* TeskMap::NewBlip(const char* name, const char* templateName, const char* factory)
{
    if (IsEmpty(templateName) && BlipTemplate)
        templateName = BlipTemplate->c_str();
    if (IsEmpty(factory))
        factory = BlipFactory;

    const ElementWatch self(*this);
    const u32 firstNewID = g_UIManager.NextElementID;
    TeskElement* made = IsEmpty(templateName)
        ? g_UIManager.LoadElement(this, factory, name)
        : g_UIManager.LoadElement(this, factory, name, g_UIManager.FindTemplate(templateName), nullptr);
    if (!self.Exists())
        return nullptr;

    auto* blip = KeepMade<TeskMapBlip>(made, name, firstNewID);
    if (!blip)
        return nullptr;

    const ElementWatch watch(*blip);
    blip->MoveZTop(false);
    return watch.Exists() ? blip : nullptr;
}

TeskMapBlip* TeskMap::FindBlip(const char* name)
{
    const auto entry = BlipsByName.find(std::string_view(TextOrEmpty(name)));
    return entry == BlipsByName.end() ? nullptr : entry->second;
}

TeskMapBlip* TeskMap::FirstBlip() const
{
    return BlipsByName.empty() ? nullptr : BlipsByName.begin()->second;
}

TeskMapBlip* TeskMap::NextBlip(const TeskMapBlip& blip) const
{
    if (BlipsByID.Find(blip.ID) != &blip)
        return nullptr;

    const BlipsOfNames::const_iterator next = std::next(blip.m_Entry);
    return next == BlipsByName.end() ? nullptr : next->second;
}
