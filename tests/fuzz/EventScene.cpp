#include "tests/fuzz/EventScene.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/EventNames.h"
#include "teskara/element/TeskScreen.h"
#include "tests/fuzz/EventHost.h"

#include <set>

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
    "<Resizable MinWidth='9' MinHeight='9'/><CloseButton/><MinimizeButton/><TitleBar Template='all'><Width>60</Width>"
    "<Height>20</Height><Children><text name='Title' Template='all'/><button name='Minimize' Template='all'>"
    "<X>20</X><Width>20</Width><Height>20</Height></button><button name='Close' Template='all'><X>40</X>"
    "<Width>20</Width><Height>20</Height></button></Children></TitleBar>"
    "<Client Template='all'><Y>20</Y><Width>100%</Width><Height>r20</Height></Client>"
    "<VerticalScrollBar><X>60</X><Width>12</Width><Height>100%</Height><Slider><Width>12</Width><Height>100%</Height>"
    "<Vertical/><OnChange>0</OnChange></Slider></VerticalScrollBar>"
    "<TabHeight>16</TabHeight><TabBorder>1</TabBorder><TabTexture Filename='#fill'/>"
    "<TabSelectedTexture Filename='#camera'/><FrameTexture Filename='#fill'/><FrameBorder>1</FrameBorder>"
    "<LeftTexture Filename='#fill'/><RightButton Template='all'/><Tabs><Tab Name='a'>"
    "<frame name='in' Template='all'><Width>30</Width><Height>30</Height></frame>"
    "<slider name='s' Template='all'><Width>100%</Width><Height>20</Height></slider></Tab><Tab Name='c'/>"
    "<Tab Name='in'><listbox name='l' Template='all'><Width>50</Width><Height>r10</Height></listbox></Tab></Tabs>"
    "<MapSizeX>100</MapSizeX><MapSizeY>80</MapSizeY><ShowLabels/><BlipTemplate>all</BlipTemplate>"
    "<ItemHeight>10</ItemHeight><IndentPerDepth>8</IndentPerDepth><ImageSize>8</ImageSize>"
    "<ImageTexture Filename='#fill'/><ImageTextureCollapsed Filename='#camera'/>"
    "<Template>all</Template><StorePosition>1</StorePosition><FadeDuration>40</FadeDuration><FadeAlpha>0.5</FadeAlpha>";

// What an element reads from its own markup alone.
constexpr char OwnValues[] =
    "<Row><Cell RowSpan='2'><Width>30</Width><Children><slider name='s' Template='all'><Width>100%</Width></slider>"
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

std::string TemplateMarkup()
{
    std::string events;
    int number = EventHost::FirstEvent;
    for (const char* event : EventNames())
        events += Tag(event, std::to_string(number++));
    return std::string("<Template name='all'>") + Values + events + "</Template>";
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

std::string ElementMarkup(const std::string& kind, const std::string& name, const std::string& inside)
{
    return "<" + kind + " name='" + name + "' Template='all'>" + inside + "</" + kind + ">";
}

// The kinds of which elements can be made, in the order of their names.
std::set<std::string> StandingKinds()
{
    std::set<std::string> kinds;
    XMLNode* values = g_UIManager.AddTemplate("all", TemplateMarkup().c_str());
    for (const auto& [name, factory] : g_UIManager.Factories) {
        const std::string kind(name.Text());
        g_UIManager.LoadElement(g_UIManager.Screen, kind.c_str(), "trial", values, nullptr);
        TeskElement* element = g_UIManager.FindElement("trial"); // a window gives its client back
        if (!element)
            continue;
        kinds.insert(kind);
        g_UIManager.Screen->DeleteChild(element);
    }
    g_UIManager.ClearTemplates();
    return kinds;
}

} // namespace

std::string EventSceneMarkup(u8 seed)
{
    static const std::set<std::string> kinds = StandingKinds();
    std::string outer;
    std::string inner;
    int count = 0;
    for (const std::string& kind : kinds) {
        const u8 bits = static_cast<u8>(seed * (2 * count + 1));
        const std::string place = Place(count % 8 * 90 + 5, count / 8 * 90 + 5, 80, 80);
        const std::string child = ElementMarkup("frame", "in", Place(10, 10, 30, 30) + Variation(bits));
        outer += ElementMarkup(kind, kind, place + OwnValues + Variation(bits) + "<Children>" + child + "</Children>");
        if ((bits >> 4) % 4 == 0)
            inner += ElementMarkup(kind, kind, place + Variation(static_cast<u8>(bits / 3)));
        ++count;
    }
    return "<Tesk><Skin name='a'><SkinTemplate Base='frame' Skin='all'/></Skin>" + TemplateMarkup() + outer
        + ElementMarkup("frame", "box", Place(0, 200, 800, 400) + "<Children>" + inner + "</Children>")
        + "<tooltip name='Auto Tooltip'/></Tesk>";
}

std::string EventPartMarkup()
{
    const std::string text = ElementMarkup("text", "words", Place(0, 0, 20, 20));
    return "<Tesk>" + ElementMarkup("frame", "part", Place(20, 20, 60, 60) + "<Children>" + text + "</Children>")
        + ElementMarkup("button", "frame", Place(100, 20, 60, 60)) + "</Tesk>";
}
