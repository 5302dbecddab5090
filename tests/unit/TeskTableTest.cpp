#include "teskara/core/Limits.h"
#include "teskara/element/TeskElementFactory.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/TableTest.h"

#include <string>

namespace {

using TeskTableTest = TableTest;

std::string Repeated(const std::string& text, int count)
{
    std::string all;
    for (int turn = 0; turn < count; ++turn)
        all += text;
    return all;
}

} // namespace

TEST_F(TeskTableTest, IsATableAndAFrameWithTheTypeOfAFrame)
{
    TeskFrame& frame = Make<TeskFrame>("frame");
    TeskTable& table = MakeTable("<Row><Cell/></Row><BackgroundColor>ff010203</BackgroundColor>");
    EXPECT_TRUE(table.IsTypeOf("TABLE"));
    EXPECT_TRUE(table.IsTypeOf("frame"));
    EXPECT_FALSE(table.IsTypeOf("tablecell"));
    EXPECT_FALSE(table.IsTypeOf(nullptr));
    EXPECT_EQ(frame.GetMvType(), table.GetMvType());
    EXPECT_EQ(0xff010203u, table.BackgroundColor);

    TeskTableCell& cell = Cell(table, 0);
    EXPECT_TRUE(cell.IsTypeOf("TableCell"));
    EXPECT_TRUE(cell.IsTypeOf("frame"));
    EXPECT_FALSE(cell.IsTypeOf("table"));
    EXPECT_EQ(frame.GetMvType(), cell.GetMvType());
}

TEST_F(TeskTableTest, WithoutRowsOrCellsThereIsNoGrid)
{
    for (const char* rows : {"", "<Row/>", "<Row/><Row>text</Row><Cell/>", "<Row><Cel/></Row>"}) {
        TeskTable& table = MakeTable(rows);
        EXPECT_EQ(0u, table.Cells.Count()) << rows;
        EXPECT_EQ(0u, table.Columns) << rows;
        EXPECT_EQ(nullptr, table.FirstChild) << rows;
        Lay(table);
    }
    EXPECT_EQ(2u, MakeTable("<Row/><Row/>").Rows);
}

TEST_F(TeskTableTest, ATableMadeWithoutMarkupHasNoGrid)
{
    Load("<table name='T'/>");
    EXPECT_EQ(0u, As<TeskTable>("T").Cells.Count());
    auto* made = dynamic_cast<TeskTable*>(g_UIManager.LoadElement(&Parent, "table", "made"));
    ASSERT_NE(nullptr, made);
    Lay(*made);
    EXPECT_TRUE(made->FromXML(nullptr, nullptr));
    EXPECT_EQ(0u, made->Cells.Count());
}

TEST_F(TeskTableTest, RowsOfATemplateAreNotItsOwn)
{
    g_UIManager.AddTemplate("table", "<Template><Border>3</Border><Row><Cell/></Row></Template>");
    const TeskTable& table = MakeTable("");
    EXPECT_EQ(3u, table.Border);
    EXPECT_EQ(0u, table.Rows);
    EXPECT_EQ(nullptr, table.FirstChild);
}

TEST_F(TeskTableTest, EqualSharesFillTheTable)
{
    TeskTable& table = MakeTable("<Row><Cell/><Cell/></Row><Row><Cell/><Cell/></Row><Row><Cell/><Cell/></Row>");
    EXPECT_EQ(3u, table.Rows);
    EXPECT_EQ(2u, table.Columns);
    EXPECT_EQ("0,0 50x34", Place(table, 0));
    EXPECT_EQ("50,0 50x34", Place(table, 1));
    EXPECT_EQ("0,34 50x33", Place(table, 2));
    EXPECT_EQ("50,67 50x33", Place(table, 5));
}

