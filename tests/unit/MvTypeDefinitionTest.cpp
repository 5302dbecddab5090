#include "teskara/script/MvTypeDefinition.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

MvValue ValueOf(u64 word)
{
    MvValue value;
    value.Words[0] = word;
    value.Words[1] = 77;
    return value;
}

// Notes what reaches the operations that a type of the toolkit overrides.
class NotingType : public MvTypeDefinition
{
public:
    using MvTypeDefinition::MvTypeDefinition;

    bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result) override
    {
        Note("member", value, member.ID, argc, argv);
        result.Value.Integer = 5;
        result.Type = this;
        return Answer;
    }

    bool GetMethod(MvValue value, _MvTypeMember& method, int argc, char** argv) override
    {
        Note("method", value, method.ID, argc, argv);
        return Answer;
    }

    int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result) override
    {
        return GetBase() ? GetBase()->DispatchMember(value, name, argc, argv, result)
                         : MvTypeDefinition::UnknownMember(value, name, argc, argv, result);
    }

    int UnknownMethod(MvValue value, const char* name, int argc, char** argv) override
    {
        return GetBase() ? GetBase()->DispatchMethod(value, name, argc, argv)
                         : MvTypeDefinition::UnknownMethod(value, name, argc, argv);
    }

    bool Answer = true;
    std::vector<std::string> Notes;

private:
    void Note(const char* what, MvValue value, u32 id, int argc, char** argv)
    {
        std::string note = what + (" " + std::to_string(id)) + " of " + std::to_string(value.Words[0]);
        for (int index = 0; index < argc; ++index)
            note += std::string(" ") + argv[index];
        Notes.push_back(note);
    }
};

using Notes = std::vector<std::string>;

int g_HandlerCalls = 0;

bool FirstHandler(MvTypeDefinition& type, MvValue value, int argc, char**, _MvTypeVar* result)
{
    ++g_HandlerCalls;
    if (result) {
        result->Value.Unsigned64 = value.Words[0] + static_cast<u64>(argc);
        result->Type = &type;
    }
    return true;
}

bool SecondHandler(MvTypeDefinition&, MvValue, int, char**, _MvTypeVar*)
{
    return false;
}

int Member(MvTypeDefinition& type, const char* name)
{
    _MvTypeVar result;
    return type.DispatchMember(ValueOf(1), name, 0, nullptr, result);
}

int Method(MvTypeDefinition& type, const char* name)
{
    return type.DispatchMethod(ValueOf(1), name, 0, nullptr);
}

u32 MemberID(const MvTypeDefinition& type, const char* name)
{
    u32 id = 999;
    EXPECT_TRUE(type.GetMemberID(name, id)) << name;
    return id;
}

u32 MethodID(const MvTypeDefinition& type, const char* name)
{
    u32 id = 999;
    EXPECT_TRUE(type.GetMethodID(name, id)) << name;
    return id;
}

} // namespace

// --- Names

TEST(MvTypeDefinition, ANameOf32BytesIsCutTo31)
{
    const std::string name(32, 'n');
    EXPECT_EQ(std::string(31, 'n'), MvTypeDefinition(name.c_str()).GetName());
    EXPECT_EQ(std::string(31, 'n'), MvTypeDefinition(std::string(500, 'n').c_str()).GetName());
}

TEST(MvTypeDefinition, ANameOf31BytesIsKeptWhole)
{
    const std::string name(31, 'n');
    EXPECT_EQ(name, MvTypeDefinition(name.c_str()).GetName());
}

TEST(MvTypeDefinition, AMissingNameIsTheEmptyName)
{
    EXPECT_STREQ("", MvTypeDefinition(nullptr).GetName());
}

TEST(MvTypeDefinition, IdsOfMembersStartAtOne)
{
    MvTypeDefinition type("type");
    EXPECT_TRUE(type.RegisterMember("A", nullptr));
    EXPECT_TRUE(type.RegisterMember("B", nullptr));
    EXPECT_EQ(1u, MemberID(type, "A"));
    EXPECT_EQ(2u, MemberID(type, "B"));
}

TEST(MvTypeDefinition, IdsOfMethodsAreCountedApartFromThoseOfMembers)
{
    MvTypeDefinition type("type");
    type.RegisterMember("A", nullptr);
    EXPECT_TRUE(type.RegisterMethod("A", nullptr));
    EXPECT_EQ(1u, MethodID(type, "A"));
}

