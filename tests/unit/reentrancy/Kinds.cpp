#include "tests/unit/reentrancy/Kinds.h"

#include "teskara/collections/TeskTree.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/text/TeskTextEdit.h"
#include "teskara/windows/TeskMap.h"
#include "teskara/windows/TeskMapView.h"
#include "tests/unit/reentrancy/MadeKinds.h"
#include "tests/unit/reentrancy/Scene.h"

#include <ostream>

namespace {

constexpr u64 SendsPresses = Sends(1) | Sends(6) | Sends(7) | Sends(8) | Sends(10) | Sends(11) | Sends(15);
constexpr u64 Follows = FollowsMouse | FollowsHeldMouse;
constexpr u64 PassesOn = Sends(51); // what others have to say of themselves
constexpr u64 IsFrame = Follows | PassesOn | SendsPresses | Sends(14) | HasTexture | SetsTexture;
constexpr u64 IsText = Follows | PassesOn | ExpandsText | SetsText | HasFont;
constexpr u64 IsPressed = Follows | PassesOn | Sends(1) | Sends(6) | EvaluatesText | SetsText | HasFont | HasTexture;
constexpr u64 IsButton = IsPressed | SetsTexture;
constexpr u64 IsCheckBox = IsPressed | SetsCheck;
constexpr u64 IsHudElement = FollowsHeldMouse | PassesOn | EvaluatesText | SetsText | HasFont;
constexpr u64 IsGauge = IsFrame | HasValue | HasParts;
constexpr u64 IsSlider = Follows | PassesOn | Sends(4) | RunsOnChange | HasHandle | HasValue | HasTexture;
constexpr u64 IsVariableSlider = IsSlider | EvaluatesText | ExpandsText;
constexpr u64 IsScrollBar = Follows | Sends(4) | RunsOnChange | HasButtons | HasValue | HasParts;
constexpr u64 IsListBox = HasCollection | Follows | Sends(9) | Sends(12) | Sends(13) | RunsOnSelect | PressSelects
    | HasRows | NamesRows | ScriptsScroll | HasFont | HasTexture | HasParts | HoldsParts;
constexpr u64 IsTree = HasCollection | Follows | Sends(11) | RunsOnSelect | PressSelects | HasNodes | ScriptsScroll
    | HasFont | HasTexture | SetsTexture | HasParts | HoldsParts;
constexpr u64 IsComboBox = HasCollection | Follows | Sends(9) | RunsOnSelect | DropsList | FocusedByPress | NamesRows
    | HasFont | HasTexture | HasParts | HoldsParts;
constexpr u64 IsField =
    HasCollection | Follows | PassesOn | Sends(3) | TakesKeys | EditsText | FocusedByPress | SetsText | HasTexture;
constexpr u64 IsTextEdit = HasCollection | Follows | Sends(7) | Sends(8) | Sends(10) | Sends(11) | EditsLines
    | EditsText | ClearsLines | FocusedByPress | ScriptsScroll | SetsText | HasFont | HasParts | HoldsParts;
constexpr u64 IsConsole = HasCollection | FollowsHeldMouse | HasLines | ClearsLines | HasFont | HasTexture | SetsTexture
    | HasParts | HoldsParts;
constexpr u64 ShowsBlips = HasCollection | Follows | PassesOn | HoversBlips | HasParts;
constexpr u64 IsTooltip =
    HasCollection | PassesOn | SendsPresses | ExpandsText | SetsLines | KnowsReset | HasFont | HasTexture | SetsTexture;
constexpr u64 IsTabControl = HasCollection | Follows | PassesOn | HasTabs | LoadsParts | UnloadsParts | HasFont
    | SetsTexture | HasParts | HoldsParts;
constexpr u64 IsWindow =
    Follows | Sends(11) | HasTitleBar | LoadsParts | KnowsReset | HasTexture | SetsTexture | HoldsParts;
constexpr u64 IsMenu = IsMade | HasCollection | HasTexture | SetsTexture;
constexpr u64 IsDialog = IsMade | HasTitleBar | HoldsParts | HasTexture | SetsTexture;
constexpr u64 IsTable = IsFrame | HasCells | LoadsParts | UnloadsParts | HasParts | HoldsParts;

constexpr char FrameMarkup[] = "<Texture Filename='#camera'/><Border>1</Border>";
constexpr char TextMarkup[] = "<Wrap>1</Wrap><Text>${words}</Text>";
constexpr char ButtonMarkup[] = "<Text>${words}</Text><Texture Filename='#a'/><TexturePressed Filename='#b'/>"
                                "<TextureHover Filename='#c'/><Border>1</Border>";
constexpr char CheckBoxMarkup[] = "<Text>${words}</Text><Texture Filename='#a'/><TextureChecked Filename='#b'/>"
                                  "<TextureCheckedHover Filename='#c'/>";
constexpr char HudMarkup[] = "<Text>${words}</Text><Group>a</Group>";
constexpr char CommandMarkup[] =
    "<Text>${words}</Text><Texture Filename='#a'/><Console>Status</Console><Command>check</Command>"
    "<CommandChecked>uncheck</CommandChecked><Data>${number}</Data>";

// What they are made of lies away from where the mouse goes.
constexpr char GaugeMarkup[] =
    "<Texture Filename='#a'/><TopTexture Filename='#b'/><Border>1</Border><Range>10</Range><Data>${number}</Data>"
    "<Filler><X>30</X><Width>10</Width><Height>100%</Height><Repeat>3</Repeat><Texture Filename='#c'><right>9</right>"
    "</Texture></Filler>";
constexpr char SliderMarkup[] = "<Texture Filename='#a'/><HandleTexture Filename='#b'/><Range>100</Range>"
                                "<Data>number</Data><VariableRange>1</VariableRange>";
constexpr char ScrollBarMarkup[] = "<Range>100</Range><Slider><X>20</X><Width>10</Width><Height>50</Height><Vertical/>"
                                   "<Range>100</Range><OnChange>OnChange</OnChange></Slider>";

// Three of the five rows show, and the first is selected.
constexpr char ListBoxMarkup[] =
    "<Texture Filename='#a'/><Border>1</Border><Sort>User</Sort><OnSelect>OnSelect</OnSelect>"
    "<OnDeSelect>OnDeSelect</OnDeSelect><ScrollBar><Width>10</Width><Height>100%</Height><Slider><Width>10</Width>"
    "<Height>100%</Height><Vertical/><OnChange>OnChange</OnChange></Slider></ScrollBar>"
    "<Items><item Default='1'>a</item><item>b</item><item>c</item><item>d</item><item>e</item></Items>";
constexpr char ComboBoxMarkup[] =
    "<Texture Filename='#a'/><FullHeight>90</FullHeight><OnSelect>OnSelect</OnSelect><ListBox><ScrollBar>"
    "<Width>10</Width><Slider><OnChange>OnChange</OnChange></Slider></ScrollBar></ListBox>"
    "<Items><item Default='1'>a</item><item>b</item><item>c</item><item>d</item></Items>";

// Of the three tabs the second is cut, and the first is shown by the first frame.
constexpr char TabControlMarkup[] =
    "<TabHeight>10</TabHeight><Draggable/><TabTexture Filename='#a'/><TabSelectedTexture Filename='#b'/>"
    "<FrameTexture Filename='#c'/><LeftTexture Filename='#d'/><OnSelect>OnSelect</OnSelect><Tabs><Tab Name='a'>"
    "<frame name='In'><Width>3</Width><OnLoad>OnLoad of a part</OnLoad><OnUnload>OnUnload of a part</OnUnload>"
    "<OnRender>OnRender of a part</OnRender></frame><foreign name='Inside'><Width>3</Width><Height>r30</Height>"
    "</foreign></Tab><Tab Name='b'/><Tab Name='c'/></Tabs>";

// Four of the six rows show; from where the mouse goes they have their texts.
constexpr char TreeMarkup[] =
    "<Texture Filename='#a'/><ItemHeight>10</ItemHeight><IndentPerDepth>1</IndentPerDepth><ImageTexture Filename='#b'/>"
    "<OnSelect>OnSelect</OnSelect><OnDeSelect>OnDeSelect</OnDeSelect><ScrollBar><X>40</X><Width>10</Width>"
    "<Height>50</Height><Slider><Width>10</Width><Height>50</Height><Vertical/><OnChange>OnChange</OnChange></Slider>"
    "</ScrollBar>";

// The node that is selected lies below the first one.
void PrepareTree(const char*)
{
    auto* tree = dynamic_cast<TeskTree*>(Self());
    for (const char* text : {"a", "b", "c", "d"}) {
        if (tree && tree->Root)
            tree->Root->AddChild(text, 0);
    }
    if (!tree || !tree->Root)
        return;

    TeskTreeNode* first = tree->Root->FirstChild;
    first->AddChild("e", 0)->AddChild("f", 0)->Select();
}

constexpr char TextEntryMarkup[] = "<MaxLength>20</MaxLength><Texture Filename='#a'/><TextureFocused Filename='#b'/>"
                                   "<Border>1</Border><OnChange>OnChange</OnChange>";

constexpr char ConsoleMarkup[] =
    "<Texture Filename='#a'/><Border>1</Border><ScrollBar><Width>10</Width><Slider><Y>20</Y><Width>10</Width>"
    "<Height>20</Height><Vertical/><OnChange>OnChange</OnChange></Slider></ScrollBar>";

// Its rows but the last lie before the seam of the ring.
void PrepareConsole(const char*)
{
    Tell(Self(), "Echo", {"a"});
}

// Blips stand in the middle, away from where the mouse goes.
constexpr char MapMarkup[] = "<MapSizeX>100</MapSizeX><MapSizeY>100</MapSizeY><ShowLabels/>"
                             "<BlipTemplate>Blip</BlipTemplate>";

// The hidden tooltip of Self's blips.
void GiveTooltip()
{
    if (TeskElement* tooltip = g_UIManager.LoadElement(Self(), "tooltip", "Tooltip")) {
        tooltip->Show(false);
        if (Self())
            Self()->OnCreate();
    }
}

void PrepareMap(const char*)
{
    GiveTooltip();
    Tell(Self(), "AddBlip", {"Town", "10", "10", "0", "8", "A label", "Blip"});
    Tell(Self(), "AddBlip", {"Hill", "12", "12", "0", "8", "A label", "Blip"});
}

// The blips are those of a map that is hidden.
void PrepareMapView(const char*)
{
    GiveTooltip();
    auto* map = dynamic_cast<TeskMap*>(g_UIManager.LoadElement(g_UIManager.Screen, "map", "Other"));
    auto* view = dynamic_cast<TeskMapView*>(Self());
    if (map)
        map->Show(false);
    for (const char* name : {"Town", "Hill"}) {
        const u32 id = map ? map->AddBlip(name, {10, 10, 0}, 8, "A label", "Blip", nullptr) : 0;
        TeskMapBlipView* shown = view && id ? view->AddBlipView(map->BlipsByID.Find(id)) : nullptr;
        if (shown)
            shown->BackgroundColor = 0xff000000u;
    }
}

// The client lies away from where the mouse goes, and its children follow its size.
constexpr char WindowMarkup[] =
    "<Texture Filename='#a'/><WidthResizable/><ClickFocus>Field</ClickFocus><TitleBar><Width>40</Width>"
    "<Height>40</Height><BackgroundColor>ff000000</BackgroundColor><OnLoad>OnLoad of a part</OnLoad><Children>"
    "<text name='Title'/><button name='Minimize'><X>20</X><OnUnload>OnUnload of a part</OnUnload></button></Children>"
    "</TitleBar><Client><Width>r47</Width><Height>100%</Height><Children><frame name='Field'>"
    "<OnKeyboardEnter>OnKeyboardEnter of a part</OnKeyboardEnter></frame></Children></Client>";

// Where the mouse goes is the title bar, and yet the mouse finds the window itself.
void PrepareWindow(const char*)
{
    if (Self() && Self()->FirstChild)
        Self()->FirstChild->Show(false);
}

// The first row is empty, since the mouse goes there. The first cell covers four slots, and another finds no room.
constexpr char TableMarkup[] =
    "<Texture Filename='#camera'/><Row/><Row><Cell RowSpan='2' ColSpan='2'><OnLoad>OnLoad of a part"
    "</OnLoad><OnUnload>OnUnload of a part</OnUnload><Children><foreign Name='Inner'/></Children></Cell><Cell/></Row>"
    "<Row><Cell><OnUnload>OnUnload of a part</OnUnload></Cell><Cell/></Row>";

constexpr char CommandEntryMarkup[] = "<MaxLength>20</MaxLength><Texture Filename='#a'/><Console>Status</Console>"
                                      "<CommandHistory>2</CommandHistory><OnChange>OnChange</OnChange>"
                                      "<OnCommand>OnCommand</OnCommand>";

constexpr char TextEditMarkup[] =
    "<Border>1</Border><VerticalScrollBar><X>20</X><Width>10</Width><Height>100%</Height><Slider><Width>10</Width>"
    "<Height>100%</Height><Vertical/><OnChange>OnChange</OnChange></Slider></VerticalScrollBar>";

// The caret stands on the first of some lines.
void PrepareTextEdit(const char*)
{
    if (auto* edit = dynamic_cast<TeskTextEdit*>(Self())) {
        edit->SetText("\nsecond\nthird\nfourth\nlast");
        edit->HandleCtrlHome();
    }
}

// A tooltip is loaded hidden and without lines.
void PrepareTooltip(const char*)
{
    ShowSelf();
    Tell(Self(), "Print", {"${words}\n${words}"});
}

// clang-format off
constexpr Kind Kinds[] = {
    {"frame",           IsFrame,                               FrameMarkup,     nullptr},
    {"text",            IsText,                                TextMarkup,      nullptr},
    {"button",          IsButton,                              ButtonMarkup,    nullptr},
    {"checkbox",        IsCheckBox,                            CheckBoxMarkup,  nullptr},
    {"commandbutton",   IsButton | RunsCommand,                CommandMarkup,   nullptr},
    {"commandcheckbox", IsCheckBox | RunsCommand | Calculates, CommandMarkup,   nullptr},
    {"hudelement",      IsHudElement,                          HudMarkup,       nullptr},
    {"gauge",           IsGauge,                               GaugeMarkup,     nullptr},
    {"variablegauge",   IsGauge | EvaluatesText,               GaugeMarkup,     nullptr},
    {"slider",          IsSlider,                              SliderMarkup,    nullptr},
    {"variableslider",  IsVariableSlider,                      SliderMarkup,    nullptr},
    {"scrollbar",       IsScrollBar,                           ScrollBarMarkup, nullptr},
    {"listbox",         IsListBox,                             ListBoxMarkup,   nullptr},
    {"combobox",        IsComboBox,                            ComboBoxMarkup,  nullptr},
    {"tree",            IsTree,                                TreeMarkup,      PrepareTree},
    {"textentry",       IsField | Sends(5),                    TextEntryMarkup, nullptr},
    {"commandentry",    IsField | EntersLines,                 CommandEntryMarkup, nullptr},
    {"console",         IsConsole,                             ConsoleMarkup,   PrepareConsole},
    {"textedit",        IsTextEdit,                            TextEditMarkup,  PrepareTextEdit},
    {"tabcontrol",      IsTabControl,                          TabControlMarkup, nullptr},
    {"map",             ShowsBlips | HasBlips,                 MapMarkup,       PrepareMap},
    {"mapblip",         IsFrame | HasFont,                     FrameMarkup,     nullptr},
    {"mapview",         ShowsBlips,                            MapMarkup,       PrepareMapView},
    {"tooltip",         IsTooltip,                             FrameMarkup,     PrepareTooltip},
    {"window",          IsWindow,                              WindowMarkup,    PrepareWindow},
    {"table",           IsTable,                               TableMarkup,     nullptr},
    {"tablecell",       IsFrame,                               FrameMarkup,     nullptr},
    {"windowclient",    IsFrame,                               FrameMarkup,     nullptr},
    {"gaugefiller",     IsMade,                                "",              MakeFiller, "listeninggauge"},
    {"mapblipview",     IsMade | HasTexture | SetsTexture,     "",              MakeBlipView, "listeningmapview"},
    {"contextmenu",     IsMenu,                                "",              MakeMenu},
    {"messagebox",      IsDialog,                              "",              MakeMessageBox},
    {"scriptmessagebox", IsDialog,                             "",              MakeMessageBox},
    {"scriptinputbox",  IsDialog,                              "",              MakeInputBox},
    {"foreign",         Follows | PassesOn | IsForeign | Refuses, "",           nullptr},
};
// clang-format on

} // namespace

std::span<const Kind> AllKinds()
{
    return Kinds;
}

// The word of a foreign class is that of its kind with one before it.
std::vector<Subject> AllSubjects()
{
    std::vector<Subject> subjects;
    for (const Kind& kind : Kinds)
        subjects.push_back({&kind, kind.Name, kind.Traits, subjects.size()});
    for (const Kind& kind : Kinds) {
        if ((kind.Traits & IsForeign) == 0)
            subjects.push_back({&kind, std::string("foreign") + kind.Name, kind.Traits | IsForeign, subjects.size()});
    }
    return subjects;
}

void PrintTo(const Subject& subject, std::ostream* stream)
{
    *stream << subject.Word;
}