TEST_F(TeskTableTest, CellsGiveTheSizesOfTheirRowsAndColumns)
{
    TeskTable& table = MakeTable("<Row><Cell><Height>10</Height></Cell><Cell><Height>20</Height></Cell></Row>"
                                 "<Row><Cell><Height>25%</Height><Width>r70</Width></Cell></Row><Row/>");
    EXPECT_EQ("0,0 30x20", Place(table, 0));
    EXPECT_EQ("30,0 70x20", Place(table, 1));
    EXPECT_EQ("0,20 30x25", Place(table, 2));
    EXPECT_EQ((SizeSpecification{SizeShared, 55}), table.RowSizes[2]);
}

TEST_F(TeskTableTest, AShareAmongPixelsTurnsTheWholeRow)
{
    TeskTable& table = MakeTable("<Row><Cell><Height>10</Height></Cell><Cell><Height>0.5</Height></Cell></Row>");
    EXPECT_EQ("0,0 50x50", Place(table, 0));
}

TEST_F(TeskTableTest, ASpannedCellSuitsItsFirstRowAndColumnOnly)
{
    TeskTable& table = MakeTable("<Row><Cell RowSpan='2' ColSpan='2'><Height>30</Height><Width>40</Width></Cell></Row>"
                                 "<Row/>");
    EXPECT_EQ((SizeSpecification{SizePixels, 30}), table.RowSizes[0]);
    EXPECT_EQ((SizeSpecification{SizeShared, 70}), table.RowSizes[1]);
    EXPECT_EQ((SizeSpecification{SizePixels, 40}), table.ColumnSizes[0]);
    EXPECT_EQ((SizeSpecification{SizeShared, 60}), table.ColumnSizes[1]);
    EXPECT_EQ("0,0 100x100", Place(table, 0));
}

TEST_F(TeskTableTest, ARowSpanPushesTheCellsBelowToTheRight)
{
    TeskTable& table = MakeTable("<Row><Cell RowSpan='2'/><Cell/></Row><Row><Cell/></Row>");
    EXPECT_EQ("0102", Slots(table));
    EXPECT_EQ("50,50 50x50", Place(table, 2));
    EXPECT_EQ("0,0 50x100", Place(table, 0));
}

TEST_F(TeskTableTest, RowsMayExistThroughASpanAlone)
{
    TeskTable& table = MakeTable("<Row><Cell><Height>10</Height></Cell><Cell RowSpan='4'/></Row>");
    EXPECT_EQ(4u, table.Rows);
    EXPECT_EQ("0,0 50x10", Place(table, 0));
    EXPECT_EQ("50,0 50x100", Place(table, 1));
    EXPECT_EQ((SizeSpecification{SizeShared, 30}), table.RowSizes[3]);
}

TEST_F(TeskTableTest, CellsWithoutAFreeSlotAreDropped)
{
    TeskTable& table = MakeTable("<Row><Cell RowSpan='2'/><Cell/></Row><Row><Cell/><Cell/><Cell/></Row>");
    EXPECT_EQ(3u, table.Columns);
    EXPECT_EQ("01.023", Slots(table));
    EXPECT_EQ(4, ChildrenOf(table));
    EXPECT_EQ("", Host.TakeCalls());
}

TEST_F(TeskTableTest, NothingOfASpanLiesBeyondTheGrid)
{
    TeskTable& table = MakeTable("<Row><Cell RowSpan='2'/><Cell/></Row><Row><Cell ColSpan='2'/></Row>");
    EXPECT_EQ("0102", Slots(table));
    EXPECT_EQ(2u, Cell(table, 2).ColSpan);
    EXPECT_EQ("50,50 50x50", Place(table, 2));
}

TEST_F(TeskTableTest, ASpanOf0CountsAs1)
{
    TeskTable& table = MakeTable("<Row><Cell ColSpan='0' RowSpan='0'/><Cell ColSpan='x' RowSpan=''/></Row>");
    EXPECT_EQ("01", Slots(table));
    for (int number = 0; number < 2; ++number) {
        EXPECT_EQ(1u, Cell(table, number).ColSpan);
        EXPECT_EQ(1u, Cell(table, number).RowSpan);
    }
}

