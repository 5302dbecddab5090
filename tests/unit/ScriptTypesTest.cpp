#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/windows/TeskMessageBox.h"
#include "tests/unit/Allocations.h"
#include "tests/unit/ScriptHost.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <utility>

namespace {

MvValue ObjectValue(void* object)
{
    MvValue value;
    value.Object = object;
    return value;
}

} // namespace

TEST(ScriptTypesDeathTest, EachTypeHasTheBaseThatScriptsSee)
{
    struct Row {
        const char* Type;
        const char* Base;
    };
    constexpr Row rows[] = {
        {"teskara", nullptr},
        {"teskelement", nullptr},
        {"teskframe", "teskelement"},
        {"teskfont", nullptr},
        {"tesktexture", nullptr},
        {"teskbutton", "teskelement"},
        {"teskcheckbox", "teskelement"},
        {"tesklistbox", "teskelement"},
        {"tesklistboxitem", nullptr},
        {"teskcombobox", "tesklistbox"},
        {"teskconsole", "teskframe"},
        {"teskgauge", "teskframe"},
        {"tesktree", "teskframe"},
        {"tesktreenode", nullptr},
        {"teskhudelement", "teskelement"},
        {"teskmap", "teskelement"},
        {"teskmapblip", "teskframe"},
        {"teskmessagebox", "teskelement"},
        {"teskscrollbar", "teskelement"},
        {"teskslider", "teskelement"},
        {"tesktab", "teskframe"},
        {"tesktabcontrol", "teskframe"},
        {"tesktext", "teskelement"},
        {"tesktextedit", "teskelement"},
        {"tesktextentry", "teskelement"},
        {"tesktooltip", "teskframe"},
        {"teskwindow", "teskframe"},
    };
    WithToolkit([&](ScriptHost& host) {
        EXPECT_EQ(std::size(rows), host.Types.size());
        for (const Row& row : rows) {
            const MvTypeDefinition* base = host.Type(row.Type).GetBase();
            EXPECT_EQ(row.Base ? &host.Type(row.Base) : nullptr, base) << row.Type;
        }
    });
}

TEST(ScriptTypesDeathTest, TheTypeOfMessageBoxesHasOneMemberWithoutAValue)
{
    WithToolkit([](ScriptHost& host) {
        auto* box = dynamic_cast<TeskMessageBox*>(g_UIManager.LoadElement(g_UIManager.Screen, "messagebox", "Box"));
        ASSERT_NE(nullptr, box);
        EXPECT_EQ(&host.Type("teskmessagebox"), box->GetMvType());
        _MvTypeVar result;
        for (const auto& [type, word] :
            {std::pair(MessageBoxOK, "ok"), {MessageBoxOKCancel, "okcancel"}, {MessageBoxYesNo, "yesno"}}) {
            box->Type = type;
            EXPECT_EQ(0, host.Type("teskmessagebox").DispatchMember(ObjectValue(box), "Type", 0, nullptr, result));
            EXPECT_STREQ(word, result.Value.Text) << "it stands there, but without a type";
            EXPECT_EQ(nullptr, result.Type);
        }
        for (TeskElement* other : {static_cast<TeskElement*>(g_UIManager.Screen), static_cast<TeskElement*>(nullptr)})
            EXPECT_EQ(0, host.Type("teskmessagebox").DispatchMember(ObjectValue(other), "Type", 0, nullptr, result));
        EXPECT_EQ(-1, host.Type("teskwindow").DispatchMember(ObjectValue(nullptr), "Nonsense", 0, nullptr, result));
    });
}

TEST(ScriptTypesDeathTest, AnUnknownNameTravelsUpAllBasesOnTheSameValue)
{
    WithToolkit([](ScriptHost& host) {
        static const void* asked = nullptr;
        const MvTypeHandler handler = [](MvTypeDefinition&, MvValue value, int argc, char**, _MvTypeVar*) {
            asked = value.Object;
            return argc == 2;
        };
        host.Type("teskelement").AddMember(500, "Probe", handler);
        host.Type("teskelement").AddMethod(500, "Probe", handler);

        int object = 0;
        _MvTypeVar result;
        MvTypeDefinition& window = host.Type("teskwindow");
        EXPECT_EQ(1, window.DispatchMember(ObjectValue(&object), "Probe", 2, nullptr, result));
        EXPECT_EQ(&object, asked);
        EXPECT_EQ(0, window.DispatchMethod(ObjectValue(nullptr), "Probe", 1, nullptr));
        EXPECT_EQ(nullptr, asked);
        EXPECT_TRUE(window.InheritsMember("Probe"));
        EXPECT_TRUE(window.InheritsMethod("Probe"));
        EXPECT_EQ(-1, host.Type("teskfont").DispatchMember(ObjectValue(&object), "Probe", 2, nullptr, result));
        EXPECT_FALSE(host.Type("teskfont").InheritsMember("Probe"));
    });
}

