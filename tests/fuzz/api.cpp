// Members, methods, indexes, objects and commands of all script types, with any names and arguments, on values that are
// alive, dead, or of another type, while a chaotic host lets its scripts do harm. The first byte says how many of those
// that follow are the host's decisions; the rest chooses elements and what is asked of them. Every answer must be of
// the form that tables promise, and the tree must stay whole.

#include "host/probe/TreeChecker.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/script/ScriptTable.h"
#include "teskara/script/ToolkitType.h"
#include "tests/fuzz/ApiHost.h"
#include "tests/fuzz/ElementStock.h"
#include "tests/fuzz/FreshState.h"
#include "tests/fuzz/HostileActs.h"
#include "tests/fuzz/MemoryFile.h"
#include "tests/fuzz/ModelCheck.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr std::size_t MostSteps = 24;
constexpr std::size_t MostArguments = 5;
constexpr std::size_t MostElements = 4;

const std::string LongText(5000, 'x');

constexpr const char* OtherNames[] = {"", "Nonsense", "name", "Text", "Destroy", nullptr};

// Names of elements, parts and templates; numbers at the ends of ranges; texts that are none; markup, whole and broken.
const char* const Texts[] = {"", " ", "0", "1", "2", "-1", "3", "2147483648", "-2147483649", "4294967296", "1e39",
    "nan", "-inf", "0.5", "ff00ff00", "0x7fffffff", "true", "%s%n", "${x}", "\x07r", "\xff\xfe", "e0", "e1", "e2@in",
    "in", "frame", "button", "listbox", "window", "nobody", "all", "a", "#fill", "alwaysontop", "HitTest", "text",
    "value", "userreverse", "left", "center", "a\nb\n\nc", "<", "<frame name='m' Template='all'/>", "<a><b></a>",
    "<!-- c -->", "<T Filename='#fill' Alpha='2'><left>3</left></T>", "<T><Name>f</Name><Size>9</Size></T>",
    "<text><Text>${x}</Text><OnLoad>9</OnLoad></text>", "-load", "-unload", "-reset", "-skin", "-kill", "-show",
    "-hide", "-new", "f", "-template", "-title", "ok|cancel", "Screen", LongText.c_str(), nullptr};

// --- What can be asked

// Ends the program, with what was asked and what went wrong, if an answer is not of its form.
void RequireOf(const _MvTypeVar& object, const char* name, bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s.%s: ", object.Type->GetName(), name ? name : "(null)");
    Require(false, what);
}

struct Name {
    const char* Text = nullptr;
    std::optional<ScriptRow> Row; // if it is one of the type's own
};

using Rows = std::vector<ScriptRow>;

Rows RowsOf(const MvTypeDefinition* type, void (ToolkitType::*visit)(const ToolkitType::RowVisitor&) const)
{
    Rows rows;
    (dynamic_cast<const ToolkitType&>(*type).*visit)([&rows](const ScriptRow& row) { rows.push_back(row); });
    return rows;
}

// The rows of each type, which never change.
const Rows& MembersOf(const MvTypeDefinition* type)
{
    static std::map<const MvTypeDefinition*, Rows> all;
    Rows& rows = all[type];
    if (rows.empty())
        rows = RowsOf(type, &ToolkitType::VisitMembers);
    return rows;
}

const Rows& MethodsOf(const MvTypeDefinition* type)
{
    static std::map<const MvTypeDefinition*, Rows> all;
    Rows& rows = all[type];
    if (rows.empty())
        rows = RowsOf(type, &ToolkitType::VisitMethods);
    return rows;
}

// Up to five texts, some of them null.
class Words
{
public:
    explicit Words(Decisions& bytes) : m_Count(bytes.Next() % (MostArguments + 2u))
    {
        for (std::size_t index = 0; index < std::min(m_Count, MostArguments); ++index) {
            const char* const text = Texts[bytes.Next() % std::size(Texts)];
            m_Texts[index] = text ? text : "";
            m_Arguments[index] = text ? m_Texts[index].data() : nullptr;
        }
    }

    // A count of less than none is none.
    int Count() const { return m_Count > MostArguments ? -1 : static_cast<int>(m_Count); }
    char** Arguments() { return m_Count == 0 ? nullptr : m_Arguments.data(); }

private:
    std::size_t m_Count;
    std::array<std::string, MostArguments> m_Texts;
    std::array<char*, MostArguments> m_Arguments = {};
};

class Session
{
public:
    Session(ApiHost& host, Decisions& bytes) : m_Host(host), m_Bytes(bytes) { }