TEST_F(TeskTableTest, AGridOfTooManySlotsIsNone)
{
    for (const char* rows : {"<Row><Cell ColSpan='-1'/></Row>", "<Row><Cell RowSpan='-1'/></Row>",
             "<Row><Cell RowSpan='4294967295' ColSpan='4294967295'/></Row>",
             "<Row><Cell ColSpan='2147483648'/><Cell ColSpan='2147483648'/><Cell/></Row>",
             "<Row/><Row><Cell ColSpan='500001'/></Row>", "<Row><Cell ColSpan='1001' RowSpan='1000'/></Row>"}) {
        TeskTable& table = MakeTable(rows);
        EXPECT_EQ(0u, table.Cells.Count()) << rows;
        EXPECT_EQ(0u, table.Rows) << rows;
        EXPECT_EQ(nullptr, table.FirstChild) << rows;
        Lay(table);
    }
    EXPECT_EQ(Limits::TableSlots, MakeTable("<Row><Cell ColSpan='1000' RowSpan='1000'/></Row>").Cells.Count());
    EXPECT_EQ(Limits::TableSlots - 1, MakeTable("<Row><Cell ColSpan='999999'/></Row>").Cells.Count());
    EXPECT_EQ(Limits::TableSlots, MakeTable("<Row><Cell RowSpan='1000000'/></Row>").Cells.Count());
}

TEST_F(TeskTableTest, CellsAreNumberedAcrossTheTableAndAFailedOneUsesItsNumberUp)
{
    Host.Scripts["die"] = [](TeskElement& self) { self.Parent->DeleteChild(&self); };
    TeskTable& table =
        MakeTable("<Row><Cell/><Cell ColSpan='2'><OnLoad>die</OnLoad></Cell><Cell/></Row><Row><Cell/></Row>");
    EXPECT_EQ(4u, table.Columns);
    EXPECT_EQ("0.2.3...", Slots(table));
    EXPECT_EQ("Cell 3@C1@Listener", Cell(table, 3).FullName);
}

TEST_F(TeskTableTest, ACellWhoseNameIsTakenIsReportedAndLeftOut)
{
    Host.Scripts["take"] = [](TeskElement& self) { g_UIManager.LoadElement(self.Parent, "frame", "CELL 1"); };
    TeskTable& table = MakeTable("<Row><Cell><OnLoad>take</OnLoad></Cell><Cell/><Cell/></Row>");
    EXPECT_EQ("0.2", Slots(table));
    EXPECT_EQ("PrintLine \"Child named 'Cell 1' already exists in parent element 'c1'\"\n", Host.TakeCalls());
}

TEST_F(TeskTableTest, ACellsTemplateIsItsOwnElseTheTablesElseThatOfItsKind)
{
    g_UIManager.AddTemplate("tablecell", "<Template><Border>1</Border></Template>");
    g_UIManager.AddTemplate("of table", "<Template><Border>2</Border></Template>");
    g_UIManager.AddTemplate("own", "<Template><Border>3</Border></Template>");
    const std::string row = "<Row><Cell/><Cell Template='own'/><Cell Template='unknown'/></Row>";

    TeskTable& plain = MakeTable(row);
    EXPECT_EQ("", plain.CellTemplate);
    EXPECT_EQ(1u, Cell(plain, 0).Border);
    EXPECT_EQ(3u, Cell(plain, 1).Border);
    EXPECT_EQ(1u, Cell(plain, 2).Border);

    TeskTable& table = MakeTable("<Template>of table</Template>" + row);
    EXPECT_EQ("of table", table.CellTemplate);
    EXPECT_EQ(2u, Cell(table, 0).Border);
    EXPECT_EQ(3u, Cell(table, 1).Border);
    EXPECT_EQ(2u, Cell(table, 2).Border);
}

