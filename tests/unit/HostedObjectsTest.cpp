// Objects of the toolkit's in the hands of Lua.

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr const char* Panel = "<frame name=\"Panel\"><X>10</X><Y>20</Y><Width>300</Width><Height>200</Height>"
                              "<Alpha>0.3</Alpha><Children><button name=\"Ok\"><Width>80</Width><Text>Go</Text>"
                              "</button><text name=\"Label\"><Text>Hello</Text></text></Children></frame>";

// What scripts give with the panel there. The first of a pair is the script's expression.
void ExpectValues(std::initializer_list<std::pair<const char*, const char*>> rows)
{
    WithInterface([&](HostedInterface& ui) {
        for (const auto& [expression, value] : rows) {
            ui.Load(Panel);
            EXPECT_EQ(value,
                ui.Run(std::string("local ok, value = pcall(function() return ") + expression
                    + " end) Result = tostring(value)"))
                << expression;
        }
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedObjectsDeathTest, MembersAreReadAndHaveTheirTypes)
{
    ExpectValues({
        {"UIElement('Panel').Width", "300"},
        {"math.type(UIElement('Panel').Width)", "integer"},
        {"UIElement('Panel').Alpha", "0.3"},
        {"UIElement('Panel').Alpha == 0.3", "true"},
        {"UIElement('Panel').Visible", "true"},
        {"UIElement('Panel').Name", "panel"},
        {"UIElement('Ok@Panel').FullName", "Ok@Panel"},
        {"UIElement('Ok@Panel').Text", "Go"},
        {"UIElement('Ok@Panel').Parent.Name", "panel"},
        {"UIElement('Ok@Panel').Parent == UIElement('Panel')", "true"},
        {"UIElement('Ok@Panel') == UIElement('Panel')", "false"},
        {"UIElement('Panel').Previous", "nil"},
        {"UIElement('Panel').Children.Next.Name", "label"},
        {"UIElement(UIElement('Panel').ID).Name", "panel"},
        {"UIElement('nosuch')", "nil"},
        {"UIElement()", "nil"},
        {"tostring(UIElement('Panel'))", "panel"},
        {"type(UIElement('Panel'))", "userdata"},
        {"Teskara.Version", "0.73"},
        {"Teskara.FocusedElement", "nil"},
        {"Teskara.IsShiftDown", "false"},
        {"UserInput()", "nil"},
        {"UIElement('Label@Panel').Font.Name ~= nil", "true"},
    });
}

TEST(HostedObjectsDeathTest, MembersThatNeedArgumentsAreCalled)
{
    ExpectValues({
        {"UIElement('Panel').FindChild('ok').Name", "ok"},
        {"UIElement('Panel'):FindChild('ok').Name", "ok"},
        {"UIElement('Panel').FindChild('nosuch')", "nil"},
        {"UIElement('Panel').FindUsableChild('Label', 'text').Name", "label"},
        {"UIElement('Panel').HitTest", "false"},
        {"member(UIElement('Panel'), 'HitTest', 20, 30)", "true"},
        {"UIElement('Panel').AddChild('frame', 'New', '<frame/>').Name", "new"},
        {"UIElement('Panel'):AddChild('frame', 'New', '<frame/>')", "true"},
        {"UIElement('Label@Panel').Font.GetTextWidth('x') > 0", "true"},
    });
}

TEST(HostedObjectsDeathTest, MethodsAreCalledAndSayWhetherTheySucceeded)
{
    ExpectValues({
        {"UIElement('Panel'):SetAlpha(0.5)", "true"},
        {"UIElement('Panel'):SetAlpha(0.5) and UIElement('Panel').Alpha", "0.5"},
        {"UIElement('Panel'):Hide() and UIElement('Panel').Visible", "false"},
        {"UIElement('Panel'):SetLeftClickThru(true) and UIElement('Panel').LeftClickThru", "true"},
        {"UIElement('Panel'):SetWidth(640 / 2) and UIElement('Panel').Width", "320"},
        {"UIElement('Panel'):SetMetadata('key', 'value') and UIElement('Panel').GetMetadata('key')", "value"},
        {"UIElement('Panel'):Destroy()", "false"},
        {"UIElement('Panel'):SetZOrder('sideways')", "false"},
    });
}

TEST(HostedObjectsDeathTest, MistakesAreErrorsThatSayWhatIsMeant)
{
    WithInterface([](HostedInterface& ui) {
        const auto why = [&](const char* script) {
            ui.Load(Panel);
            ui.Run(script);
            const std::string line = ui.Lines();
            const std::string start = "test.xml: frame \"Tester\" OnLoad: 1: ";
            return line.starts_with(start) ? line.substr(start.size()) : line;
        };
        EXPECT_EQ("a teskframe has no member or method 'Foo'\n", why("return UIElement('Panel').Foo"));
        EXPECT_EQ("a teskframe has no member or method 'Foo'\n", why("UIElement('Panel'):Foo()"));
        EXPECT_EQ("a teskframe has no member or method 'Foo'\n", why("member(UIElement('Panel'), 'Foo')"));
        EXPECT_EQ("SetAlpha needs 1 argument\n", why("UIElement('Panel'):SetAlpha()"));
        EXPECT_EQ("FindUsableChild needs 2 arguments\n", why("return UIElement('Panel').FindUsableChild('x')"));
        EXPECT_EQ("Hide is a method: it is called with a colon, object:Hide(...)\n", why("UIElement('Panel').Hide()"));
        EXPECT_EQ("'Width' cannot be assigned; call SetWidth\n", why("UIElement('Panel').Width = 5"));
        EXPECT_EQ("'Foo' cannot be assigned\n", why("UIElement('Panel').Foo = 5"));
        EXPECT_EQ("attempt to index a nil value\n", why("return UIElement('nosuch').Width"));
        EXPECT_EQ("attempt to call a number value (field 'Width')\n", why("return UIElement('Panel').Width()"));
        EXPECT_NE(std::string::npos, why("UIElement('Panel'):SetAlpha({})").find("a text, a number, a truth value"));
        EXPECT_NE(std::string::npos, why("UIElement('Panel'):SetAlpha(nil)").find("a text, a number, a truth value"));
        EXPECT_NE(std::string::npos, why("member(5, 'Width')").find("an object of the interface is needed"));
        EXPECT_EQ("too many arguments\n", why("UIElement('Panel'):SetAlpha(table.unpack({}, 1, 200))"));
        EXPECT_NE(
            std::string::npos, why("UIElement('Panel'):SetMetadata('k', ('x'):rep(70000))").find("text is too long"));
        EXPECT_EQ("stopped, since it ran too many instructions\n",
            why("local text = ('x'):rep(60000) for i = 1, 1e5 do UIElement('Panel'):SetMetadata(i, text) end"));
        EXPECT_EQ("FALSE", ui.Run("Result = getmetatable(UIElement('Tester'))"));
    });
}

TEST(HostedObjectsDeathTest, AnElementThatIsGoneIsGoneForWhoeverHeldIt)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("Held = UIElement('Panel') Ok = Held.FindChild('Ok') Hide = Held.Hide Font = "
               "UIElement('Label@Panel').Font Label = UIElement('Label@Panel')");
        EXPECT_EQ("panel", ui.Expand("${Held}"));
        EXPECT_EQ("300", ui.Expand("${Held.Width}"));
        g_UIManager.Screen->DeleteChild(&ui.Element("Panel"));
        EXPECT_EQ("NULL", ui.Expand("${Held}"));
        EXPECT_EQ("NULL", ui.Expand("${Held.Width}"));
        for (const char* use : {"return Held.Width", "Hide(Held)", "return Ok.Parent", "Held.Width = 1", "Ok:Hide()"}) {
            ui.Run(use);
            EXPECT_EQ("test.xml: frame \"Tester\" OnLoad: 1: the element is gone\n", ui.Lines()) << use;
        }
        EXPECT_EQ("gone", ui.Run("Result = tostring(Held)"));
        EXPECT_EQ("nil", ui.Run("Result = tostring(Font.Name)")) << "nobody tells of a font";
        EXPECT_EQ("FALSE", ui.Run("Result = Held == Held and Held == Ok"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedObjectsDeathTest, AnElementThatTakesAnothersPlaceInMemoryIsAnother)
{
    WithInterface([](HostedInterface& ui) {
        ui.Run("Held = {}");
        for (int round = 0; round < 60; ++round) {
            ui.Load(Panel);
            ui.Run(
                "for _, old in ipairs(Held) do if pcall(function() return old.Width end) then Result = 'alive' end end "
                "Held[#Held + 1] = UIElement('Panel')");
            g_UIManager.Screen->DeleteChild(&ui.Element("Panel"));
        }
        EXPECT_EQ("NULL", ui.Expand("${Result}"));
        EXPECT_EQ("60", ui.Run("Result = #Held"));
    });
}

TEST(HostedObjectsDeathTest, AnElementIsHeldAsOneObject)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        EXPECT_EQ("1",
            ui.Run("local seen, count = {}, 0 for i = 1, 100 do local panel = UIElement('Panel') "
                   "if not seen[panel] then count = count + 1 end seen[panel] = true end Result = count"));
    });
}