TEST(MvTypeDefinition, AGivenIdMovesTheNextFreeOneBehindIt)
{
    MvTypeDefinition type("type");
    EXPECT_TRUE(type.AddMember(40, "A", nullptr));
    EXPECT_TRUE(type.RegisterMember("B", nullptr));
    EXPECT_EQ(40u, MemberID(type, "A"));
    EXPECT_EQ(41u, MemberID(type, "B"));

    EXPECT_TRUE(type.AddMethod(40, "A", nullptr));
    EXPECT_TRUE(type.RegisterMethod("B", nullptr));
    EXPECT_EQ(41u, MethodID(type, "B"));
}

TEST(MvTypeDefinition, AGivenIdBelowTheNextFreeOneLeavesItAlone)
{
    MvTypeDefinition type("type");
    type.AddMember(40, "A", nullptr);
    EXPECT_TRUE(type.AddMember(0, "B", nullptr));
    EXPECT_TRUE(type.RegisterMember("C", nullptr));
    EXPECT_EQ(0u, MemberID(type, "B"));
    EXPECT_EQ(41u, MemberID(type, "C"));
}

TEST(MvTypeDefinition, TheSameNameAndHandlerTwiceIsRefusedAndChangesNothing)
{
    MvTypeDefinition type("type");
    EXPECT_TRUE(type.RegisterMember("A", FirstHandler));
    EXPECT_FALSE(type.RegisterMember("A", FirstHandler));
    EXPECT_FALSE(type.AddMember(1, "A", FirstHandler));
    EXPECT_TRUE(type.RegisterMember("B", FirstHandler));
    EXPECT_EQ(1u, MemberID(type, "A"));
    EXPECT_EQ(2u, MemberID(type, "B"));

    EXPECT_TRUE(type.AddMethod(3, "A", nullptr));
    EXPECT_FALSE(type.AddMethod(3, "A", nullptr));
    EXPECT_TRUE(type.RemoveMethod("A", nullptr));
    EXPECT_FALSE(type.RemoveMethod("A", nullptr));
}

TEST(MvTypeDefinition, ASecondHandlerTakesTheIdOfTheName)
{
    MvTypeDefinition type("type");
    type.AddMember(7, "A", nullptr);
    EXPECT_TRUE(type.RegisterMember("A", FirstHandler));
    EXPECT_EQ(7u, MemberID(type, "A"));
}

TEST(MvTypeDefinition, TheIdOfANameIsThatOfItsNewestRecord)
{
    MvTypeDefinition type("type");
    type.AddMember(7, "A", nullptr);
    EXPECT_TRUE(type.AddMember(9, "A", FirstHandler));
    EXPECT_EQ(9u, MemberID(type, "A"));
    EXPECT_TRUE(type.RemoveMember("A", FirstHandler));
    EXPECT_EQ(7u, MemberID(type, "A"));
}

TEST(MvTypeDefinition, AnUnknownNameHasNoIdAndLeavesTheOneGiven)
{
    MvTypeDefinition type("type");
    u32 id = 5;
    EXPECT_FALSE(type.GetMemberID("A", id));
    EXPECT_FALSE(type.GetMethodID("A", id));
    EXPECT_FALSE(type.GetMemberID(nullptr, id));
    EXPECT_EQ(5u, id);
}

TEST(MvTypeDefinition, NamesDifferByCase)
{
    NotingType type("type");
    type.AddMember(1, "Name", nullptr);
    type.AddMethod(1, "Name", nullptr);
    EXPECT_EQ(1, Member(type, "Name"));
    EXPECT_EQ(-1, Member(type, "name"));
    EXPECT_EQ(-1, Method(type, "NAME"));
}

TEST(MvTypeDefinition, AMissingNameIsNeitherAddedNorRemoved)
{
    MvTypeDefinition type("type");
    EXPECT_FALSE(type.AddMember(1, nullptr, nullptr));
    EXPECT_FALSE(type.RegisterMember(nullptr, nullptr));
    EXPECT_FALSE(type.RemoveMember(nullptr, nullptr));
    EXPECT_FALSE(type.AddMethod(1, nullptr, nullptr));
    EXPECT_FALSE(type.RegisterMethod(nullptr, nullptr));
    EXPECT_FALSE(type.RemoveMethod(nullptr, nullptr));
}

