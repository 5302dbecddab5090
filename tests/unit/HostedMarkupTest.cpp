#include "host/files/ElementMarkup.h"
#include "host/files/UsedFiles.h"
#include "tests/unit/HostedInterface.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* Dialog = "<window name='Dialogs'><Client><Children><button name='Save'><Text>S</Text></button>"
                               "</Children></Client></window>";

TEST(HostedMarkup, NothingIsLoadedNothingIsFound)
{
    EXPECT_FALSE(host::FindElementMarkup(host::UsedFiles(), "Save"));
    EXPECT_FALSE(host::FindElementMarkup(host::UsedFiles(), ""));
}

TEST(HostedMarkupDeathTest, AScriptReadsTheMarkupOfAnElement)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Dialog);
        const std::string button = "<button name=\"Save\"><Text>S</Text></button>\n";
        for (const char* name : {"Save@Client@Dialogs", "Save@Dialogs", "SAVE@dialogs"})
            EXPECT_EQ(button, *host::FindElementMarkup(ui.Host().Files(), name)) << name;
        EXPECT_EQ("<Client><Children>" + button.substr(0, button.size() - 1) + "</Children></Client>\n",
            *host::FindElementMarkup(ui.Host().Files(), "Client@Dialogs"));
    });
}

TEST(HostedMarkupDeathTest, WhatLiesDeeperIsNotFoundByLess)
{
    WithInterface([](HostedInterface& ui) {
        ui.Load(Dialog);
        for (const char* name : {"Save", "Dialogs@Save", "Lost@Dialogs", "@", "Tesk"})
            EXPECT_FALSE(host::FindElementMarkup(ui.Host().Files(), name)) << name;
    });
}

TEST(HostedMarkupDeathTest, ScriptsCallItMarkup)
{
    WithInterface([](HostedInterface& ui) {
        const std::string file = ui.Write("other.xml", "<Tesk><frame name='Pad'><X>1</X></frame></Tesk>");
        EXPECT_EQ("nil", ui.Run("Result = tostring(markup('Pad'))")); // nobody has loaded it yet
        ui.Run("command('ui', '-load', '" + file + "')");
        EXPECT_EQ("<frame name=\"Pad\"><X>1</X></frame>\n", ui.Run("Result = markup('Pad')"));
        EXPECT_EQ("", ui.Lines());
    });
}

TEST(HostedMarkupDeathTest, FilesThatAreNoInterfacesStayUnread)
{
    WithInterface([](HostedInterface& ui) {
        const std::string file = ui.Write("secret.xml", "<Secrets><frame name='Pad'/></Secrets>");
        ui.Run("command('ui', '-load', '" + file + "')");
        EXPECT_FALSE(host::FindElementMarkup(ui.Host().Files(), "Pad"));
    });
}

} // namespace
