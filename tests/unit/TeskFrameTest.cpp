#include "teskara/controls/TeskFrame.h"
#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/ToolkitTest.h"

#include <vector>

namespace {

// Keeps what its children tell it.
class Listener : public TeskElement
{
public:
    using TeskElement::TeskElement;
    void OnNotify(TeskElement*, unsigned int code, unsigned long long value) override
    {
        if (code != NotifyChildGoing)
            Heard.push_back({code, value});
    }

    struct News {
        u32 Code;
        u64 Value;
        bool operator==(const News& other) const { return Code == other.Code && Value == other.Value; }
    };
    std::vector<News> Heard;
};

class TeskFrameTest : public ToolkitTest
{
protected:
    TeskFrameTest() : Parent("", nullptr, "Parent") { }

    TeskFrame& MakeFrame(const char* markup)
    {
        XMLNode* node = g_UIManager.AddTemplate("F", ("<Template>" + std::string(markup) + "</Template>").c_str());
        auto* element = g_UIManager.LoadElement(&Parent, "frame", ("F" + std::to_string(++m_Count)).c_str(), node, "");
        return dynamic_cast<TeskFrame&>(*element);
    }

    Listener Parent;

private:
    int m_Count = 0;
};

struct Handler {
    const char* Name;
    bool (*Call)(TeskFrame& frame);
    Listener::News News;
    const char* Event;
};

template <bool (TeskElement::*Event)(_Point2i&)> bool CallWithPoint(TeskFrame& frame)
{
    _Point2i point = {1, 2};
    return (frame.*Event)(point);
}

bool CallWheel(TeskFrame& frame)
{
    return frame.OnMouseWheel(-3);
}

constexpr Handler LeftUp = {"left up", CallWithPoint<&TeskElement::OnLMouseUp>, {1, 0}, "OnLeftClick"};
constexpr Handler LeftDown = {"left down", CallWithPoint<&TeskElement::OnLMouseDown>, {6, 0}, "OnLeftDown"};
constexpr Handler LeftDouble = {
    "left double", CallWithPoint<&TeskElement::OnLMouseDoubleClick>, {10, 0}, "OnDoubleLeftClick"};
constexpr Handler RightUp = {"right up", CallWithPoint<&TeskElement::OnRMouseUp>, {8, 0}, "OnRightClick"};
constexpr Handler RightDown = {"right down", CallWithPoint<&TeskElement::OnRMouseDown>, {7, 0}, "OnRightDown"};
constexpr Handler RightDouble = {
    "right double", CallWithPoint<&TeskElement::OnRMouseDoubleClick>, {11, 0}, "OnDoubleRightClick"};
constexpr Handler Move = {"move", CallWithPoint<&TeskElement::OnMouseMove>, {14, 0}, "OnMouseMove"};
constexpr Handler Wheel = {"wheel", CallWheel, {15, static_cast<u64>(-3)}, "OnMouseWheel"};
constexpr Handler Handlers[] = {LeftUp, LeftDown, LeftDouble, RightUp, RightDown, RightDouble, Move, Wheel};

} // namespace

TEST_F(TeskFrameTest, MarkupGivesItsFieldsElseTheyAreZero)
{
    const TeskFrame& frame = MakeFrame("<Border>3</Border><BackgroundColor>ff010203</BackgroundColor>"
                                       "<BorderColor>ff040506</BorderColor><Texture Filename='#fill'/>");
    EXPECT_EQ(3u, frame.Border);
    EXPECT_EQ(0xff010203u, frame.BackgroundColor);
    EXPECT_EQ(0xff040506u, frame.BorderColor);
    EXPECT_TRUE(frame.Texture);

    const TeskFrame& plain = MakeFrame("");
    EXPECT_EQ(0u, plain.Border);
    EXPECT_EQ(0u, plain.BackgroundColor);
    EXPECT_FALSE(plain.Texture);
}

