#include "host/script/CommandCompletion.h"

#include "host/script/CompletionNames.h"

#include <gtest/gtest.h>

using host::CommandCompletion;
using host::CompletionNames;

namespace {

using Strings = std::vector<std::string>;

// A few names, and a note of the paths that were followed.
class FewNames : public CompletionNames
{
public:
    Strings Commands() const override { return {"uielement", "ui", "run"}; }
    Strings Variables() const override { return {"Time", "Teskara", "UIElement", "Ticks", "Time"}; }
    Strings MembersOf(const std::string& path) override
    {
        Paths += path + ";";
        return {"Width", "Height", "Parent"};
    }
    Strings MethodsOf(const std::string& path) override
    {
        Paths += path + ":;";
        return {"Hide", "SetWidth"};
    }

    std::string Paths;
};

// What a line becomes by so many questions.
std::string Completed(const std::string& line, int questions = 1, bool back = false)
{
    FewNames names;
    CommandCompletion completion(names);
    std::string text = line;
    for (int question = 0; question < questions; ++question) {
        const std::string* next = completion.Complete(text, back);
        if (!next)
            return "(none)";
        text = *next;
    }
    return text;
}

} // namespace

TEST(CommandCompletion, TheFirstWordIsACommand)
{
    EXPECT_EQ("run", Completed("r"));
    EXPECT_EQ("run", Completed("R"));
    EXPECT_EQ("  run", Completed("  ru"));
    EXPECT_EQ("(none)", Completed("x"));
    EXPECT_EQ("(none)", Completed("run "));
    EXPECT_EQ("(none)", Completed("run u"));
}

TEST(CommandCompletion, FurtherQuestionsShowTheOtherNamesAndBackTheOnesBefore)
{
    EXPECT_EQ("ui", Completed("u", 1));
    EXPECT_EQ("uielement", Completed("u", 2));
    EXPECT_EQ("ui", Completed("u", 3));
    EXPECT_EQ("uielement", Completed("u", 1, true));
    EXPECT_EQ("ui", Completed("u", 2, true));
    EXPECT_EQ("run", Completed(""));
}

TEST(CommandCompletion, APathBeginsWithAVariableOrAnObject)
{
    EXPECT_EQ("echo ${Teskara", Completed("echo ${te"));
    EXPECT_EQ("echo ${Ticks", Completed("echo ${ti"));
    EXPECT_EQ("echo ${Time", Completed("echo ${ti", 2));
    EXPECT_EQ("echo ${Ticks", Completed("echo ${ti", 3)); // a name that is known twice is shown once
    EXPECT_EQ("echo ${Time} and ${UIElement", Completed("echo ${Time} and ${u"));
    EXPECT_EQ("(none)", Completed("echo ${Time} u"));
}

TEST(CommandCompletion, AnObjectIsFollowedByItsMembersOrMethods)
{
    FewNames names;
    CommandCompletion completion(names);
    EXPECT_EQ("echo ${UIElement[Ok@Main].Width", *completion.Complete("echo ${UIElement[Ok@Main].w", false));
    EXPECT_EQ("echo ${Teskara.Focus.Parent", *completion.Complete("echo ${Teskara.Focus.p", false));
    EXPECT_EQ("echo ${UIElement[a.b]:SetWidth", *completion.Complete("echo ${UIElement[a.b]:s", false));
    EXPECT_EQ("UIElement[Ok@Main];Teskara.Focus;UIElement[a.b]:;", names.Paths);
}

TEST(CommandCompletion, NothingIsCalledForAnAnswer)
{
    FewNames names;
    CommandCompletion completion(names);
    for (const char* line : {"echo ${a:Destroy.", "echo ${UIElement[a.", "echo ${= a.b", "echo ${a[${b:Destroy[]}].w"})
        EXPECT_EQ(nullptr, completion.Complete(line, false)) << line;
    EXPECT_EQ("", names.Paths);
}