    void Step()
    {
        switch (m_Bytes.Next() % 12) {
        case 0:
        case 1:
        case 2:
        case 3:
            AskMember();
            break;
        case 4:
        case 5:
        case 6:
        case 7:
            CallMethod();
            break;
        case 8:
            AskIndex();
            break;
        case 9:
            AskObject();
            break;
        case 10:
            RunCommand();
            break;
        default:
            LetTimePass();
        }
    }

private:
    // A value with the type that is asked of it: its own, one that its own inherits from, or a foreign one. Only of
    // elements it can be told what they are not.
    std::optional<_MvTypeVar> Choose()
    {
        if (m_Host.Values.empty())
            return std::nullopt;
        _MvTypeVar value = m_Host.Values[m_Bytes.Next() % m_Host.Values.size()];
        const u8 way = m_Bytes.Next();
        if (way % 4 == 0 && ApiHost::IsElementType(value.Type) && value.Type->GetBase())
            value.Type = value.Type->GetBase();
        if (way % 8 == 7) {
            MvTypeDefinition* const other = m_Host.Types[way / 8u % m_Host.Types.size()];
            if (ApiHost::IsElementType(value.Type) || !ApiHost::IsElementType(other))
                value.Type = other;
        }
        return value;
    }

    Name ChooseName(const MvTypeDefinition* type, const Rows& (*rowsOf)(const MvTypeDefinition*))
    {
        const u8 choice = m_Bytes.Next();
        if (choice >= 0xf8)
            return {OtherNames[(choice & 7u) % std::size(OtherNames)], std::nullopt};
        const bool isInherited = choice >= 0xc0 && type->GetBase();
        const Rows& rows = rowsOf(isInherited ? type->GetBase() : type);
        if (rows.empty())
            return {"Nonsense", std::nullopt};
        const ScriptRow& row = rows[choice % rows.size()];
        return {row.Name, isInherited ? std::nullopt : std::optional(row)};
    }

    void AskMember()
    {
        const std::optional<_MvTypeVar> object = Choose();
        if (!object)
            return;
        const Name name = ChooseName(object->Type, MembersOf);
        Words words(m_Bytes);
        _MvTypeVar result;
        const bool isNull = IsNullElement(*object);
        const int answer =
            object->Type->DispatchMember(object->Value, name.Text, words.Count(), words.Arguments(), result);
        CheckAnswer(*object, name, words, isNull, answer);
        RequireOf(*object, name.Text, answer != DispatchDone || result.Type, "a value without a type");
        if (name.Row && name.Row->Result && answer == DispatchDone && std::strcmp(name.Row->Result, "element") != 0)
            RequireOf(*object, name.Text, std::strcmp(name.Row->Result, result.Type->GetName()) == 0,
                "a value of another type than told");
        if (answer == DispatchDone)
            Take(result);
    }

    void CallMethod()
    {
        const std::optional<_MvTypeVar> object = Choose();
        if (!object)
            return;
        const Name name = ChooseName(object->Type, MethodsOf);
        Words words(m_Bytes);
        const bool isNull = IsNullElement(*object);
        const int answer = object->Type->DispatchMethod(object->Value, name.Text, words.Count(), words.Arguments());
        CheckAnswer(*object, name, words, isNull, answer);
    }

    static void CheckAnswer(const _MvTypeVar& object, const Name& name, const Words& words, bool isNull, int answer)
    {
        RequireOf(object, name.Text, answer >= DispatchUnknown && answer <= DispatchDone, "an answer of no kind");
        const bool isDone = answer == DispatchDone;
        RequireOf(object, name.Text, !isDone || !name.Row || name.Row->Needs <= std::max(words.Count(), 0),
            "done without the arguments that it needs");
        RequireOf(object, name.Text, !isDone || !isNull, "done by an element that is no more");
    }

    static bool IsNullElement(const _MvTypeVar& object)
    {
        return ApiHost::IsElementType(object.Type) && !object.Value.Object;
    }

    void AskIndex()
    {
        const std::optional<_MvTypeVar> object = Choose();
        if (!object)
            return;
        Words words(m_Bytes);
        _MvTypeVar result;
        const int answer = words.Count() % 2 == 0
            ? object->Type->GetIndex(object->Value, words.Count(), words.Arguments(), result)
            : object->Type->UnknownIndex(object->Value, words.Count(), words.Arguments(), result);
        if (answer == DispatchDone && result.Type)
            Take(result);
        Text(*object);
    }

    void AskObject()
    {
        const u8 choice = m_Bytes.Next();
        Words words(m_Bytes);
        _MvTypeVar result;
        if (m_Host.Objects[choice % m_Host.Objects.size()](words.Count(), words.Arguments(), result)) {
            Require(result.Type != nullptr, "an object without a type");
            Take(result);
        }
    }

