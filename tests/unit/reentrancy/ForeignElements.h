#pragma once

#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "tests/unit/reentrancy/Bomb.h"

#include <string>

// A class that is not the toolkit's, which calls out from every operation that the toolkit may call: before it does what
// its base does or, where it gives something that was made, after that.
template <class Base> class Foreign : public Base
{
public:
    using Base::Base;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override
    {
        const bool isRead = Base::FromXML(node, templateNode);
        if (isRead)
            Survives("FromXML");
        return isRead;
    }
    TeskTexture* TextureFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override
    {
        return Passing("TextureFromXML", Base::TextureFromXML(node, tag, templateNode));
    }
    TeskFont* FontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override
    {
        return Passing("FontFromXML", Base::FontFromXML(node, tag, templateNode));
    }
    TeskFixedFont* FixedFontFromXML(XMLNode* node, const char* tag, XMLNode* templateNode) override
    {
        return Passing("FixedFontFromXML", Base::FixedFontFromXML(node, tag, templateNode));
    }
    TeskEmbeddedScript* EmbeddedScriptFromXML(
        XMLNode* node, const char* tag, XMLNode* templateNode, const char* arguments) override
    {
        return Passing("EmbeddedScriptFromXML", Base::EmbeddedScriptFromXML(node, tag, templateNode, arguments));
    }
    bool IsTypeOf(const char* word) override { return Survives("IsTypeOf") && Base::IsTypeOf(word); }

    void RecalculateSize(bool recurse) override
    {
        if (Survives("RecalculateSize"))
            Base::RecalculateSize(recurse);
    }
    void RecalculateChildrenSize() override
    {
        if (Survives("RecalculateChildrenSize"))
            Base::RecalculateChildrenSize();
    }
    void SizeRecalculated(bool changed) override
    {
        if (Survives("SizeRecalculated"))
            Base::SizeRecalculated(changed);
    }
    void Render() override
    {
        if (Survives("Render"))
            Base::Render();
    }
    void RenderChildren() override
    {
        if (Survives("RenderChildren"))
            Base::RenderChildren();
    }
    void Show(bool show) override
    {
        if (Survives("Show"))
            Base::Show(show);
    }
    void Center() override
    {
        if (Survives("Center"))
            Base::Center();
    }

    bool OnLMouseUp(_Point2i& point) override { return Survives("OnLMouseUp") && Base::OnLMouseUp(point); }
    bool OnLMouseDown(_Point2i& point) override { return Survives("OnLMouseDown") && Base::OnLMouseDown(point); }
    bool OnRMouseUp(_Point2i& point) override { return Survives("OnRMouseUp") && Base::OnRMouseUp(point); }
    bool OnRMouseDown(_Point2i& point) override { return Survives("OnRMouseDown") && Base::OnRMouseDown(point); }
    bool OnLMouseDoubleClick(_Point2i& point) override
    {
        return Survives("OnLMouseDoubleClick") && Base::OnLMouseDoubleClick(point);
    }
    bool OnRMouseDoubleClick(_Point2i& point) override
    {
        return Survives("OnRMouseDoubleClick") && Base::OnRMouseDoubleClick(point);
    }
    bool OnMouseMove(_Point2i& point) override { return Survives("OnMouseMove") && Base::OnMouseMove(point); }
    bool OnMouseWheel(int offset) override { return Survives("OnMouseWheel") && Base::OnMouseWheel(offset); }
    bool OnKeyUp(unsigned int key) override { return Survives("OnKeyUp") && Base::OnKeyUp(key); }
    bool OnKeyDown(unsigned int key) override { return Survives("OnKeyDown") && Base::OnKeyDown(key); }

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        if (Survives("OnNotify"))
            Base::OnNotify(source, code, value);
    }
    void OnMouseEnter(_Point2i& point) override
    {
        if (Survives("OnMouseEnter"))
            Base::OnMouseEnter(point);
    }
    void OnMouseExit(TeskElement* next) override
    {
        const ElementWatch watch(next);
        if (Survives("OnMouseExit"))
            Base::OnMouseExit(watch.Get());
    }
    void OnKeyboardEnter() override
    {
        if (Survives("OnKeyboardEnter"))
            Base::OnKeyboardEnter();
    }
    void OnKeyboardExit(TeskElement* next) override
    {
        const ElementWatch watch(next);
        if (Survives("OnKeyboardExit"))
            Base::OnKeyboardExit(watch.Get());
    }
    void OnLMouseDownOther(TeskElement* taker) override
    {
        const ElementWatch watch(taker);
        if (Survives("OnLMouseDownOther"))
            Base::OnLMouseDownOther(watch.Get());
    }
    void OnCreate() override
    {
        if (Survives("OnCreate"))
            Base::OnCreate();
    }
    void OnDestroy() override
    {
        if (Survives("OnDestroy"))
            Base::OnDestroy();
    }

    // As a question without an answer once the element has died of it.
    MvTypeDefinition* GetMvType() override { return Survives("GetMvType") ? Base::GetMvType() : nullptr; }
    bool GetStoragePosition(int& x, int& y, unsigned int& width, unsigned int& height) override
    {
        return Survives("GetStoragePosition") && Base::GetStoragePosition(x, y, width, height);
    }
    TeskElement* FindChild(const char* name) override
    {
        return Survives("FindChild") ? Base::FindChild(name) : nullptr;
    }
    bool SetFocus() override { return Survives("SetFocus") && Base::SetFocus(); }
    bool SetMouseOver() override { return Survives("SetMouseOver") && Base::SetMouseOver(); }

    // A host that answers answers with something that lives.
    TeskElement* FindMouseOver(_Point2i& point, TeskElement* skip) override
    {
        const ElementWatch watch(skip);
        if (!Survives("FindMouseOver") || (skip && !watch.Exists()))
            return nullptr;
        return Base::FindMouseOver(point, skip);
    }

    void MoveZUp() override
    {
        if (Survives("MoveZUp"))
            Base::MoveZUp();
    }
    void MoveZDown() override
    {
        if (Survives("MoveZDown"))
            Base::MoveZDown();
    }
    void MoveZTop(bool includeParents) override
    {
        if (Survives("MoveZTop"))
            Base::MoveZTop(includeParents);
    }
    void MoveZBottom() override
    {
        if (Survives("MoveZBottom"))
            Base::MoveZBottom();
    }

protected:
    // False: the element has died of what happened there.
    bool Survives(const char* place) const
    {
        const ElementWatch self(*this);
        const bool isSelf = this->Name == "self";
        g_Bomb.Reach({"virtual ", place, isSelf ? "" : " of the child"});
        return self.Exists();
    }

private:
    template <class Made> Made* Passing(const char* place, Made* made) const
    {
        Survives(place);
        return made;
    }
};

// A kind of its own, as the element under test and as a child of it.
class ForeignElement : public Foreign<TeskElement>
{
public:
    using Foreign::Foreign;

    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnKeyDown(unsigned int key) override;
};

// The parent of the element under test: hears what it tells.
template <class Base> class Listening : public Base
{
public:
    using Base::Base;

    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override
    {
        const ElementWatch self(*this);
        g_Bomb.Reach("notification " + std::to_string(code));
        if (self.Exists())
            Base::OnNotify(source, code, value);
    }
};

// The kinds of such classes, one for each kind of the toolkit and named "foreign" with the word of that, are there from
// the first to the second.
void BeginForeignKinds();
void EndForeignKinds();