TEST_F(TeskFrameTest, IsAFrameAndAnElement)
{
    TeskFrame& frame = MakeFrame("");
    EXPECT_TRUE(frame.IsTypeOf("FRAME"));
    EXPECT_TRUE(frame.IsTypeOf("teskelement"));
    EXPECT_FALSE(frame.IsTypeOf("text"));
    EXPECT_FALSE(frame.IsTypeOf(nullptr));
}

TEST_F(TeskFrameTest, ItsTemplateIsTheOneItNamesElseThatOfItsKind)
{
    g_UIManager.AddTemplate("frame", "<Template><Border>1</Border></Template>");
    g_UIManager.AddTemplate("thick", "<Template><Border>9</Border></Template>");
    Load("<frame name='A'/><frame name='B' Template='thick'/><frame name='C' Template='unknown'/>");
    EXPECT_EQ(1u, As<TeskFrame>("A").Border);
    EXPECT_EQ(9u, As<TeskFrame>("B").Border);
    EXPECT_EQ(1u, As<TeskFrame>("C").Border);
}

TEST_F(TeskFrameTest, DrawsAColorOrAnImageAndItsBorder)
{
    Load("<frame "
         "name='F'><Width>10</Width><Height>10</Height><Border>1</Border><BackgroundColor>ff0000ff</BackgroundColor>"
         "<BorderColor>ffff0000</BorderColor></frame>");
    EXPECT_EQ("DrawRect (0,0,10,1) ffff0000\nDrawRect (0,1,1,9) ffff0000\nDrawRect (9,1,10,9) ffff0000\n"
              "DrawRect (0,9,10,10) ffff0000\nDrawRect (1,1,9,9) ff0000ff\n",
        Frame());

    TeskFrame& frame = As<TeskFrame>("F");
    frame.Texture.reset(TeskTexture::New("#camera"));
    EXPECT_EQ("DrawTexturedRect texture 1 to=(0,0,10,10) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n"
              "DrawRect (0,0,10,1) ffff0000\nDrawRect (0,1,1,9) ffff0000\nDrawRect (9,1,10,9) ffff0000\n"
              "DrawRect (0,9,10,10) ffff0000\n",
        Frame());

    frame.Border = 0;
    EXPECT_EQ(
        "DrawTexturedRect texture 1 to=(0,0,10,10) from=(0,0,0,0) flags=2 alpha=255 orientation=0 mask=00000000\n",
        Frame());

    frame.Border = 2;
    frame.Texture->Border = 4;
    EXPECT_EQ(0u, Frame().find("DrawTexturedRects 9\n"));
}

TEST_F(TeskFrameTest, AFrameThatShowsNothingLetsTheMousePass)
{
    TeskFrame& frame = MakeFrame("");
    for (const Handler& handler : Handlers)
        EXPECT_FALSE(handler.Call(frame)) << handler.Name;
    EXPECT_TRUE(Parent.Heard.empty());
}

TEST_F(TeskFrameTest, ASolidFrameTakesTheMouseAndTellsItsParent)
{
    for (const char* markup : {"<BackgroundColor>1</BackgroundColor>", "<Texture Filename='#fill'/>"}) {
        TeskFrame& frame = MakeFrame(markup);
        for (const Handler& handler : Handlers) {
            Parent.Heard.clear();
            EXPECT_TRUE(handler.Call(frame)) << handler.Name;
            EXPECT_EQ(std::vector<Listener::News>{handler.News}, Parent.Heard) << handler.Name;
        }
    }
}

