#include "host/record/Replay.h"
#include "host/InterfaceSession.h"
#include "host/Operation.h"
#include "host/display/Picture.h"
#include "host/record/Recorder.h"
#include "host/record/RecordingReader.h"
#include "host/record/ToolkitCalls.h"
#include "tests/unit/FreshProcess.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using host::Operation;
using Items = std::vector<std::string>;

constexpr int Width = 320;
constexpr int Height = 240;

// Its scripts call the toolkit while it calls them, and delete the element that they belong to.
constexpr const char* Interface = R"(<Tesk>
  <button name="Go"><X>10</X><Y>10</Y><Width>80</Width><Height>24</Height><Text>Go</Text>
    <OnLeftClick>
      local label = UIElement("Label")
      label:SetText("pressed at " .. this.X .. " in " .. tostring(label))
      count = (count or 0) + 1
    </OnLeftClick>
  </button>
  <button name="End"><X>10</X><Y>40</Y><Width>80</Width><Height>24</Height><Text>${count}</Text>
    <OnLeftClick>this:Destroy()</OnLeftClick>
  </button>
  <text name="Label"><X>100</X><Y>10</Y><Width>200</Width><Height>24</Height><Text>none ${UIElement[Go].Width}</Text></text>
</Tesk>)";

class ReplayDeathTest : public testing::Test
{
protected:
    ReplayDeathTest() : m_Folder("/tmp/teskara-replay-" + std::to_string(getpid()))
    {
        fs::create_directories(m_Folder);
        std::ofstream(m_Folder / "test.xml") << Interface;
    }
    ~ReplayDeathTest() override { fs::remove_all(m_Folder); }

    // A short session with clicks and keys, in a process of its own.
    void Record() const
    {
        InFreshProcess([this] {
            host::Recorder recorder;
            ASSERT_TRUE(recorder.Open(File()));
            RunSession(recorder);
            EXPECT_TRUE(recorder.Close());
        });
    }

    void RunSession(host::Recorder& recorder) const
    {
        const host::Picture picture(Width, Height);
        host::InterfaceSession::Settings settings;
        settings.ClockStandsStill = true;
        settings.Between = &recorder;
        settings.Width = Width;
        settings.Height = Height;
        host::InterfaceSession session(picture.Target(), settings);
        EXPECT_TRUE(session.Open({(m_Folder / "test.xml").string()}, ""));
        for (const _Point2i place : {_Point2i{20, 20}, _Point2i{20, 20}, _Point2i{20, 50}, _Point2i{200, 200}}) {
            host::Toolkit::OnMouseMove(place);
            session.DrawFrame(Width, Height, 1);
            host::Toolkit::OnLMouseDown();
            session.Clock().Advance(16);
            session.DrawFrame(Width, Height, 1);
            host::Toolkit::OnLMouseUp();
            host::Toolkit::OnKeyDown('A');
            host::Toolkit::OnKeyUp('A');
        }
        session.DrawFrame(Width, Height, 1);
    }

    fs::path File() const { return m_Folder / "test.rec"; }

    // In this process: call it in a fresh one.
    std::string Replayed() const
    {
        host::Replay replay;
        return replay.Run(File()) ? "as recorded" : replay.Report();
    }

    Items Read() const
    {
        host::RecordingReader reader;
        reader.Open(File());
        Items items;
        for (std::string_view item; reader.Next(item);)
            items.emplace_back(item);
        EXPECT_EQ("", reader.Fault());
        return items;
    }

    void Write(const Items& items) const
    {
        host::RecordingWriter writer;
        ASSERT_TRUE(writer.Open(File()));
        for (const std::string& item : items)
            writer.Put(item);
        writer.Flush();
    }

    static std::size_t FindLast(const Items& items, Operation operation)
    {
        std::size_t at = items.size() - 1;
        while (at > 0 && items[at][0] != static_cast<char>(operation))
            --at;
        return at;
    }

    static bool Has(const Items& items, Operation operation)
    {
        return items[FindLast(items, operation)][0] == static_cast<char>(operation);
    }

    fs::path m_Folder;
};

TEST_F(ReplayDeathTest, IsEqualWithoutWhatWasRecordedFrom)
{
    Record();
    fs::remove(m_Folder / "test.xml");
    const Items items = Read();
    EXPECT_TRUE(Has(items, Operation::ExecuteAtom));
    EXPECT_TRUE(Has(items, Operation::DispatchMember));
    EXPECT_TRUE(Has(items, Operation::DispatchMethod));
    EXPECT_TRUE(Has(items, Operation::ToText));
    EXPECT_TRUE(Has(items, Operation::AskTopLevelObject));
    InFreshProcess([this] { EXPECT_EQ("as recorded", Replayed()); });
}

TEST_F(ReplayDeathTest, ShowsTheCallAndItsFrameWhenAnAnswerWasAnother)
{
    Record();
    Items items = Read();
    std::string& opened = items[FindLast(items, Operation::OpenFile)];
    opened[opened.rfind("<X>10</X><Y>10") + 3] = '2';
    Write(items);
    InFreshProcess([this] {
        const std::string report = Replayed();
        EXPECT_EQ(0u, report.find("differs in frame ")) << report;
        EXPECT_NE(report.npos, report.find("\n  recorded  ")) << report;
        EXPECT_NE(report.npos, report.find("\n  replayed  ")) << report;
        EXPECT_NE(report.npos, report.find("\nbefore it:\n  ")) << report;
        EXPECT_NE(report.npos, report.find("Render()")) << report;
    });
}

TEST_F(ReplayDeathTest, ShowsWhatTheToolkitAnsweredOtherwise)
{
    Record();
    Items items = Read();
    std::string& taken = items[FindLast(items, Operation::OnLMouseDown)];
    taken.back() = static_cast<char>(taken.back() ^ 1);
    Write(items);
    InFreshProcess([this] {
        const std::string report = Replayed();
        EXPECT_NE(report.npos, report.find("OnLMouseDown")) << report;
    });
}

TEST_F(ReplayDeathTest, TellsThatARecordingBreaksOff)
{
    Record();
    Items items = Read();
    items.resize(items.size() / 2);
    Write(items);
    InFreshProcess([this] { EXPECT_EQ(0u, Replayed().find("breaks off, in frame ")) << Replayed(); });
}

// Whatever stands in a recording, the replay of it ends.
TEST_F(ReplayDeathTest, EndsForDamagedItems)
{
    Record();
    const Items whole = Read();
    u32 seed = 1;
    const auto random = [&seed](std::size_t below) {
        seed = seed * 1664525 + 1013904223;
        return (seed >> 8) % below;
    };
    for (int round = 0; round < 100; ++round) {
        Items items = whole;
        std::string& item = items[random(items.size())];
        const std::size_t at = random(item.size());
        if (round % 4 == 0)
            item.resize(at);
        else
            item[at] = static_cast<char>(item[at] ^ (1 << random(8)));
        Write(items);
        InFreshProcess([this] { EXPECT_NE("", Replayed()); });
    }
}

} // namespace