TEST_F(TeskTableTest, ATablesTemplateMayNameThatOfItsCells)
{
    g_UIManager.AddTemplate("table", "<Template><Template>of table</Template></Template>");
    g_UIManager.AddTemplate("of table", "<Template><Border>2</Border><Width>30</Width></Template>");
    TeskTable& table = MakeTable("<Row><Cell/><Cell><Width>40</Width></Cell><Cell/></Row>");
    EXPECT_EQ(2u, Cell(table, 0).Border);
    EXPECT_EQ("30,0 40x100", Place(table, 1));
    EXPECT_EQ("70,0 30x100", Place(table, 2));
}

TEST_F(TeskTableTest, WhatIsInACellFollowsItsSize)
{
    TeskTable& table =
        MakeTable("<Row><Cell><Children><frame Name='F'><Width>50%</Width><Height>r5</Height></frame></Children></Cell>"
                  "<Cell/></Row>");
    const TeskElement& inner = *Cell(table, 0).FirstChild;
    EXPECT_EQ(25u, inner.Width);
    EXPECT_EQ(95u, inner.Height);
    table.Width = 200;
    table.Height = 10;
    Lay(table);
    EXPECT_EQ(50u, inner.Width);
    EXPECT_EQ(5u, inner.Height);
}

TEST_F(TeskTableTest, OtherChildrenAreNotLaidOut)
{
    TeskTable& table = MakeTable("<Row><Cell/></Row><Children><frame Name='F'><Width>50%</Width></frame></Children>");
    EXPECT_EQ(50u, table.FindChild("F")->Width);
    Parent.Width = 7;
    table.PositionWidth = {PositionFarEdge, 0};
    Lay(table);
    EXPECT_EQ(7u, table.Width);
    EXPECT_EQ(50u, table.FindChild("F")->Width);
    EXPECT_EQ("0,0 7x100", Place(table, 0));
}

TEST_F(TeskTableTest, WhatScriptsDidToACellLastsUntilTheNextLayout)
{
    TeskTable& table = MakeTable("<Row><Cell/></Row>");
    Cell(table, 0).Width = 3;
    Cell(table, 0).X = 44;
    Lay(table);
    EXPECT_EQ("0,0 100x100", Place(table, 0));
}

TEST_F(TeskTableTest, ACellThatIsDeletedLeavesItsSlotsFree)
{
    TeskTable& table = MakeTable("<Row><Cell RowSpan='2' ColSpan='2'/><Cell/></Row><Row/>");
    EXPECT_EQ("00100.", Slots(table));
    table.DeleteChild(&Cell(table, 0));
    EXPECT_EQ("..1...", Slots(table));
    Lay(table);
    EXPECT_EQ("67,0 33x50", Place(table, 1));
    table.DeleteChild(&Cell(table, 1));
    Lay(table);
    EXPECT_EQ("......", Slots(table));
}

TEST_F(TeskTableTest, ACellOutlivesItsTableWhenItsFactoryIsGone)
{
    TeskTable& table = MakeTable("<Row><Cell/></Row>");
    TeskTableCell& cell = Cell(table, 0);
    TeskElementFactory* factory = g_UIManager.FindFactory("tablecell");
    g_UIManager.Factories.erase(utf8stringnocase("tablecell"));
    Parent.DeleteChild(&table);
    EXPECT_EQ(nullptr, cell.Parent);
    g_UIManager.Factories[utf8stringnocase("tablecell")] = factory;
    cell.Delete();
    EXPECT_TRUE(IsGone());
}

TEST_F(TeskTableTest, ACellMadeElsewhereIsAFrame)
{
    Load("<frame name='F'><Children><tablecell Name='A' ColSpan='3'><Width>7</Width></tablecell></Children></frame>");
    TeskTableCell& cell = As<TeskTableCell>("A@F");
    EXPECT_EQ(3u, cell.ColSpan);
    EXPECT_EQ(7u, cell.Width);
    cell.Delete();
}