TEST(HostedObjectsDeathTest, ObjectsEndWithTheirType)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Panel);
        ui.Run("Held = UIElement('Panel') Kit = Teskara Font = UIElement('Label@Panel').Font");
        g_UIManager.Shutdown();
        EXPECT_EQ("NULL NULL NULL", ui.Expand("${Held.Width} ${Kit.Version} ${Font.Name}"));
    });
}

// A type of some other module, which does not tell what its members need.
class PlainType : public MvTypeDefinition
{
public:
    PlainType() : MvTypeDefinition("plain")
    {
        RegisterMember("Given", nullptr);
        RegisterMember("Always", nullptr);
        RegisterMethod("Do", nullptr);
    }

    MvTypeDefinition* Int = nullptr;

    bool GetMember(MvValue, _MvTypeMember& member, int argc, char**, _MvTypeVar& result) override
    {
        if (std::string_view(member.Name.c_str()) == "Given" && argc == 0)
            return false;
        result.Type = Int;
        result.Value.Integer = argc;
        return true;
    }
    bool GetMethod(MvValue, _MvTypeMember&, int argc, char**) override { return argc == 1; }
};

PlainType* g_PlainType = nullptr;

TEST(HostedObjectsDeathTest, MembersOfOtherModulesAreReadOrElseCalled)
{
    WithInterface([](HostedInterface& ui) {
        PlainType type;
        type.Int = ui.Host().FindType("int");
        g_PlainType = &type;
        ui.Host().AddType(&type);
        ui.Host().AddTopLevelObject("Plain", [](int, char**, _MvTypeVar& result) {
            result.Type = g_PlainType;
            result.Value.Unsigned64 = 5;
            return true;
        });
        EXPECT_EQ(&type, ui.Scripts().FindTypeByName("plain", 0, 0));
        EXPECT_EQ("0 2 true false",
            ui.Run("Result = Plain.Always .. ' ' .. Plain.Given(1, 2) .. ' ' .. "
                   "tostring(Plain:Do(1)) .. ' ' .. tostring(Plain:Do())"));
        EXPECT_EQ("0 NULL 1", ui.Expand("${Plain.Always} ${Plain.Given} ${Plain.Given[x]}"));
        EXPECT_EQ("plain", ui.Run("Result = tostring(Plain)"));
        ui.Host().InvalidateTransientObject(1, reinterpret_cast<void*>(5));
        ui.Run("return Plain.Always");
        EXPECT_NE(std::string::npos, ui.Lines().find("the object is gone"));
        ui.Host().RemoveTopLevelObject("Plain");
        ui.Host().RemoveType(&type);
        EXPECT_EQ(nullptr, ui.Scripts().FindTypeByName("plain", 0, 0));
    });
}

