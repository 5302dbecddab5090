#include "teskara/core/CUIManager.h"
#include "teskara/windows/TeskWindow.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

// What programs and the toolkit make, and no markup.
const std::set<std::string> NotInMarkup = {"contextmenu", "messagebox", "scriptinputbox", "scriptmessagebox"};

bool HoldsBelow(const TeskElement& element, const std::string& kind)
{
    for (const TeskElement* child = element.FirstChild; child; child = child->Next) {
        if (child->Type == kind || HoldsBelow(*child, kind))
            return true;
    }
    return false;
}

void OpenGallery(HostedInterface& ui)
{
    ASSERT_TRUE(ui.Session().OpenSkin("slate"));
    ASSERT_TRUE(ui.Session().OpenOwn("gallery.xml"));
    ui.Frame();
    EXPECT_EQ("", ui.Lines());
}

TEST(GalleryDeathTest, EachKindHasAWindowWithSamples)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        for (const auto& [name, factory] : g_UIManager.Factories) {
            const std::string kind(std::string_view{name});
            const auto* window = dynamic_cast<TeskWindow*>(g_UIManager.FindElement(("Gallery " + kind).c_str()));
            ASSERT_TRUE(window && window->Client) << kind;
            EXPECT_EQ(kind, ui.Expand("${UIElement[Gallery " + kind + "].Title}"));
            if (NotInMarkup.contains(kind))
                continue;
            EXPECT_TRUE(HoldsBelow(*window->Client, kind)) << kind;
        }
    });
}

TEST(GalleryDeathTest, TheIndexNamesEachKind)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        for (const auto& [name, factory] : g_UIManager.Factories) {
            const std::string kind(std::string_view{name});
            EXPECT_EQ("TRUE", ui.Run("Gallery.Each(function(kind) Result = Result or kind == '" + kind + "' end)"))
                << kind;
        }
    });
}

TEST(GalleryDeathTest, TheButtonOfAWindowShowsItsMarkup)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        ui.Run("Gallery.Open('checkbox', 20, 20)");
        ui.Frame();
        EXPECT_FALSE(ui.Element("Gallery Source").Visible);
        const TeskElement& window = ui.Element("Gallery checkbox");
        ui.Click(window.X + static_cast<int>(window.Width) - 76, window.Y + 18);
        EXPECT_TRUE(ui.Element("Gallery Source").Visible);
        EXPECT_EQ("The markup of checkbox", ui.Expand("${UIElement[Gallery Source].Title}"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(GalleryDeathTest, TheMarkupOfEachWindowIsFound)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        EXPECT_EQ("NULL",
            ui.Run("Gallery.Each(function(kind) if not markup('Gallery ' .. kind) then Result = kind end end)"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(GalleryDeathTest, ARowOfTheIndexOpensItsWindow)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        const TeskElement& index = ui.Element("Kinds@Index@Gallery");
        const int row = static_cast<int>(std::stoul(ui.Expand("${UIElement[Kinds@Index@Gallery].Font.Height}"))) + 2;
        const TeskElement& window = ui.Element("Gallery text");
        ui.Click(index.AbsoluteX + 60, index.AbsoluteY + 4 + row / 2); // a group
        EXPECT_FALSE(window.Visible);
        ui.Click(index.AbsoluteX + 60, index.AbsoluteY + 4 + 2 * row + row / 2);
        EXPECT_TRUE(window.Visible);
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(GalleryDeathTest, WhatIsUnavailableTakesNoPress)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        ui.Run("Gallery.Open('checkbox', 20, 20)");
        ui.Frame();
        for (const auto& [name, changes] : {std::pair("Normal off", true), std::pair("Unavailable off", false)}) {
            const TeskElement& box = ui.Element((std::string(name) + "@Gallery checkbox").c_str());
            ui.Click(box.AbsoluteX + 8, box.AbsoluteY + 8);
            EXPECT_EQ(changes ? "TRUE" : "FALSE",
                ui.Expand("${UIElement[" + std::string(name) + "@Gallery checkbox].Checked}"))
                << name;
        }
    });
}

TEST(GalleryDeathTest, AWindowOpensAboveTheOthersAndCloses)
{
    WithInterface([](HostedInterface& ui) {
        OpenGallery(ui);
        ui.Run("Gallery.Open('listbox')");
        ui.Frame();
        const TeskElement& window = ui.Element("Gallery listbox");
        EXPECT_TRUE(window.Visible);
        ui.Run("Gallery.Close('listbox')");
        EXPECT_FALSE(window.Visible);
        ui.Run("Gallery.Each(Gallery.Open)");
        ui.Run("Gallery.Each(Gallery.Close)");
        EXPECT_FALSE(ui.Element("Gallery button").Visible);
        EXPECT_EQ("", ui.Lines());
    });
}

} // namespace
