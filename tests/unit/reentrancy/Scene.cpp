#include "tests/unit/reentrancy/Scene.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/EventNames.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/reentrancy/Kinds.h"

#include <string>
#include <strings.h>
#include <vector>

namespace {

constexpr i32 InsideSelf = 15;

const Subject* g_Subject = nullptr;

// Scroll bars take them from their template alone; other kinds pass over them.
constexpr char ScrollBarButtons[] = "<UpButton><X>35</X><Width>10</Width><Height>20</Height></UpButton>"
                                    "<DownButton><X>35</X><Y>20</Y><Width>10</Width><Height>20</Height></DownButton>";

// Of the blips in a map.
constexpr char BlipTemplate[] =
    "<Template name='Blip'><BackgroundColor>ff000000</BackgroundColor><Font/><OnLoad>OnLoad of a blip</OnLoad>"
    "<OnUnload>OnUnload of a blip</OnUnload><OnRender>OnRender of a blip</OnRender>"
    "<OnSetTooltip>OnSetTooltip</OnSetTooltip><OnMouseEnter>OnMouseEnter of a blip</OnMouseEnter>"
    "<OnMouseExit>OnMouseExit of a blip</OnMouseExit></Template>";

// A sibling that is high enough to be hit where the scene is empty else.
std::string SiblingMarkup(const char* name, int x)
{
    return std::string("<frame name='") + name + "'><X>" + std::to_string(x)
        + "</X><Y>0</Y><Width>20</Width><Height>90</Height><BackgroundColor>ff000000</BackgroundColor></frame>";
}

// What stands in the element under test. The unknown kind and the script that does not compile make the load print
// lines.
std::string ChildrenMarkup()
{
    return std::string("<Children><frame name='Child'><Width>3</Width><Height>r40</Height><OnLeftDown>") + BrokenScript
        + "</OnLeftDown><OnRender>" + ChildPlace
        + "</OnRender></frame><foreign name='Inner'><Y>20</Y><Width>3</Width>"
          "<Height>r30</Height></foreign><unknown name='Nobody'/></Children>";
}

void AddBelow(const TeskElement& element, std::vector<u32>& ids)
{
    for (const TeskElement* child = element.FirstChild; child; child = child->Next) {
        AddBelow(*child, ids);
        ids.push_back(child->ID);
    }
}

bool Dispatch(_MvTypeVar object, const char* method, std::initializer_list<const char*> arguments)
{
    if (!object.Type)
        return false;

    std::vector<std::string> texts(arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& text : texts)
        argv.push_back(text.data());
    return object.Type->DispatchMethod(object.Value, method, static_cast<int>(argv.size()), argv.data())
        != DispatchUnknown;
}

_MvTypeVar AsObject(TeskElement* element)
{
    _MvTypeVar object;
    const ElementWatch watch(element);
    MvTypeDefinition* type = element ? element->GetMvType() : nullptr;
    if (watch.Exists()) {
        object.Type = type;
        object.Value.Object = element;
    }
    return object;
}

bool Ask(TeskElement* element, const char* member, _MvTypeVar& result)
{
    const _MvTypeVar object = AsObject(element);
    return object.Type && object.Type->DispatchMember(object.Value, member, 0, nullptr, result) == DispatchDone;
}

} // namespace

TeskElement* Self()
{
    return g_UIManager.FindElement(SelfName);
}

void ChooseSubject(const Subject& subject)
{
    g_Subject = &subject;
}

void PrepareSubject()
{
    if (g_Subject->Row->Prepare)
        g_Subject->Row->Prepare(g_Subject->Word.c_str());
}

std::string SceneMarkup(const Subject& subject)
{
    std::string look = "<Template name='Look'><Width>50</Width><StorePosition>1</StorePosition>";
    for (const char* event : EventNames())
        look += std::string("<") + event + ">" + event + "</" + event + ">";
    look += std::string(ScrollBarButtons) + "</Template><Template name='Deep'/>" + BlipTemplate;

    const Kind& kind = *subject.Row;
    const std::string& word = subject.Word;
    const std::string parent = kind.Parent;
    const std::string self = subject.Has(IsMade) ? std::string()
                                                 : "<" + word
            + " name='Self' Template='Look'><X>10</X><Y>10</Y><Height>r50</Height>"
              "<BackgroundColor>ff000000</BackgroundColor><AutoTooltip>${hint}</AutoTooltip><FadeDelay>5</FadeDelay>"
            + kind.Markup + ChildrenMarkup() + "</" + word + ">";
    return look
        + "<frame name='Grand'><Width>100%</Width><Height>100</Height><Children>"
          "<"
        + parent + " name='Parent'><Width>100</Width><Height>100</Height><Children>" + SiblingMarkup("Elder", 60) + self
        + SiblingMarkup("Younger", 80) + "</Children></" + parent + "></Children></frame><tooltip name='" + TooltipName
        + "'><OnRender>" + TooltipPlace + "</OnRender></tooltip>";
}

std::string PartMarkup()
{
    return "<frame name='Part'><Children><text name='Words'><Text>x</Text></text></Children></frame>";
}

bool LoadScene()
{
    return g_UIManager.LoadInterfaceXML(SceneFile, true, g_UIManager.FindSkin("Dark"));
}

bool Delete(const char* name)
{
    TeskElement* element = g_UIManager.FindElement(name);
    return element && DeleteByID(element->ID);
}

bool DeleteByID(u32 id)
{
    TeskElement* element = g_UIManager.FindElementByID(id);
    if (!element || !element->Parent)
        return false;

    element->Parent->DeleteChild(element);
    return true;
}

bool DeletePart(const char* name)
{
    for (TeskElement* child = Self() ? Self()->FirstChild : nullptr; child; child = child->Next) {
        if (strcasecmp(child->Name.c_str(), name) == 0)
            return DeleteByID(child->ID);
    }
    return false;
}

std::vector<u32> PartsOfSelf(bool ofParts)
{
    std::vector<u32> parts;
    for (const TeskElement* child = Self() ? Self()->FirstChild : nullptr; child; child = child->Next) {
        if (ofParts)
            AddBelow(*child, parts);
        else
            parts.push_back(child->ID);
    }
    return parts;
}

void MoveTo(i32 x, i32 y)
{
    _Point2i point = {x, y};
    g_UIManager.OnMouseMove(point);
}

void PressLeft()
{
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
}

void PressRight()
{
    g_UIManager.OnRMouseDown();
    g_UIManager.OnRMouseUp();
}

void Aim()
{
    MoveTo(InsideSelf, InsideSelf);
    ShowSelf();
}

void ShowSelf()
{
    if (Self())
        Self()->Show(true);
}

bool FocusSelf()
{
    ShowSelf();
    TeskElement* self = Self();
    if (self)
        g_UIManager.SetFocusElement(self);
    return self != nullptr;
}

bool FocusYounger()
{
    TeskElement* younger = g_UIManager.FindElement(YoungerName);
    if (younger)
        g_UIManager.SetFocusElement(younger);
    return younger != nullptr;
}

bool Tell(TeskElement* element, const char* method, std::initializer_list<const char*> arguments)
{
    return Dispatch(AsObject(element), method, arguments);
}

bool AskSelf(const char* member, _MvTypeVar& result)
{
    return Ask(Self(), member, result);
}

bool TellPart(
    TeskElement* element, const char* member, const char* method, std::initializer_list<const char*> arguments)
{
    _MvTypeVar part;
    return Ask(element, member, part) && Dispatch(part, method, arguments);
}
