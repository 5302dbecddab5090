#pragma once

#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

class MarkupSource;
class TeskListBox;

// Shows one row of a list, and drops the list under itself when it is clicked. While it is open it is as high as both
// together and is searched first for the mouse; its face keeps its size. It closes when it is clicked again, when a row
// is picked, and when something else is pressed.
class TESKARA_EXPORT TeskComboBox : public TeskElement
{
public:
    using TeskElement::TeskElement;
    ~TeskComboBox() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    void OnLMouseDownOther(TeskElement* taker) override;
    MvTypeDefinition* GetMvType() override;

    std::unique_ptr<TeskTexture> Texture; // of the face without its button
    std::unique_ptr<TeskTexture> ButtonTexture;
    std::unique_ptr<TeskFont> Font;
    u32 Border = 0;
    u32 FullHeight = 0; // while it is open; must exceed ClosedHeight
    u32 ButtonWidth = 0;
    ScriptPointer OnSelect; // hears the id that shows, 0 for none
    TeskListBox* List = nullptr; // a child
    bool Down = false; // the list is open
    u32 ClosedHeight = 0; // of the face
    u32 Selection = 0; // id of the row that shows; 0 for none

private:
    bool LoadList(const MarkupSource& source);
    void PlaceList();
    void Open();
    void Close();
    void DrawFace();
    void DrawSelection();
};
