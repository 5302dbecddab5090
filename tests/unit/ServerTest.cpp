#include "host/serve/Server.h"
#include "host/serve/Base64.h"
#include "tests/unit/FreshProcess.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <unistd.h>

namespace {

using host::Json;

constexpr char Markup[] = R"(<Tesk>
<frame name="Main"><X>100</X><Y>50</Y><Width>300</Width><Height>200</Height><BackgroundColor>ff102030</BackgroundColor>
<Children>
<button name="Ok"><X>10</X><Y>20</Y><Width>80</Width><Height>24</Height><Text>Fine</Text>
<Font><Name>DejaVu Sans</Name><Size>14</Size><Color>ffffffff</Color></Font>
<OnLeftClick>Clicks = (Clicks or 0) + 1 print("clicked")</OnLeftClick></button>
<textentry name="Entry"><X>10</X><Y>60</Y><Width>120</Width><Height>24</Height><MaxLength>40</MaxLength>
<Font><Name>DejaVu Sans</Name><Size>14</Size><Color>ffffffff</Color></Font></textentry>
<frame name="Hidden"><Visible>0</Visible><Width>10</Width><Height>10</Height></frame>
</Children></frame></Tesk>)";

// A server with an interface, and requests as they are written.
class Requests
{
public:
    Requests() : m_Interface({640, 480, 1, "", host::ScriptTrust::None}), m_Server(m_Interface)
    {
        EXPECT_TRUE(m_Interface.Start());
        std::ofstream(m_File) << Markup;
    }
    ~Requests() { std::filesystem::remove(m_File); }
    Requests(const Requests&) = delete;
    Requests& operator=(const Requests&) = delete;

    Json Ask(const std::string& line) { return Json::parse(m_Server.Answer(line)); }

    void Load() { EXPECT_EQ(Ask(R"({"command":"load","file":")" + m_File + "\"}")["ok"], true); }

    std::string Error(const std::string& line)
    {
        const Json answer = Ask(line);
        EXPECT_EQ(answer["ok"], false) << answer;
        return answer["error"];
    }

    Json Result(const std::string& line)
    {
        const Json answer = Ask(line);
        EXPECT_EQ(answer["ok"], true) << answer;
        return answer["result"];
    }

private:
    std::string m_File = "/tmp/teskara-served-" + std::to_string(getpid()) + ".xml";
    host::ServedInterface m_Interface;
    host::Server m_Server;
};

void WithRequests(const std::function<void(Requests&)>& body)
{
    InFreshProcess([&] {
        Requests requests;
        body(requests);
    });
}

TEST(ServerDeathTest, EchoesTheNameOfARequest)
{
    WithRequests([](Requests& requests) {
        EXPECT_EQ(requests.Ask(R"({"id":7,"command":"wait"})")["id"], 7);
        EXPECT_EQ(requests.Ask(R"({"id":"a","command":"nothing"})")["id"], "a");
        EXPECT_FALSE(requests.Ask(R"({"command":"wait"})").contains("id"));
        EXPECT_EQ(
            requests.Error(R"({"id":[],"command":"wait"})"), "the field 'id' is a list; expected a number or a text");
    });
}

TEST(ServerDeathTest, SaysWhatWasExpectedOfALineThatIsNoRequest)
{
    WithRequests([](Requests& requests) {
        const std::string expected = "; expected one JSON object on the line, such as {\"command\": \"tree\"}";
        EXPECT_EQ(requests.Error("tree"), "this is not JSON, at byte 3" + expected);
        EXPECT_EQ(requests.Error("[1]"), "this is a list" + expected);
        EXPECT_EQ(requests.Error("{\"command\":\"\xff\"}"), "this is not JSON, at byte 13" + expected);
        EXPECT_EQ(requests.Error(std::string(1000000, '[')), "this is nested deeper than 32 levels" + expected);
        EXPECT_EQ(requests.Error("{\"a\":1e999}"), "this is not JSON that can be read" + expected);
    });
}

