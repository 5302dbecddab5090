#include "teskara/core/Limits.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/TableTest.h"

#include <algorithm>
#include <functional>
#include <string>

namespace {

// Acts each time that it hears of its size.
class Sensor : public TeskElement
{
public:
    using TeskElement::TeskElement;

    void SizeRecalculated(bool) override
    {
        if (Act)
            Act(*this);
    }

    static inline std::function<void(Sensor& self)> Act;
};

// Tests of what happens while a table is laid out.
class TeskTableLayoutTest : public TableTest
{
protected:
    ~TeskTableLayoutTest() override { Sensor::Act = nullptr; }

    static void Kill(TeskElement* element)
    {
        if (element)
            element->Parent->DeleteChild(element);
    }

    TeskFactory<Sensor> Factory{"sensor"};
    const std::string Inside = "<Children><sensor Name='S'/></Children>";
    const std::string Two = "<Row><Cell>" + Inside + "</Cell><Cell>" + Inside + "</Cell></Row>";
};

} // namespace

TEST_F(TeskTableLayoutTest, ASpannedCellIsLaidOutForEachOfItsSlots)
{
    TeskTable& table =
        MakeTable("<Row><Cell RowSpan='2' ColSpan='3'>" + Inside + "</Cell><Cell>" + Inside + "</Cell></Row><Row/>");
    std::string heard;
    Sensor::Act = [&](Sensor& self) { heard += self.Parent->Name.back(); };
    Lay(table);
    EXPECT_EQ("0001000", heard);
}

TEST_F(TeskTableLayoutTest, ACellIsLaidOutOnlySoManyTimesMore)
{
    for (const u32 slots : {Limits::RepeatedCells, Limits::RepeatedCells + 1, Limits::RepeatedCells + 2}) {
        TeskTable& table = MakeTable("<Row><Cell ColSpan='" + std::to_string(slots) + "'>" + Inside + "</Cell></Row>");
        u32 turns = 0;
        Sensor::Act = [&](Sensor&) { ++turns; };
        Lay(table);
        EXPECT_EQ(std::min(slots, Limits::RepeatedCells + 1), turns);
        turns = 0;
        Lay(table);
        EXPECT_EQ(std::min(slots, Limits::RepeatedCells + 1), turns);
        Sensor::Act = nullptr;
    }
}

// Each would double the work of what is in it.
TEST_F(TeskTableLayoutTest, TablesInCellsOfTwoSlotsAreLaidOutInTime)
{
    std::string markup;
    for (int level = 0; level < 60; ++level)
        markup = "<Row><Cell ColSpan='2'><Children><table Name='T'><Width>100%</Width><Height>100%</Height>" + markup
            + "</table></Children></Cell></Row>";
    TeskTable& table = MakeTable(markup);
    table.Width = 300;
    Lay(table);
    const TeskElement* innermost = &table;
    while (innermost->FirstChild)
        innermost = innermost->FirstChild;
    EXPECT_EQ(300u, innermost->Width);
}

TEST_F(TeskTableLayoutTest, ACellMayBeChangedBetweenItsSlots)
{
    TeskTable& table = MakeTable("<Row><Cell ColSpan='2'>" + Inside + "</Cell><Cell/></Row>");
    int turns = 0;
    Sensor::Act = [&](Sensor& self) { self.Parent->Width = ++turns == 1 ? 7 : self.Parent->Width; };
    Lay(table);
    EXPECT_EQ("0,0 67x100", Place(table, 0));
}

TEST_F(TeskTableLayoutTest, TheTableMayBeDeletedMeanwhile)
{
    TeskTable& table = MakeTable(Two);
    Sensor::Act = [&](Sensor&) { Kill(Parent.FirstChild); };
    Lay(table);
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskTableLayoutTest, CellsMayBeDeletedMeanwhile)
{
    TeskTable& table = MakeTable(Two);
    Sensor::Act = [&](Sensor& self) { Kill(self.Parent->Next); };
    Lay(table);
    EXPECT_EQ("0.", Slots(table));
    Sensor::Act = [&](Sensor& self) { Kill(self.Parent); };
    Lay(table);
    EXPECT_EQ("..", Slots(table));
}

TEST_F(TeskTableLayoutTest, TheTableMayBeLaidOutAnewMeanwhile)
{
    TeskTable& table = MakeTable(Two);
    int turns = 0;
    Sensor::Act = [&](Sensor&) {
        if (++turns != 1)
            return;
        table.Width = 300;
        Lay(table);
    };
    Lay(table);
    EXPECT_EQ("0,0 150x100", Place(table, 0));
    EXPECT_EQ("50,0 50x100", Place(table, 1)); // the outer layout goes on as it began
    EXPECT_EQ(4, turns);
    Lay(table);
    EXPECT_EQ("150,0 150x100", Place(table, 1));
}

TEST_F(TeskTableLayoutTest, TheGridMayBeReadAnewMeanwhile)
{
    TeskTable& table = MakeTable(Two);
    XMLNode* again = g_UIManager.AddTemplate("again", "<Template><Row><Cell/><Cell/><Cell/></Row></Template>");
    Sensor::Act = [&](Sensor&) {
        Sensor::Act = nullptr;
        table.FromXML(again, nullptr);
    };
    Lay(table);
    EXPECT_EQ("..2", Slots(table));
}
