#include "tests/fuzz/EventScene.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/EventNames.h"
#include "teskara/element/TeskScreen.h"
#include "tests/fuzz/EventHost.h"
#include "tests/fuzz/HostileActs.h"
#include "tests/fuzz/MemoryFile.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// What any kind may read; kinds pass over what is not theirs.
constexpr char Values[] =
    "<BackgroundColor>ff101010</BackgroundColor><Border>2</Border><BorderColor>ffffffff</BorderColor>"
    "<Text>a ${x} b</Text><Wrap>1</Wrap><AutoTooltip>${hint}</AutoTooltip><Command>c</Command>"
    "<CommandChecked>d</CommandChecked><Console>e</Console><Data>${n}</Data><Group>g</Group>"
    "<Range>50</Range><VariableRange>2</VariableRange><Offset>0.5</Offset>"
    "<HandleTexture Filename='#fill'/><TopTexture Filename='#fill'/>"
    "<Filler><Width>60</Width><Height>50%</Height><Repeat>3</Repeat><Texture Filename='#fill'><right>9</right>"
    "</Texture></Filler><Slider><Width>20</Width><Height>60</Height><Range>50</Range><OnChange>0</OnChange></Slider>"
    "<UpButton><X>30</X><Width>20</Width><Height>20</Height></UpButton>"
    "<DownButton><X>30</X><Y>30</Y><Width>20</Width><Height>20</Height></DownButton>"
    "<ScrollBar><Width>12</Width><Height>100%</Height><Slider><Width>12</Width><Height>100%</Height>"
    "<OnChange>0</OnChange></Slider></ScrollBar><ListBox Template='all'/><FullHeight>160</FullHeight>"
    "<ButtonWidth>20</ButtonWidth><ButtonTexture Filename='#fill'/><SelectionColor>80ffffff</SelectionColor>"
    "<Items><item Value='9'>row 1</item><item Value='10' Default='1'>c</item><item>${x}</item><item>b</item>"
    "<item>c</item><item>d</item><item>e</item><item Color='ff'>f</item></Items>"
    "<Resizable MinWidth='9' MinHeight='9'/><CloseButton/><MinimizeButton/><TitleBar Template='few'><Width>60</Width>"
    "<Height>20</Height><Children><text name='Title' Template='few'/><button name='Minimize' Template='few'>"
    "<X>20</X><Width>20</Width><Height>20</Height></button><button name='Close' Template='few'><X>40</X>"
    "<Width>20</Width><Height>20</Height></button></Children></TitleBar>"
    "<Client Template='few'><Y>20</Y><Width>100%</Width><Height>r20</Height></Client>"
    "<VerticalScrollBar><X>60</X><Width>12</Width><Height>100%</Height><Slider><Width>12</Width><Height>100%</Height>"
    "<Vertical/><OnChange>0</OnChange></Slider></VerticalScrollBar>"
    "<TabHeight>16</TabHeight><TabBorder>1</TabBorder><TabTexture Filename='#fill'/>"
    "<TabSelectedTexture Filename='#camera'/><FrameTexture Filename='#fill'/><FrameBorder>1</FrameBorder>"
    "<LeftTexture Filename='#fill'/><RightButton Template='few'/><Tabs><Tab Name='a'>"
    "<frame name='in' Template='few'><Width>30</Width><Height>30</Height></frame>"
    "<slider name='s' Template='few'><Width>100%</Width><Height>20</Height></slider></Tab><Tab Name='c'/>"
    "<Tab Name='in'><button name='l' Template='few'><Width>50</Width><Height>r10</Height></button></Tab></Tabs>"
    "<MapSizeX>100</MapSizeX><MapSizeY>80</MapSizeY><ShowLabels/><BlipTemplate>all</BlipTemplate>"
    "<ItemHeight>10</ItemHeight><IndentPerDepth>8</IndentPerDepth><ImageSize>8</ImageSize>"
    "<ImageTexture Filename='#fill'/><ImageTextureCollapsed Filename='#camera'/>"
    "<Template>all</Template><StorePosition>1</StorePosition><FadeDuration>40</FadeDuration><FadeAlpha>0.5</FadeAlpha>";

// What a table reads from its own markup alone.
constexpr char TableRows[] =
    "<Row><Cell RowSpan='2'><Width>30</Width><Children><slider name='s' Template='few'><Width>100%</Width></slider>"
    "</Children></Cell><Cell ColSpan='2'/></Row><Row><Cell><Height>50%</Height></Cell><Cell ColSpan='2'/></Row>";

std::string Tag(const char* name, const std::string& value)
{
    return std::string("<") + name + ">" + value + "</" + name + ">";
}

std::string Place(int x, int y, int width, int height)
{
    return Tag("X", std::to_string(x)) + Tag("Y", std::to_string(y)) + Tag("Width", std::to_string(width))
        + Tag("Height", std::to_string(height));
}

bool IsOfFew(std::string_view event)
{
    constexpr std::string_view few[] = {
        "OnUnload", "OnLeftClick", "OnLeftDown", "OnMouseEnter", "OnRender", "OnChange"};
    return std::find(std::begin(few), std::end(few), event) != std::end(few);
}