TEST(ServerDeathTest, SaysWhatWasExpectedOfACommandAndItsFields)
{
    WithRequests([](Requests& requests) {
        EXPECT_TRUE(requests.Error("{}").starts_with("the field 'command' is missing; expected one of load, tree"));
        EXPECT_TRUE(requests.Error(R"({"command":1})").starts_with("the field 'command' is a number; expected one of"));
        EXPECT_TRUE(requests.Error(R"({"command":"Load"})").starts_with("there is no command 'Load'; expected one of"));
        EXPECT_EQ(requests.Error(R"({"command":"load"})"), "the field 'file' is missing; expected a text");
        EXPECT_EQ(requests.Error(R"({"command":"load","file":3})"), "the field 'file' is 3; expected a text");
        EXPECT_EQ(requests.Error(R"({"command":"load","file":"a\u0000b"})"),
            "the field 'file' is a text with a zero byte in it; expected a text");
        EXPECT_EQ(requests.Error(R"({"command":"load","file":"a","speed":1})"),
            "there is no field 'speed' here; expected file, skin");
        EXPECT_EQ(requests.Error(R"({"command":"wait","frames":1.5})"),
            "the field 'frames' is 1.5; expected a whole number from 0 to 100000");
        EXPECT_EQ(requests.Error(R"({"command":"wait","frames":18446744073709551615})"),
            "the field 'frames' is 18446744073709551615; expected a whole number from 0 to 100000");
        EXPECT_EQ(requests.Error(R"({"command":"wait","frames":-1})"),
            "the field 'frames' is -1; expected a whole number from 0 to 100000");
        EXPECT_EQ(requests.Error(R"({"command":"find","visible":"yes"})"),
            "the field 'visible' is a text; expected true or false");
        EXPECT_EQ(requests.Error(R"({"command":"click"})"),
            "it is not said where; expected the field 'element', the fields 'x' and 'y', or all three");
        EXPECT_EQ(requests.Error(R"({"command":"press","button":"middle"})"),
            "there is no button 'middle'; expected left or right");
        EXPECT_EQ(requests.Error(R"({"command":"keys","keys":["A","Ctrl+Foo"]})"),
            "there is no key 'Foo'; expected names of keys such as A, Enter, F5, Page Up, or several such as "
            "Ctrl+Shift+Left");
    });
}

TEST(ServerDeathTest, TellsOfTheElementsOfALoadedFile)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        const Json tree = requests.Result(R"({"command":"tree","element":"Main"})");
        EXPECT_EQ(tree["kind"], "frame");
        EXPECT_EQ(tree["x"], 100);
        ASSERT_EQ(tree["children"].size(), 3u);
        EXPECT_EQ(tree["children"][0]["name"], "Ok@Main");
        EXPECT_EQ(tree["children"][0]["text"], "Fine");
        EXPECT_EQ(tree["children"][0]["x"], 110);
        EXPECT_EQ(tree["children"][2]["visible"], false);
        EXPECT_FALSE(requests.Result(R"({"command":"tree","levels":0})").contains("children"));
    });
}

TEST(ServerDeathTest, FindsElementsByWhatIsKnownOfThem)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        const auto names = [&](const std::string& query) {
            std::string found;
            for (const Json& element : requests.Result("{\"command\":\"find\"," + query + "}"))
                found += element["name"].get<std::string>() + ' ';
            return found;
        };
        EXPECT_EQ(names(R"("name":"ok")"), "Ok@Main ");
        EXPECT_EQ(names(R"("name":"*@main","visible":true)"), "Ok@Main Entry@Main ");
        EXPECT_EQ(names(R"("kind":"BUTTON")"), "Ok@Main ");
        EXPECT_EQ(names(R"("text":"FIN")"), "Ok@Main ");
        EXPECT_EQ(names(R"("name":"M??n","most":1)"), "Main ");
        EXPECT_EQ(names(R"("name":"nobody")"), "");
    });
}

