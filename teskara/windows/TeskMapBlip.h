#pragma once

#include "teskara/controls/TeskFrame.h"
#include "teskara/element/TeskFont.h"

#include <map>
#include <memory>

class TeskMap;
class TeskMapBlip;
class TeskTooltip;

// Blips by the names that they were added under; names differ by their bytes, and are in the order of these.
using BlipsOfNames = std::map<utf8string, TeskMapBlip*, std::less<>>;

// A point of the world on a map: a small frame with a label to its right. The map shows, hides and moves it. One that
// lies elsewhere is a frame and no more.
class TESKARA_EXPORT TeskMapBlip : public TeskFrame
{
public:
    using TeskFrame::TeskFrame;
    ~TeskMapBlip() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void Render() override;
    void OnMouseEnter(_Point2i& point) override;
    void OnMouseExit(TeskElement* next) override;
    MvTypeDefinition* GetMvType() override;

    // Has a script fill the tooltip. False: there is none. Afterwards the blip may be gone, and the tooltip too.
    virtual bool SetTooltip(TeskTooltip* tooltip);

    // The map that the blip lies in; null: it lies elsewhere, or the map is being destroyed.
    TeskMap* Map() const;

    ScriptPointer OnSetTooltip; // given up after the font
    std::unique_ptr<TeskFont> Font; // of the label
    _Point3f Location; // in the world
    std::unique_ptr<utf8string> Custom; // whatever a script wants to keep; null for nothing
    std::unique_ptr<utf8string> Label; // null for none

private:
    friend class TeskMap;

    BlipsOfNames::iterator m_Entry; // while the map knows the blip
};