TEST_F(TeskFrameTest, ClicksPassThroughASolidFrameThatIsToldSo)
{
    TeskFrame& frame = MakeFrame("<BackgroundColor>1</BackgroundColor>");
    const auto taken = [&](const Handler& handler) { return handler.Call(frame); };
    frame.LeftClickThru = true;
    for (const Handler& handler : {LeftUp, LeftDown, LeftDouble})
        EXPECT_FALSE(taken(handler)) << handler.Name;
    for (const Handler& handler : {RightUp, RightDown, RightDouble, Move, Wheel})
        EXPECT_TRUE(taken(handler)) << handler.Name;

    frame.RightClickThru = true;
    for (const Handler& handler : {LeftUp, LeftDown, LeftDouble, RightUp, RightDown, Move, Wheel})
        EXPECT_FALSE(taken(handler)) << handler.Name;
    EXPECT_TRUE(taken(RightDouble));

    frame.LeftClickThru = false;
    for (const Handler& handler : {RightUp, RightDown})
        EXPECT_FALSE(taken(handler)) << handler.Name;
    for (const Handler& handler : {LeftUp, LeftDown, LeftDouble, RightDouble, Move, Wheel})
        EXPECT_TRUE(taken(handler)) << handler.Name;
}

TEST_F(TeskFrameTest, AScriptTakesTheMouseAlsoForAFrameThatShowsNothing)
{
    for (const Handler& handler : Handlers) {
        const std::string event = handler.Event;
        TeskFrame& frame = MakeFrame(("<" + event + ">x</" + event + ">").c_str());
        frame.LeftClickThru = true;
        frame.RightClickThru = true;
        Parent.Heard.clear();
        EXPECT_TRUE(handler.Call(frame)) << handler.Name;
        EXPECT_EQ(std::vector<Listener::News>{handler.News}, Parent.Heard) << handler.Name;
    }
}

TEST_F(TeskFrameTest, AFrameDeletedByItsOwnScriptTellsNobody)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    for (const Handler& handler : Handlers) {
        const std::string event = handler.Event;
        TeskFrame& frame =
            MakeFrame(("<BackgroundColor>1</BackgroundColor><" + event + ">die</" + event + ">").c_str());
        Parent.Heard.clear();
        EXPECT_TRUE(handler.Call(frame)) << handler.Name;
        EXPECT_TRUE(Parent.Heard.empty()) << handler.Name;
        EXPECT_EQ(nullptr, Parent.FirstChild);
    }
}

TEST_F(TeskFrameTest, ARecordFillsItAndPutsItOnTop)
{
    Load("<frame name='A'/><frame name='B'/>");
    TeskFrame& frame = As<TeskFrame>("A");
    _CreateFrame record;
    record.X = 1;
    record.Width = 30;
    record.BackgroundColor = 0xff000001;
    record.Border = 2;
    record.BorderColor = 0xff000002;
    frame.Create(record);
    EXPECT_EQ(1, frame.X);
    EXPECT_EQ(30u, frame.Width);
    EXPECT_EQ(0xff000001u, frame.BackgroundColor);
    EXPECT_EQ(2u, frame.Border);
    EXPECT_EQ(0xff000002u, frame.BorderColor);
    EXPECT_EQ(&frame, g_UIManager.Screen->LastChild);
}

TEST_F(TeskFrameTest, ARecordTellsHowItFollowsItsParent)
{
    Load("<frame name='F'/>");
    TeskFrame& frame = As<TeskFrame>("F");
    _CreateFrame record;
    record.Y = -2;
    record.Height = 40;
    record.PositionX = {PositionFarEdge, 50};
    record.PositionY = {7, 1};
    record.PositionHeight = {7, 2};
    record.PositionWidth.Type = PositionShare;
    record.PositionWidth.SetShare(0.25f);
    record.Visible = false;
    record.Strata = -3;
    frame.Create(record);
    EXPECT_EQ(-2, frame.Y);
    EXPECT_EQ(40u, frame.Height);
    EXPECT_EQ(1u, frame.PositionY.Factor);
    EXPECT_EQ(2u, frame.PositionHeight.Factor);
    EXPECT_FALSE(frame.Visible);
    EXPECT_EQ(-3, frame.Strata);

    frame.RecalculateSize(true);
    EXPECT_EQ(750, frame.X);
    EXPECT_EQ(200u, frame.Width);
}