TEST(MvTypeDefinition, AFewHundredNamesKeepTheirIds)
{
    MvTypeDefinition type("type");
    for (u32 id = 0; id < 300; ++id)
        ASSERT_TRUE(type.AddMember(id, ("Name" + std::to_string(id)).c_str(), nullptr));
    for (u32 id = 0; id < 300; id += 2)
        ASSERT_TRUE(type.RemoveMember(("Name" + std::to_string(id)).c_str(), nullptr));
    for (u32 id = 0; id < 300; id += 4)
        ASSERT_TRUE(type.AddMember(id + 1000, ("Name" + std::to_string(id)).c_str(), nullptr));

    u32 found = 0;
    EXPECT_FALSE(type.GetMemberID("Name2", found));
    EXPECT_EQ(1000u, MemberID(type, "Name0"));
    EXPECT_EQ(1296u, MemberID(type, "Name296"));
    EXPECT_EQ(299u, MemberID(type, "Name299"));
}

TEST(MvTypeDefinition, RemovingNeedsTheVeryHandler)
{
    MvTypeDefinition type("type");
    type.RegisterMember("A", FirstHandler);
    EXPECT_FALSE(type.RemoveMember("A", SecondHandler));
    EXPECT_FALSE(type.RemoveMember("A", nullptr));
    EXPECT_FALSE(type.RemoveMember("B", FirstHandler));
    EXPECT_TRUE(type.RemoveMember("A", FirstHandler));
    EXPECT_FALSE(type.RemoveMember("A", FirstHandler));
}

TEST(MvTypeDefinition, ANameLeavesWithItsLastRecord)
{
    MvTypeDefinition type("type");
    type.RegisterMember("A", FirstHandler);
    type.RemoveMember("A", FirstHandler);
    EXPECT_EQ(-1, Member(type, "A"));
    EXPECT_TRUE(type.RegisterMember("A", SecondHandler));
    EXPECT_EQ(0, Member(type, "A"));
    EXPECT_EQ(2u, MemberID(type, "A"));
}

TEST(MvTypeDefinition, OfSeveralHandlersTheNewestAnswersAndThenTheOneBeforeIt)
{
    NotingType type("type");
    type.AddMember(1, "A", nullptr);
    type.AddMember(2, "A", FirstHandler);
    type.AddMember(3, "A", SecondHandler);

    EXPECT_EQ(0, Member(type, "A"));
    EXPECT_TRUE(type.RemoveMember("A", SecondHandler));
    EXPECT_EQ(1, Member(type, "A"));
    EXPECT_TRUE(type.Notes.empty());
    EXPECT_TRUE(type.RemoveMember("A", FirstHandler));
    EXPECT_EQ(1, Member(type, "A"));
    EXPECT_EQ(Notes({"member 1 of 1"}), type.Notes);
}

TEST(MvTypeDefinition, ARecordInTheMiddleOrAtTheEndOfItsChainCanGo)
{
    NotingType type("type");
    type.AddMember(1, "A", nullptr);
    type.AddMember(2, "A", FirstHandler);
    type.AddMember(3, "A", SecondHandler);

    EXPECT_TRUE(type.RemoveMember("A", FirstHandler));
    EXPECT_EQ(3u, MemberID(type, "A"));
    EXPECT_TRUE(type.RemoveMember("A", nullptr));
    EXPECT_EQ(3u, MemberID(type, "A"));
    EXPECT_TRUE(type.RemoveMember("A", SecondHandler));
    EXPECT_EQ(-1, Member(type, "A"));
}

// --- Dispatch

TEST(MvTypeDefinition, AMissingNameIsUnknown)
{
    NotingType type("type");
    type.AddMember(1, "", nullptr);
    EXPECT_EQ(-1, Member(type, nullptr));
    EXPECT_EQ(-1, Method(type, nullptr));
    EXPECT_EQ(1, Member(type, ""));
}

TEST(MvTypeDefinition, AMemberWithoutAHandlerIsAskedOfTheType)
{
    NotingType type("type");
    type.AddMember(12, "A", nullptr);
    char first[] = "x";
    char second[] = "y";
    char* argv[] = {first, second};
    _MvTypeVar result;
    EXPECT_EQ(1, type.DispatchMember(ValueOf(42), "A", 2, argv, result));
    EXPECT_EQ(Notes({"member 12 of 42 x y"}), type.Notes);
    EXPECT_EQ(&type, result.Type);
    EXPECT_EQ(5, result.Value.Integer);
}