TEST_F(TeskTableTest, WhateverElseAnswersToTheWordOfItsKindGetsNoSlot)
{
    TeskElementFactory* factory = g_UIManager.FindFactory("tablecell");
    g_UIManager.Factories[utf8stringnocase("tablecell")] = g_UIManager.FindFactory("frame");
    TeskTable& table = MakeTable("<Row><Cell ColSpan='2'/><Cell/></Row>");
    g_UIManager.Factories[utf8stringnocase("tablecell")] = factory;
    EXPECT_EQ("...", Slots(table));
    EXPECT_EQ(2, ChildrenOf(table));
    Lay(table);
    Parent.DeleteChild(&table);
}

TEST_F(TeskTableTest, ACellMayDeleteOthersAsItIsLoaded)
{
    Host.Scripts["kill"] = [](TeskElement& self) { self.Parent->DeleteChild(self.Parent->FirstChild); };
    TeskTable& table = MakeTable("<Row><Cell/><Cell><OnLoad>kill</OnLoad></Cell><Cell/></Row>");
    EXPECT_EQ(".12", Slots(table));
}

TEST_F(TeskTableTest, ACellMayDeleteTheTableAsItIsLoaded)
{
    Host.Scripts["end"] = [](TeskElement& self) { self.Parent->Parent->DeleteChild(self.Parent); };
    Load("<frame name='F'><Children><table Name='T'><Row><Cell/><Cell><OnLoad>end</OnLoad></Cell><Cell/></Row>"
         "</table></Children></frame>");
    EXPECT_EQ(nullptr, Element("F").FirstChild);
}

TEST_F(TeskTableTest, ATableCanBeLaidOutWhileItIsLoaded)
{
    Host.Scripts["lay"] = [](TeskElement& self) { self.Parent->RecalculateSize(true); };
    TeskTable& table = MakeTable("<Row><Cell/><Cell><OnLoad>lay</OnLoad></Cell></Row><Row><Cell/></Row>");
    EXPECT_EQ("012.", Slots(table));
    EXPECT_EQ("50,0 50x50", Place(table, 1));
}

TEST_F(TeskTableTest, ATableReadTwiceKeepsItsCellsButHasThemInNoSlot)
{
    TeskTable& table = MakeTable("<Row><Cell/><Cell/></Row>");
    XMLNode* again = g_UIManager.AddTemplate("again", "<Template><Row><Cell/><Cell/><Cell/></Row></Template>");
    EXPECT_TRUE(table.FromXML(again, nullptr));
    EXPECT_EQ("..2", Slots(table));
    EXPECT_EQ(3, ChildrenOf(table));
    Lay(table);
}

TEST_F(TeskTableTest, WithoutMemoryNothingIsHarmed)
{
    const std::string row = "<Row><Cell RowSpan='2'/>" + Repeated("<Cell/>", 5) + "</Row><Row/>";
    XMLNode* node = g_UIManager.AddTemplate("t", ("<Template>" + row + "</Template>").c_str());
    for (std::size_t count = 0; count < 200; ++count) {
        Allocations::FailAfter(count, Allocations::Failing::Once);
        TeskElement* table = g_UIManager.LoadElement(&Parent, "table", "T", node, nullptr);
        Allocations::Allow();
        if (table)
            Parent.DeleteChild(table);
    }

    TeskTable& table = MakeTable(row);
    table.Width = 600;
    for (std::size_t count = 0; count < 2; ++count) {
        Allocations::FailAfter(count, Allocations::Failing::FromThenOn);
        Lay(table);
        Allocations::Allow();
        EXPECT_EQ(20u, Cell(table, 0).Width);
    }
    Lay(table);
    EXPECT_EQ(100u, Cell(table, 0).Width);
}