// The templates of the elements of a scene, with a script for every event or for few, and that of what they are made of.
std::string TemplateMarkup()
{
    std::string events;
    std::string few;
    int number = EventHost::FirstEvent;
    for (const char* event : EventNames()) {
        const std::string script = Tag(event, std::to_string(number++));
        events += script;
        if (IsOfFew(event))
            few += script;
    }
    return "<Template name='all'>" + events + Values + "</Template><Template name='some'>" + few + Values
        + "</Template><Template name='few'>" + few + "</Template>";
}

// Bits of the seed make some of the elements hidden, thin, textured, fading, upright or always on top.
std::string Variation(u8 bits)
{
    std::string text;
    if (bits % 8 == 3)
        text += Tag("Visible", "0");
    if (bits % 4 == 1)
        text += "<Texture Filename='#camera'/><TexturePressed Filename='#fill'/>";
    if (bits % 5 == 2)
        text += Tag("FadeDelay", "30");
    if (bits % 7 == 4)
        text += Tag("AlwaysOnTop", "1");
    if (bits % 3 == 2)
        text += Tag("UpdateInterval", "2");
    if (bits % 6 == 5)
        text += Tag("Vertical", "1") + Tag("Repeat", "-1");
    if (bits % 5 == 1)
        text += Tag("SelectMultiple", "1") + Tag("Sort", "User");
    if (bits % 5 == 3)
        text += Tag("Sort", "Text") + Tag("Draggable", "1");
    if (bits % 6 == 1)
        text += Tag("ClickFocus", "in") + Tag("Title", "${x}") + Tag("Locked", bits % 4 == 3 ? "1" : "0");
    return text;
}

std::string SmallElement(const std::string& kind, const std::string& name, const std::string& inside)
{
    return "<" + kind + " name='" + name + "' Template='few'>" + inside + "</" + kind + ">";
}

// What all scenes share. It is loaded once: reading it takes more time than an input has.
std::string LookMarkup()
{
    return "<Tesk><Skin name='a'><SkinTemplate Base='frame' Skin='all'/></Skin>" + TemplateMarkup() + "</Tesk>";
}

// A small file, for scripts to load.
std::string PartMarkup()
{
    const std::string text = SmallElement("text", "words", Place(0, 0, 20, 20));
    return "<Tesk>" + SmallElement("frame", "part", Place(20, 20, 60, 60) + "<Children>" + text + "</Children>")
        + SmallElement("button", "frame", Place(100, 20, 60, 60)) + "</Tesk>";
}

// The kinds of which elements can be made, in the order of their names.
std::vector<std::string> StandingKinds()
{
    std::set<std::string> kinds;
    XMLNode* values = g_UIManager.FindTemplate("all");
    for (const auto& [name, factory] : g_UIManager.Factories) {
        const std::string kind(name.Text());
        g_UIManager.LoadElement(g_UIManager.Screen, kind.c_str(), "trial", values, nullptr);
        TeskElement* element = g_UIManager.FindElement("trial"); // a window gives its client back
        if (!element)
            continue;
        kinds.insert(kind);
        g_UIManager.Screen->DeleteChild(element);
    }
    return {kinds.begin(), kinds.end()};
}

// The template and the skin are as they were; if an earlier input touched them they are loaded again.
void RestoreLook(EventHost& host)
{
    static const MemoryFile file;
    static const std::string look = LookMarkup();
    static bool isLoaded = false;
    if (!HaveTemplatesChanged() && isLoaded)
        return;

    file.Write(look.data(), look.size());
    host.File = file.Path();
    g_UIManager.ClearTemplates();
    g_UIManager.LoadInterfaceXML("f", true, nullptr);
    isLoaded = true;
}

// Up to three elements side by side, or each in the one before.
std::string SceneMarkup(Decisions& bytes)
{
    static const std::vector<std::string> kinds = StandingKinds();
    const u8 count = bytes.Next();
    const char* look = (count & 0x40u) != 0 ? "' Template='some'>" : "' Template='all'>";
    std::string markup;
    std::string ends;
    for (int number = 0; number <= count % 3; ++number) {
        const u8 choice = bytes.Next();
        const std::string& kind = kinds[(choice & 0x3fu) % kinds.size()];
        const bool isInside = number > 0 && choice >= 0x80;
        if (!isInside)
            markup += std::exchange(ends, "");
        markup += "<" + kind + " name='" + kind + look + Variation(bytes.Next())
            + (isInside ? Place(10, 10, 150, 120) : Place(number % 2 * 250 + 5, number / 2 * 200 + 5, 200, 160));
        if (kind == "table")
            markup += TableRows;
        markup += "<Children>";
        if ((choice & 0x40) != 0)
            markup += SmallElement("frame", "in", Place(10, 10, 30, 30));
        ends.insert(0, "</Children></" + kind + ">");
    }
    return "<Tesk>" + markup + ends + (count >= 0x80 ? "<tooltip name='Auto Tooltip'/>" : "") + "</Tesk>";
}

} // namespace

void SetUpEventScene(EventHost& host, Decisions& bytes)
{
    static const MemoryFile scene;
    static const MemoryFile part;
    RestoreLook(host);
    if (host.Part.empty()) {
        const std::string markup = PartMarkup();
        part.Write(markup.data(), markup.size());
        host.Part = part.Path();
    }
    const std::string markup = SceneMarkup(bytes);
    scene.Write(markup.data(), markup.size());
    host.File = scene.Path();
}