TEST(MvTypeDefinition, AMethodWithoutAHandlerIsAskedOfTheType)
{
    NotingType type("type");
    type.AddMethod(3, "A", nullptr);
    char argument[] = "x";
    char* argv[] = {argument};
    EXPECT_EQ(1, type.DispatchMethod(ValueOf(42), "A", 1, argv));
    EXPECT_EQ(Notes({"method 3 of 42 x"}), type.Notes);
    EXPECT_EQ(-1, Member(type, "A"));
}

TEST(MvTypeDefinition, AnAnswerOfFalseIsNotUnknown)
{
    NotingType type("type");
    type.Answer = false;
    type.AddMember(1, "A", nullptr);
    type.AddMethod(1, "A", nullptr);
    EXPECT_EQ(0, Member(type, "A"));
    EXPECT_EQ(0, Method(type, "A"));
}

TEST(MvTypeDefinition, AHandlerAnswersInPlaceOfTheType)
{
    NotingType type("type");
    type.AddMember(1, "A", FirstHandler);
    type.AddMethod(1, "A", FirstHandler);
    g_HandlerCalls = 0;
    _MvTypeVar result;
    EXPECT_EQ(1, type.DispatchMember(ValueOf(42), "A", 3, nullptr, result));
    EXPECT_EQ(45u, result.Value.Unsigned64);
    EXPECT_EQ(&type, result.Type);
    EXPECT_EQ(1, type.DispatchMethod(ValueOf(42), "A", 0, nullptr));
    EXPECT_EQ(2, g_HandlerCalls);
    EXPECT_TRUE(type.Notes.empty());
}

TEST(MvTypeDefinition, ATypeThatOverridesNothingAnswersFalseToItsOwnNames)
{
    MvTypeDefinition type("type");
    type.AddMember(1, "A", nullptr);
    type.AddMethod(1, "A", nullptr);
    EXPECT_EQ(0, Member(type, "A"));
    EXPECT_EQ(0, Method(type, "A"));
    EXPECT_EQ(-1, Member(type, "B"));
    EXPECT_EQ(-1, Method(type, "B"));
}

TEST(MvTypeDefinition, TheBaseOperationsGoOnByName)
{
    class ByName : public MvTypeDefinition
    {
    public:
        using MvTypeDefinition::MvTypeDefinition;
        bool GetMemberByName(MvValue, const char* name, int, char**, _MvTypeVar&) override
        {
            return std::strcmp(name, "Yes") == 0;
        }
        bool GetMethodByName(MvValue, const char* name, int, char**) override { return std::strcmp(name, "Do") == 0; }
    };

    ByName type("type");
    for (const char* name : {"Yes", "No"})
        type.AddMember(1, name, nullptr);
    for (const char* name : {"Do", "Dont"})
        type.AddMethod(1, name, nullptr);
    EXPECT_EQ(1, Member(type, "Yes"));
    EXPECT_EQ(0, Member(type, "No"));
    EXPECT_EQ(1, Method(type, "Do"));
    EXPECT_EQ(0, Method(type, "Dont"));
}

TEST(MvTypeDefinition, AnIndexIsUnknownWithoutAnOverride)
{
    class Indexed : public MvTypeDefinition
    {
    public:
        using MvTypeDefinition::MvTypeDefinition;
        int UnknownIndex(MvValue, int argc, char**, _MvTypeVar&) override { return argc; }
    };

    MvTypeDefinition plain("type");
    Indexed indexed("type");
    _MvTypeVar result;
    EXPECT_EQ(-1, plain.GetIndex(ValueOf(1), 1, nullptr, result));
    EXPECT_EQ(1, indexed.GetIndex(ValueOf(1), 1, nullptr, result));
}

// --- Inheritance

TEST(MvTypeDefinition, ANewTypeHasNoBase)
{
    MvTypeDefinition type("type");
    EXPECT_EQ(nullptr, type.GetBase());
    EXPECT_FALSE(type.InheritsMember("A"));
    EXPECT_FALSE(type.InheritsMethod("A"));
}