TEST(ServerDeathTest, ClicksWhereSomebodyWould)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        const Json answer = requests.Ask(R"({"command":"click","element":"Ok@Main"})");
        EXPECT_EQ(answer["result"], Json::parse(R"({"x":150,"y":82,"hit":"Ok@Main"})"));
        EXPECT_EQ(answer["lines"].size(), 1u);
        requests.Result(R"({"command":"click","x":111,"y":71})");
        requests.Result(R"({"command":"move","element":"Ok@Main","x":1,"y":1})");
        requests.Result(R"({"command":"press"})");
        EXPECT_EQ(requests.Result(R"({"command":"get","expression":"Clicks"})"), 2);
        requests.Result(R"({"command":"release"})");
        EXPECT_EQ(requests.Result(R"({"command":"get","expression":"Clicks"})"), 3);
        EXPECT_EQ(requests.Error(R"({"command":"click","element":"Hidden@Main"})"),
            "the element 'Hidden@Main' cannot be seen: it or one around it is hidden");
        EXPECT_EQ(requests.Error(R"({"command":"click","element":"Okk@Main"})"),
            "there is no element 'Okk@Main'; meant: 'Ok@Main'");
    });
}

TEST(ServerDeathTest, TypesAndPressesKeys)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        requests.Result(R"({"command":"click","element":"Entry@Main"})");
        requests.Result(R"({"command":"type","text":"Hello, Wörld! {}"})");
        const std::string text = R"({"command":"get","expression":"UIElement('Entry@Main').Text"})";
        EXPECT_EQ(requests.Result(text), "Hello, W\xc3\xb6rld! {}");
        requests.Result(R"({"command":"keys","keys":["Backspace","home","Delete","A","Shift+b","Num +"]})");
        EXPECT_EQ(requests.Result(text), "aB+ello, W\xc3\xb6rld! {");
    });
}

TEST(ServerDeathTest, LetsTimePassOnlyOnRequest)
{
    WithRequests([](Requests& requests) {
        EXPECT_EQ(requests.Result(R"({"command":"wait","frames":3})"), Json::parse(R"({"frame":3,"milliseconds":48})"));
        EXPECT_EQ(requests.Result(R"({"command":"wait","milliseconds":20})"),
            Json::parse(R"({"frame":5,"milliseconds":68})"));
        requests.Result(R"({"command":"list"})");
        requests.Result(R"({"command":"get","expression":"1"})");
        EXPECT_EQ(requests.Result(R"({"command":"wait","frames":0})")["milliseconds"], 68);
    });
}

TEST(ServerDeathTest, TellsValuesOfScriptsAsWhatTheyAre)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        requests.Result(R"({"command":"do","script":"A = {1, 2.5, {x = 'y'}} A.self = A"})");
        EXPECT_EQ(requests.Result(R"({"command":"get","expression":"A[3]"})"), Json::parse(R"({"x":"y"})"));
        EXPECT_EQ(requests.Result(R"({"command":"get","expression":"{1, true, 'b', 1/0}"})"),
            Json::parse(R"([1,true,"b","inf"])"));
        EXPECT_EQ(requests.Result(R"({"command":"get","expression":"A.none"})"), nullptr);
        EXPECT_EQ(requests.Result(R"({"command":"do","script":"return 1 + 1"})"), 2);
        EXPECT_TRUE(requests.Result(R"({"command":"get","expression":"A"})").is_object());
        EXPECT_EQ(requests.Error(R"({"command":"get","expression":"1 +"})"),
            "the script failed: script:1: unexpected symbol near <eof>");
        EXPECT_EQ(requests.Error(R"({"command":"do","script":"error 'no'"})"), "the script failed: script:1: no");
        EXPECT_NE(requests.Error(R"({"command":"do","script":"while true do end"})"), "");
    });
}

TEST(ServerDeathTest, BoundsValuesThatHoldThemselves)
{
    WithRequests([](Requests& requests) {
        requests.Result(R"({"command":"do","script":"T = {} for i = 1, 1000 do T[i] = T end"})");
        EXPECT_LT(requests.Result(R"({"command":"get","expression":"T"})").dump().size(), 20000000u);
    });
}