    void RunCommand()
    {
        const ApiHost::Command& command = m_Host.Commands[m_Bytes.Next() % m_Host.Commands.size()];
        Words words(m_Bytes);
        std::array<char*, MostArguments + 1> arguments = {};
        std::string name = command.Name;
        arguments[0] = name.data();
        const int count = std::max(words.Count(), 0);
        for (int index = 0; index < count; ++index)
            arguments[static_cast<std::size_t>(index) + 1] = words.Arguments()[index];
        command.Run(count + 1, arguments.data());
    }

    void LetTimePass()
    {
        const u8 place = m_Bytes.Next();
        _Point2i point = PointFrom(place);
        g_UIManager.OnMouseMove(point);
        if (place % 2 == 0)
            g_UIManager.OnLMouseDown();
        g_UIManager.Render();
        g_UIManager.OnLMouseUp();
    }

    // Reads a value at once, as hosts do, and keeps it if it stands for an object.
    void Take(const _MvTypeVar& value)
    {
        if (std::strcmp(value.Type->GetName(), "string") == 0)
            Require(std::strlen(value.Value.Text) < (u64{1} << 32), "a text has no end");
        if (m_Host.IsToolkitType(value.Type)) {
            Text(value);
            m_Host.Keep(value);
        }
    }

    // No more may be written than there is room.
    static void Text(const _MvTypeVar& value)
    {
        constexpr u32 Room = 12;
        constexpr char Mark = '\x55';
        std::array<char, Room + 4> text;
        text.fill(Mark);
        if (value.Type->ToText(value.Value, text.data(), Room))
            Require(std::find(text.begin(), text.begin() + Room, '\0') != text.begin() + Room, "a text is not ended");
        Require(std::count(text.begin() + Room, text.end(), Mark) == 4, "a text is longer than its room");
    }

    ApiHost& m_Host;
    Decisions& m_Bytes;
};

// --- Before and after

QuietPlatform g_Platform;

constexpr char TemplateMarkup[] = "<Template><Width>40</Width><Height>20</Height><Text>${x}</Text><OnLoad>1</OnLoad>"
                                  "<OnUnload>2</OnUnload><OnLeftClick>3</OnLeftClick></Template>";

constexpr char FileMarkup[] = "<Tesk><Skin name='a'><SkinTemplate Base='frame' Skin='all'/></Skin>"
                              "<frame name='file' Template='all'/><button name='e1'/></Tesk>";

void MakeElements(ApiHost& host, const ElementStock& stock, Decisions& bytes)
{
    g_UIManager.AddTemplate("all", TemplateMarkup);
    for (u8 count = bytes.Next() % MostElements, number = 0; number <= count; ++number) {
        const std::string name = "e" + std::to_string(number);
        if (TeskElement* const element = stock.Make(bytes.Next(), name.c_str()))
            host.Keep({element->GetMvType(), {element}});
    }
}

void Finish(ApiHost& host)
{
    host.Choices.Take(nullptr, 0);
    ForgetEverything();
    Require(!FindTreeFault(), "the tree is not whole at the end");
    Require(g_UIManager.ElementsByID.size() == 1, "there is more than the screen after a reset");
    Require(host.Books.Imbalance().empty(), "the host's books do not balance");

    // Elements are gone, and everything that they owned.
    for (const _MvTypeVar& value : host.Values) {
        char text[64];
        value.Type->ToText(value.Value, text, sizeof(text));
        Require(!ApiHost::IsElementType(value.Type) || !value.Value.Object
                || value.Value.Object == static_cast<void*>(g_UIManager.Screen),
            "the host is not told of an element's end");
    }
    host.Values.clear();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    if (size == 0)
        return 0;
    ApiHost& host = StartedHost<ApiHost>(&g_Platform);
    static const ElementStock stock;
    static const MemoryFile file;
    file.Write(FileMarkup, sizeof(FileMarkup) - 1);
    host.File = file.Path();
    g_Platform.Ticks = 10000;
    ForgetInput();

    const std::size_t decisions = std::min<std::size_t>(data[0] / 4u, size - 1);
    host.Choices.Take(data + 1, decisions);
    Decisions bytes;
    bytes.Take(data + 1 + decisions, size - 1 - decisions);
    MakeElements(host, stock, bytes);

    Session session(host, bytes);
    for (std::size_t step = 0; step < MostSteps && !bytes.IsUsedUp(); ++step)
        session.Step();
    Require(!FindTreeFault(), "the tree is not whole");
    Finish(host);
    return 0;
}
