#include "tests/unit/hostile/Scenario.h"

#include "teskara/element/EventNames.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

namespace {

constexpr int Columns = 8;
constexpr int CellSize = 90;

// What any kind may read; kinds pass over what is not theirs.
constexpr char Values[] =
    "<BackgroundColor>ff101010</BackgroundColor><Border>2</Border><BorderColor>ffffffff</BorderColor>"
    "<Font><Name>Sans</Name><Size>12</Size><Color>ffffffff</Color></Font><FixedFont><Name>Mono</Name></FixedFont>"
    "<Texture Filename='a.png'><Border>4</Border></Texture><TexturePressed Filename='#b'/><TextureHover Filename='#c'>"
    "<left>1</left><right>9</right><top>1</top><bottom>9</bottom></TextureHover><TextureFocused Filename='#d'/>"
    "<TextureChecked Filename='#e'/><Text>a ${x} b</Text><Wrap>1</Wrap><AutoTooltip>${hint}</AutoTooltip>"
    "<Command>command</Command><CommandChecked>other</CommandChecked><Console>status</Console><Data>${n}</Data>"
    "<CommandHistory>3</CommandHistory><MaxLength>2000</MaxLength><Group>g</Group><StorePosition>1</StorePosition>"
    "<Range>50</Range><VariableRange>2</VariableRange><Offset>0.5</Offset><HandleTexture Filename='#fill'/>"
    "<TopTexture Filename='#fill'/><Filler><Width>60</Width><Height>50%</Height><Repeat>3</Repeat>"
    "<Texture Filename='#fill'><right>9</right></Texture></Filler>"
    "<Slider><Width>20</Width><Height>60</Height><Range>50</Range><OnChange>changed</OnChange></Slider>"
    "<UpButton><X>30</X><Width>20</Width><Height>20</Height></UpButton>"
    "<DownButton><X>30</X><Y>30</Y><Width>20</Width><Height>20</Height></DownButton>"
    "<ScrollBar><Width>12</Width><Height>100%</Height><Slider><Width>12</Width><Height>100%</Height>"
    "<OnChange>changed</OnChange></Slider></ScrollBar><ListBox Template='all'/><FullHeight>160</FullHeight>"
    "<ButtonWidth>20</ButtonWidth><ButtonTexture Filename='#fill'/><SelectionColor>80ffffff</SelectionColor>"
    "<Sort>User</Sort><SelectMultiple>1</SelectMultiple>"
    "<Items><item Value='9'>row 1</item><item Value='10' Default='1'>c</item><item>${x}</item><item>b</item>"
    "<item>c</item><item>d</item><item>e</item><item Color='ff'>f</item></Items>"
    "<Resizable MinWidth='9' MinHeight='9'/><CloseButton/><MinimizeButton/><Title>${x}</Title>"
    "<ClickFocus>in</ClickFocus><TitleBar Template='all'><Width>60</Width><Height>20</Height><Children>"
    "<text name='Title' Template='all'/><button name='Minimize' Template='all'><X>20</X><Width>20</Width>"
    "<Height>20</Height></button><button name='Close' Template='all'><X>40</X><Width>20</Width><Height>20</Height>"
    "</button></Children></TitleBar><Client Template='all'><Y>20</Y><Width>100%</Width><Height>r20</Height></Client>"
    "<VerticalScrollBar><X>60</X><Width>12</Width><Height>100%</Height><Slider><Width>12</Width><Height>100%</Height>"
    "<Vertical/><OnChange>changed</OnChange></Slider></VerticalScrollBar>"
    "<TabHeight>16</TabHeight><TabBorder>1</TabBorder><TabTexture Filename='#fill'/><Draggable/>"
    "<TabSelectedTexture Filename='#camera'/><FrameTexture Filename='#fill'/><FrameBorder>1</FrameBorder>"
    "<LeftTexture Filename='#fill'/><RightButton Template='all'/><Tabs><Tab Name='a'>"
    "<frame name='in' Template='all'><Width>30</Width><Height>30</Height></frame>"
    "<slider name='s' Template='all'><Width>100%</Width><Height>20</Height></slider></Tab><Tab Name='c'/>"
    "<Tab Name='in'><text name='l' Template='all'><Width>50</Width><Height>r10</Height></text></Tab></Tabs>"
    "<MapSizeX>100</MapSizeX><MapSizeY>80</MapSizeY><ShowLabels/><BlipTemplate>blip</BlipTemplate>"
    "<ItemHeight>10</ItemHeight><IndentPerDepth>8</IndentPerDepth><ImageSize>8</ImageSize>"
    "<ImageTexture Filename='#fill'/><ImageTextureCollapsed Filename='#camera'/>"
    "<FadeDelay>30</FadeDelay><FadeDuration>40</FadeDuration><FadeAlpha>0.5</FadeAlpha>";

constexpr char Rows[] =
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

std::string Element(const std::string& kind, const std::string& name, const std::string& inside)
{
    return "<" + kind + " name='" + name + "' Template='all'>" + inside + "</" + kind + ">";
}

std::string Templates()
{
    std::string events;
    for (const char* event : EventNames())
        events += Tag(event, event);
    const std::string blip = "<Template name='blip'><BackgroundColor>ff0000ff</BackgroundColor><Font><Size>8</Size>"
                             "</Font>"
        + events + "</Template>";
    return blip + std::string("<Template name='all'>") + Values + events + "</Template>";
}

} // namespace

