#pragma once

#include "teskara/windows/MapDisplay.h"
#include "teskara/windows/TeskMapBlip.h"

#include <memory>

// Points of a world as small frames, the way a radar shows them. Before each frame the map hides the blips that lie
// outside of its box or circle and places the others.
//
// Blips are known by id, which is the element's, and by name. A blip that markup put into the map, or that NewBlip made,
// is one of its children like any other until AddBlip adds one. What runs scripts may end any blip, and the map.
class TESKARA_EXPORT TeskMap : public MapDisplay
{
public:
    using MapDisplay::MapDisplay;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    MvTypeDefinition* GetMvType() override;

    // The mouse has come to a blip, whose script fills the tooltip; or it has left it, and the tooltip goes.
    virtual void BlipHover(TeskMapBlip* blip, _Point2i& point);
    virtual void BlipHoverStop(TeskMapBlip* blip);

    // Adds a blip, in place of one of that name, and returns its id; 0 if it could not be made. A null name is an empty
    // one, and there is no blip without a name. Label, template and factory may be null. May run scripts.
    virtual unsigned int AddBlip(const char* name, const _Point3f& location, unsigned int size, const char* label,
        const char* templateName, const char* factory);

    // These two may run scripts. Blips that are added while all are deleted are deleted too.
    virtual void RemoveBlip(unsigned int id);
    virtual void ClearBlips();

    // An id that is not known does nothing.
    virtual void UpdateBlip(unsigned int id, const _Point3f& location);
    virtual void UpdateBlipLabel(unsigned int id, const char* label);
    virtual void UpdateBlipSize(unsigned int id, unsigned int size);

    // Makes a blip that is not added yet. Without a template, or a factory, the map's own is taken. Null if it could not
    // be made: the name is taken by a child, or the factory makes something else. May run scripts.
    virtual TeskMapBlip* NewBlip(const char* name, const char* templateName, const char* factory);

    // Null: there is none of that name, to the byte.
    virtual TeskMapBlip* FindBlip(const char* name);

    // Show, hide and place the blips. A size of 0 becomes 1, but for the width of a box.
    virtual void UpdateRadius();
    virtual void UpdateBox();

    // The blip of the first name, and of the next one after that of a blip. Null: there is none.
    TeskMapBlip* FirstBlip() const;
    TeskMapBlip* NextBlip(const TeskMapBlip& blip) const;

    // Called by the end of a blip in the map.
    void Forget(TeskMapBlip& blip);

    char BlipFactory[64] = "mapblip"; // the kind that NewBlip makes
    std::unique_ptr<utf8string> BlipTemplate; // of new blips; null or empty for none
    BlipOrder<TeskMapBlip> BlipsByID;
    BlipsOfNames BlipsByName; // the same blips
    u32 BlipCount = 0; // too high by one for each blip that another one of its name replaced

private:
    bool Enter(TeskMapBlip& blip, utf8string name);
    bool Leave(TeskMapBlip& blip);

    bool m_TakesBlips = true;
};