TEST(ServerDeathTest, ListsAFrameWithTheElementOfEachCall)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        const std::string list = requests.Result(R"({"command":"list"})")["list"];
        EXPECT_TRUE(list.starts_with("TeskaraDrawList 1 640x480\n"
                                     "\"Main\" DrawRect (100,50,400,250) color=ff102030\n"))
            << list;
        EXPECT_NE(list.find("\"Ok@Main\" DrawText ("), std::string::npos) << list;
        EXPECT_NE(list.find("text=\"Fine\" color=ffffffff font=\"DejaVu Sans 14\""), std::string::npos) << list;
        EXPECT_EQ(requests.Result(R"({"command":"list"})")["list"], list);
    });
}

TEST(ServerDeathTest, GivesPicturesAsTextAndAsFiles)
{
    WithRequests([](Requests& requests) {
        requests.Load();
        const std::string png = requests.Result(R"({"command":"picture"})")["png"];
        EXPECT_TRUE(png.starts_with(host::ToBase64("\x89PNG\r\n"))) << png.substr(0, 40);
        const std::string file = "/tmp/teskara-served-" + std::to_string(getpid()) + ".png";
        requests.Result(R"({"command":"picture","file":")" + file + "\"}");
        std::ifstream saved(file, std::ios::binary);
        EXPECT_EQ(host::ToBase64(std::string(std::istreambuf_iterator<char>(saved), {})), png);
        std::filesystem::remove(file);
        EXPECT_NE(requests.Error(R"({"command":"picture","file":"/proc/none/a.png"})"), "");
    });
}

TEST(ServerDeathTest, GivesWhatLintFinds)
{
    WithRequests([](Requests& requests) {
        const Json found = requests.Result(R"({"command":"lint","text":"<Tesk><frmae name='A'/></Tesk>"})");
        ASSERT_EQ(found["findings"].size(), 1u);
        EXPECT_EQ(found["findings"][0]["rule"], "unknown-kind");
        EXPECT_EQ(requests.Error(R"({"command":"lint","files":["/tmp/teskara-none.xml"]})"),
            "the file '/tmp/teskara-none.xml' cannot be read: there is no such file");
    });
}

TEST(ServerDeathTest, SaysWhyAFileIsNotLoaded)
{
    WithRequests([](Requests& requests) {
        EXPECT_NE(requests.Error(R"({"command":"load","file":"/tmp/teskara-none.xml"})").find("teskara-none.xml"),
            std::string::npos);
        EXPECT_NE(requests.Error(R"({"command":"load","file":"/tmp","skin":"none"})"), "");
    });
}

TEST(ServerDeathTest, DescribesEveryRequest)
{
    WithRequests([](Requests& requests) {
        const Json help = requests.Result(R"({"command":"help"})");
        EXPECT_EQ(help.size(), host::ServeCommands().size());
        EXPECT_EQ(help["load"]["fields"]["file"], "a text, needed");
    });
}

TEST(RequestLines, EndWithTheInputAndMayEndWithoutALineEnd)
{
    std::istringstream input("one\r\n\ntwo");
    host::RequestLines lines(input);
    std::string line;
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::Line);
    EXPECT_EQ(line, "one");
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::Line);
    EXPECT_EQ(line, "");
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::Line);
    EXPECT_EQ(line, "two");
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::End);
}

TEST(RequestLines, GoOnBehindOneThatIsTooLong)
{
    std::istringstream input(std::string(100, 'x') + "\nshort\n" + std::string(9, 'y'));
    host::RequestLines lines(input, 8);
    std::string line;
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::TooLong);
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::Line);
    EXPECT_EQ(line, "short");
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::TooLong);
    EXPECT_EQ(lines.Next(line), host::RequestLines::Kind::End);
}

TEST(Base64, WritesThreeBytesAsFourDigits)
{
    EXPECT_EQ(host::ToBase64(""), "");
    EXPECT_EQ(host::ToBase64("f"), "Zg==");
    EXPECT_EQ(host::ToBase64("fo"), "Zm8=");
    EXPECT_EQ(host::ToBase64("foo"), "Zm9v");
    EXPECT_EQ(host::ToBase64("\xff\xfe\xfd\xfc"), "//79/A==");
}

} // namespace