TEST(HostedObjectsDeathTest, TabsAnswerUntilTheyEnd)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load("<tabcontrol name='T'><Tabs><Tab Name='One'/><Tab Name='Two'/></Tabs></tabcontrol>");
        const std::string tab = "local tab = UIElement('T').Tab('two') ";
        EXPECT_EQ("2 Two 1", ui.Run(tab + "Result = tab.ID .. ' ' .. tab.Name .. ' ' .. tab.Order"));
        EXPECT_EQ("Uno", ui.Run(tab + "tab:Rename('Uno') Result = tostring(UIElement('T').Tab(2))"));
        EXPECT_EQ("0", ui.Run("local tab = UIElement('T').Tab('uno') tab:Move(1) Result = tab.Order"));
        EXPECT_EQ("7 t",
            ui.Run("local tab = UIElement('T').Tab(1) tab:SetBorder(7) "
                   "Result = tab.Border .. ' ' .. tab.Parent.Name"));
        EXPECT_EQ("1", ui.Run("local tab = UIElement('T').Tab(1) tab:Remove() Result = UIElement('T').Tabs"));
        EXPECT_EQ("nil nil false",
            ui.Run("local tab = UIElement('T').Tab(1) tab:Remove() "
                   "Result = tostring(tab.Name) .. ' ' .. tostring(tab.Border) .. ' ' .. "
                   "tostring(tab:Select())"));
        EXPECT_EQ("", ui.Lines());
    });
}

} // namespace