const std::vector<const char*>& ScenarioKinds()
{
    static const std::vector<const char*> kinds = {"button", "checkbox", "combobox", "commandbutton", "commandcheckbox",
        "commandentry", "console", "contextmenu", "frame", "gauge", "gaugefiller", "hudelement", "listbox", "mapblip",
        "mapblipview", "map", "mapview", "messagebox", "scriptinputbox", "scriptmessagebox", "scrollbar", "slider",
        "tabcontrol", "tablecell", "table", "text", "textedit", "textentry", "tooltip", "tree", "variablegauge",
        "variableslider", "windowclient", "window"};
    return kinds;
}

std::string ScenarioMarkup()
{
    std::string elements;
    int count = 0;
    for (const char* kind : ScenarioKinds()) {
        const std::string place =
            Place(count % Columns * CellSize + 5, count / Columns * CellSize + 5, CellSize - 10, CellSize - 10);
        const std::string child = Element("frame", "in", Place(10, 10, 30, 30));
        elements += Element(kind, kind, place + Rows + Tag("Children", child));
        ++count;
    }
    return "<Tesk><Skin name='dark'><SkinTemplate Base='frame' Skin='all'/></Skin>" + Templates() + elements
        + "<tooltip name='Auto Tooltip' Template='all'/><nonsense name='x'/></Tesk>";
}

std::string ScenarioPartMarkup()
{
    return "<Tesk>" + Element("frame", "part", Place(20, 20, 60, 60) + Tag("Children", Element("text", "words", "")))
        + Element("button", "gauge", Place(100, 20, 60, 60)) + "</Tesk>";
}

ScenarioFiles::ScenarioFiles()
{
    Write(ScenarioFile, ScenarioMarkup());
    Write(ScenarioPart, ScenarioPartMarkup());
}

ScenarioFiles::~ScenarioFiles()
{
    for (const auto& [name, path] : Paths)
        std::remove(path.c_str());
}

void ScenarioFiles::Write(const char* name, const std::string& markup)
{
    std::string path = "/tmp/teskara-unit-XXXXXX";
    const int file = mkstemp(path.data());
    const bool written = write(file, markup.data(), markup.size()) == static_cast<ssize_t>(markup.size());
    close(file);
    if (!written)
        throw std::runtime_error("no room for a file");
    Paths[name] = path;
}