TEST(MvTypeDefinition, ANameTravelsUpToTheBaseThatHasIt)
{
    NotingType root("root");
    NotingType middle("middle");
    NotingType leaf("leaf");
    middle.SetBase(&root);
    leaf.SetBase(&middle);
    root.AddMember(4, "A", nullptr);
    root.AddMethod(5, "A", nullptr);

    EXPECT_EQ(1, Member(leaf, "A"));
    EXPECT_EQ(1, Method(leaf, "A"));
    EXPECT_EQ(Notes({"member 4 of 1", "method 5 of 1"}), root.Notes);
    EXPECT_EQ(-1, Member(leaf, "B"));
    EXPECT_EQ(-1, Method(leaf, "B"));
}

TEST(MvTypeDefinition, ANameOfItsOwnHidesThatOfTheBaseEvenWhenItAnswersFalse)
{
    NotingType root("root");
    NotingType leaf("leaf");
    leaf.SetBase(&root);
    leaf.Answer = false;
    for (NotingType* type : {&root, &leaf}) {
        type->AddMember(4, "A", nullptr);
        type->AddMethod(4, "A", nullptr);
    }

    EXPECT_EQ(0, Member(leaf, "A"));
    EXPECT_EQ(0, Method(leaf, "A"));
    EXPECT_TRUE(root.Notes.empty());
}

TEST(MvTypeDefinition, InheritingCountsTheBasesAndNotTheTypeItself)
{
    MvTypeDefinition root("root");
    MvTypeDefinition middle("middle");
    MvTypeDefinition leaf("leaf");
    middle.SetBase(&root);
    leaf.SetBase(&middle);
    root.RegisterMember("Root", nullptr);
    root.RegisterMethod("Do", nullptr);
    leaf.RegisterMember("Leaf", nullptr);

    EXPECT_TRUE(leaf.InheritsMember("Root"));
    EXPECT_TRUE(middle.InheritsMember("Root"));
    EXPECT_FALSE(root.InheritsMember("Root"));
    EXPECT_FALSE(leaf.InheritsMember("Leaf"));
    EXPECT_FALSE(leaf.InheritsMember("Do"));
    EXPECT_TRUE(leaf.InheritsMethod("Do"));
    EXPECT_FALSE(leaf.InheritsMethod("Root"));
    EXPECT_FALSE(leaf.InheritsMember(nullptr));
    EXPECT_FALSE(leaf.InheritsMethod(nullptr));
}

TEST(MvTypeDefinition, BasesFormNoCircle)
{
    MvTypeDefinition root("root");
    MvTypeDefinition leaf("leaf");
    leaf.SetBase(&root);
    root.SetBase(&leaf);
    root.SetBase(&root);
    EXPECT_EQ(nullptr, root.GetBase());
    EXPECT_FALSE(leaf.InheritsMember("A"));
    leaf.SetBase(nullptr);
    EXPECT_EQ(nullptr, leaf.GetBase());
}

// --- Variables

TEST(MvTypeDefinition, NothingIsMadeFromAValueOrATextByItself)
{
    MvTypeDefinition type("type");
    MvValue value = ValueOf(3);
    EXPECT_FALSE(type.FromValue(value));
    EXPECT_FALSE(type.FromText(value, "text"));
    EXPECT_FALSE(type.FromArguments(value, 0, nullptr));
    type.FreeValue(value);
    EXPECT_EQ(3u, value.Words[0]);
}

TEST(MvTypeDefinition, ATextIsTriedAsAValue)
{
    class FromAnyValue : public MvTypeDefinition
    {
    public:
        using MvTypeDefinition::MvTypeDefinition;
        bool FromValue(MvValue&) override { return true; }
    };

    FromAnyValue type("type");
    MvValue value;
    EXPECT_TRUE(type.FromText(value, "text"));
    EXPECT_TRUE(type.FromArguments(value, 0, nullptr));
}

namespace {

class TextKeeper : public MvTypeDefinition
{
public:
    using MvTypeDefinition::MvTypeDefinition;
    bool FromText(MvValue&, const char* text) override
    {
        Text = text;
        return true;
    }
    std::string Text = "none";
};

} // namespace