TEST(ScriptTypesDeathTest, NoValueOfATypeComesFromText)
{
    WithToolkit([](ScriptHost& host) {
        for (const auto& [name, type] : host.Types) {
            int object = 0;
            MvValue value = ObjectValue(&object);
            EXPECT_FALSE(type->FromText(value, "Screen")) << name;
            EXPECT_FALSE(type->FromArguments(value, 0, nullptr)) << name;
            EXPECT_EQ(&object, value.Object) << name;
        }
    });
}

TEST(ScriptTypesDeathTest, AnIndexOnAValueIsUnknown)
{
    WithToolkit([](ScriptHost& host) {
        _MvTypeVar result;
        EXPECT_EQ(-1, host.Type("teskelement").GetIndex(ObjectValue(g_UIManager.Screen), 0, nullptr, result));
        EXPECT_EQ(-1, host.Type("teskwindow").GetIndex(ObjectValue(g_UIManager.Screen), 0, nullptr, result));
    });
}

TEST(ScriptTypesDeathTest, ASecondStartKeepsTheTypes)
{
    WithToolkit([](ScriptHost& host) {
        const auto types = host.Types;
        host.Types.clear();
        g_UIManager.Initialize();
        EXPECT_TRUE(host.Types.empty());
        host.Types = types;
        EXPECT_EQ(27u, host.Classed.size());
    });
}

TEST(ScriptTypesDeathTest, AStartInsideTheStartMakesNoSecondTypes)
{
    WithHost([](ScriptHost& host) {
        int added = 0;
        host.OnAddType = [&](MvTypeDefinition*) {
            ++added;
            g_UIManager.Initialize();
        };
        g_UIManager.Initialize();
        EXPECT_EQ(27, added);
        host.OnAddType = nullptr;
    });
}

TEST(ScriptTypesDeathTest, AShutdownInsideTheStartLeavesNoTypes)
{
    WithHost([](ScriptHost& host) {
        host.OnAddType = [&](MvTypeDefinition* type) {
            if (std::string(type->GetName()) == "teskframe")
                g_UIManager.Shutdown();
        };
        g_UIManager.Initialize();
        EXPECT_TRUE(host.Types.empty());
        EXPECT_EQ(2u, host.Classed.size());
    });
}

TEST(ScriptTypesDeathTest, ATypeMayBeAskedWhenItsBaseHasGone)
{
    WithToolkit([](ScriptHost& host) {
        host.OnRemoveType = [&](MvTypeDefinition*) {
            _MvTypeVar result;
            for (const auto& [name, type] : host.Types) {
                EXPECT_EQ(-1, type->DispatchMember(ObjectValue(nullptr), "Nonsense", 0, nullptr, result)) << name;
                EXPECT_FALSE(type->InheritsMethod("Nonsense")) << name;
            }
        };
        g_UIManager.Shutdown();
        EXPECT_TRUE(host.Types.empty());
    });
}

// The allocations of a start fail in turn, alone or with all that follow. Names are all entered alike, so that not each
// of the later ones is tried.
TEST(ScriptTypesDeathTest, ATypeWithoutMemoryIsLeftOutAndTheRestWorks)
{
    for (const auto failing : {Allocations::Failing::Once, Allocations::Failing::FromThenOn}) {
        for (std::size_t failure = 0; failure < 800; failure += failure < 50 ? 1 : 11) {
            WithHost([&](ScriptHost& host) {
                Allocations::FailAfter(failure, failing);
                g_UIManager.Initialize();
                Allocations::Allow();

                if (failing == Allocations::Failing::FromThenOn && failure == 0) {
                    EXPECT_TRUE(host.Types.empty()) << "failures do not reach the library";
                }
                EXPECT_LE(host.Types.size(), 27u);
                for (const auto& [name, type] : host.Types) {
                    _MvTypeVar result;
                    EXPECT_EQ(-1, type->DispatchMember(ObjectValue(nullptr), "Nonsense", 0, nullptr, result)) << name;
                }
                g_UIManager.Shutdown();
                EXPECT_TRUE(host.Types.empty());
            });
        }
    }
}
