#include "teskara/script/TopLevelObjects.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/MvTypeVar.h"
#include "teskara/script/TypeGlobals.h"

namespace {

// UIElement[name] and UIElement[id]. An id is looked up afresh: the way to hold an element for longer than one use.
bool UIElementObject(const Arguments& arguments, _MvTypeVar& result)
{
    if (arguments.Count() == 0)
        return false;

    TeskElement* element = arguments.IsNumber(0) ? g_UIManager.FindElementByID(static_cast<u32>(arguments.Integer(0)))
                                                 : g_UIManager.FindElement(arguments.Text(0));
    if (!element)
        return false;

    const ElementWatch watch(*element);
    result.Value.Object = element;
    result.Type = element->GetMvType();
    return watch.Exists();
}

// What the user answered to the last dialog of the running script.
bool UserInputObject(const Arguments&, _MvTypeVar& result)
{
    const HostScript* script = Host::GetCurrentScript();
    const char* answer = script ? Host::GetUserInput(*script) : nullptr;
    if (!answer || !pStringType)
        return false;

    result.Value.Text = answer;
    result.Type = pStringType;
    return true;
}

// The toolkit itself. Its value is no object, but must not be null either.
bool TeskaraObject(const Arguments&, _MvTypeVar& result)
{
    result.Value.Unsigned64 = 1;
    result.Type = pTeskaraType;
    return true;
}

// What the host calls. Nothing is thrown to it, not even what a foreign element throws when asked for its type.
template <bool (*Evaluate)(const Arguments&, _MvTypeVar&)>
bool Object(int argc, char** argv, _MvTypeVar& result) noexcept
{
    try {
        return Evaluate(Arguments(argc, argv), result);
    } catch (...) {
        return false;
    }
}

struct ObjectRow {
    const char* Name;
    TopLevelObjectHandler Handler;
};

constexpr ObjectRow Objects[] = {
    {"UIElement", Object<UIElementObject>},
    {"UserInput", Object<UserInputObject>},
    {"Teskara", Object<TeskaraObject>},
};

} // namespace

void RegisterTopLevelObjects()
{
    for (const ObjectRow& row : Objects) {
        if (!g_UIManager.ShuttingDown) // the host may shut the toolkit down in between
            Host::AddTopLevelObject(row.Name, row.Handler);
    }
}

void RemoveTopLevelObjects()
{
    for (const ObjectRow& row : Objects)
        Host::RemoveTopLevelObject(row.Name);
}

std::vector<const char*> TopLevelObjectNames()
{
    std::vector<const char*> names;
    for (const ObjectRow& row : Objects)
        names.push_back(row.Name);
    return names;
}
