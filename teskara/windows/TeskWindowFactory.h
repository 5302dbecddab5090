#pragma once

#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"

// The factory of a kind of window. Markup gives back the window's client, so that what the loader adds next lands in
// there; and null, though the window stands, if it has none. By then the window itself is complete and has told so.
template <class Window, MvTypeDefinition*& WindowType> class TeskWindowFactory : public TeskElementFactory
{
public:
    explicit TeskWindowFactory(const char* name, unsigned int version = TeskaraVersion) { Register(name, version); }
    ~TeskWindowFactory() override { TearDown(); }

    TeskElement* Create(TeskElement* parent, const char* name) override { return Enter(Construct(parent, name)); }

    TeskElement* Create(TeskElement* parent, const char* name, XMLNode* node, const char* templateName) override
    {
        auto* window = static_cast<Window*>(ReadAndEnter(Construct(parent, name), node, templateName));
        if (!window)
            return nullptr;

        const ElementWatch watch(*window);
        window->OnCreate();
        if (watch.Exists())
            TeskElement::RunScript(window->Events.OnLoad);
        return watch.Exists() ? window->Client : nullptr;
    }

    // The script type of the kind; null while there are no types.
    MvTypeDefinition* GetMvType() const { return WindowType; }

private:
    Window* Construct(TeskElement* parent, const char* name)
    {
        return MayCreate(parent) ? New<Window>(GetName(), parent, name) : nullptr;
    }
};