TEST(MvTypeDefinition, ArgumentsAreJoinedWithOneBlankBetweenThem)
{
    TextKeeper type("type");
    MvValue value;
    char first[] = "one";
    char second[] = "";
    char third[] = "three";
    char* argv[] = {first, second, third};
    EXPECT_TRUE(type.FromArguments(value, 3, argv));
    EXPECT_EQ("one  three", type.Text);
    type.FromArguments(value, 1, argv);
    EXPECT_EQ("one", type.Text);
}

TEST(MvTypeDefinition, NoArgumentsAreTheEmptyText)
{
    TextKeeper type("type");
    MvValue value;
    char* argv[] = {nullptr, nullptr};
    type.FromArguments(value, 0, argv);
    EXPECT_EQ("", type.Text);
    type.FromArguments(value, -3, argv);
    EXPECT_EQ("", type.Text);
    type.FromArguments(value, 3, nullptr);
    EXPECT_EQ("", type.Text);
    type.FromArguments(value, 2, argv);
    EXPECT_EQ(" ", type.Text);
}

TEST(MvTypeDefinition, JoinedArgumentsAreCutAt4095Bytes)
{
    TextKeeper type("type");
    MvValue value;
    std::string first(4000, 'a');
    for (const std::size_t length : {93u, 94u, 95u, 4000u}) {
        std::string second(length, 'b');
        char* argv[] = {first.data(), second.data(), first.data()};
        type.FromArguments(value, 3, argv);
        EXPECT_EQ((first + " " + second + " " + first).substr(0, 4095), type.Text);
    }
}

TEST(MvTypeDefinition, AVariableStartsWithAWordOfZero)
{
    MvTypeDefinition type("type");
    MvValue value = ValueOf(3);
    EXPECT_TRUE(type.InitVariable(value, ""));
    EXPECT_EQ(0u, value.Words[0]);
    EXPECT_EQ(77u, value.Words[1]);

    value = ValueOf(3);
    EXPECT_TRUE(type.InitVariable(value, nullptr));
    EXPECT_EQ(0u, value.Words[0]);

    value = ValueOf(3);
    type.InitValue(value, "any");
    EXPECT_EQ(0u, value.Words[0]);
}

TEST(MvTypeDefinition, AVariableWithASubtypeIsRefusedAndLeftAlone)
{
    MvTypeDefinition type("type");
    MvValue value = ValueOf(3);
    EXPECT_FALSE(type.InitVariable(value, "int"));
    EXPECT_EQ(3u, value.Words[0]);
}

TEST(MvTypeDefinition, TheTypeOfAVariableIsTheTypeItself)
{
    MvTypeDefinition type("type");
    EXPECT_EQ(&type, type.GetVariableType());
}

// --- Text of a value

TEST(MvTypeDefinition, AValueHasNoTextByItself)
{
    MvTypeDefinition type("type");
    char buffer[16] = "kept";
    EXPECT_FALSE(type.ToText(ValueOf(1), buffer, sizeof(buffer)));
    EXPECT_FALSE(type.ToTextCopy(ValueOf(1), buffer));
    EXPECT_FALSE(type.ToTextFallback(ValueOf(1), buffer));
    EXPECT_STREQ("kept", buffer);
}

namespace {

class Fallback : public MvTypeDefinition
{
public:
    using MvTypeDefinition::MvTypeDefinition;
    bool ToTextFallback(MvValue, char* buffer) override
    {
        std::strcpy(buffer, "fallback");
        return true;
    }
};

} // namespace

TEST(MvTypeDefinition, ATextIsAskedOfTheCopyAndThenOfTheFallback)
{
    Fallback type("type");
    char buffer[16] = "";
    EXPECT_TRUE(type.ToTextCopy(ValueOf(1), buffer));
    EXPECT_STREQ("fallback", buffer);
    EXPECT_TRUE(type.ToText(ValueOf(1), buffer, sizeof(buffer)));
    EXPECT_STREQ("fallback", buffer);
}

TEST(MvTypeDefinition, ATextIsCutToTheSizeGiven)
{
    Fallback type("type");
    char buffer[16] = "0123456789";
    EXPECT_TRUE(type.ToText(ValueOf(1), buffer, 4));
    EXPECT_STREQ("fal", buffer);
    EXPECT_EQ('4', buffer[4]);
    EXPECT_TRUE(type.ToText(ValueOf(1), buffer, 0));
    EXPECT_STREQ("fal", buffer);
    EXPECT_FALSE(type.ToText(ValueOf(1), nullptr, 4));
}
