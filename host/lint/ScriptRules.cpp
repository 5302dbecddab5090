// Rules about scripts and data sequences: they are compiled, not run, and what they ask of objects is looked up.

#include "host/lint/LintContext.h"
#include "host/lint/LintRule.h"
#include "host/lint/NearestName.h"
#include "host/lint/NumberText.h"
#include "host/lint/ScriptScan.h"
#include "host/script/SequenceParser.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr const char* ChunkName = "=script";
constexpr std::string_view ChunkPrefix = "script:";
constexpr std::string_view Opening = "${";
constexpr std::string_view DataTag = "Data"; // of controls that follow a value
constexpr std::string_view This = "this";
constexpr std::string_view ElementObject = "UIElement";
constexpr std::string_view TextObject = "UserInput"; // a text, not an object with members

template <class Check> void ForEachText(const LintContext& context, std::string_view form, Check check)
{
    for (const LintValue& value : context.Values()) {
        if (value.Value && value.Value->Form == form)
            check(value, LintContext::TextOf(value));
    }
}

// The locals that a script finds: the element, and what the event tells.
std::string LocalsOf(const std::string& arguments)
{
    std::string locals = "local this";
    for (std::size_t begin = 0; begin < arguments.size();) {
        const std::size_t end = std::min(arguments.find(',', begin), arguments.size());
        const std::string one = arguments.substr(begin, end - begin);
        locals += ", " + one.substr(one.find_last_of(' ') + 1);
        begin = end + 1;
    }
    return locals + " = ...; ";
}

// Why a text does not compile, and in which of its lines; an empty message: it does.
struct CompileFault {
    std::string Message;
    std::size_t Line = 0; // from 0
};

CompileFault Compile(LuaState& lua, std::string_view prefix, std::string_view text)
{
    const ScriptCall call(lua);
    const LuaReference function(lua, lua.Compile(prefix, text, ChunkName));
    if (function.Number() != LUA_NOREF)
        return {};

    CompileFault fault;
    fault.Message = lua.Error();
    if (!fault.Message.starts_with(ChunkPrefix))
        return fault;
    const std::size_t line = ChunkPrefix.size();
    fault.Line =
        static_cast<std::size_t>(std::max(NumberText::Integer(std::string_view(fault.Message).substr(line)), 1) - 1);
    fault.Message.erase(0, std::min(fault.Message.find(": ", line) + 2, fault.Message.size()));
    return fault;
}

// The first byte of a line's own.
std::size_t OffsetOfLine(std::string_view text, std::size_t line)
{
    std::size_t at = 0;
    for (; line > 0 && text.find('\n', at) != text.npos; --line)
        at = text.find('\n', at) + 1;
    return std::min(text.find_first_not_of(" \t\r\n", at), text.size());
}

// The types that an object may be of; none: it may be any.
using Types = std::vector<const SchemaType*>;

class MemberCheck
{
public:
    MemberCheck(LintContext& context, const LintValue& value) : m_Context(context), m_Value(value) { }

    // offset: of the use's text in the value.
    void Check(const ObjectUse& use, std::size_t offset)
    {
        Types types = TypesOf(use.Object);
        for (const ObjectUse::Step& step : use.Steps) {
            const bool isLast = &step == &use.Steps.back();
            const Found found = Find(types, step.Name);
            if (!found.Member && !found.Method)
                ReportUnknown(types, step, offset);
            else if (step.IsMethod && !found.Method)
                Report(step, offset, Quoted(step.Name) + " is a member, not a method", "." + std::string(step.Name));
            else if (isLast && use.IsAssigned)
                ReportAssigned(types, step, offset);
            else if (!step.IsMethod && found.Member && Follow(*found.Member, types))
                continue;
            return;
        }
    }

private:
    const Schema& Known() const { return m_Context.Known(); }

    Types TypesOf(std::string_view object) const
    {
        Types types;
        if (object == This) {
            for (const SchemaShape* shape : m_Context.Model().ShapesOf(m_Value.Node->Parent)) {
                if (const SchemaType* type = Known().TypeOf(*shape))
                    types.push_back(type);
            }
        } else if (object != ElementObject) {
            if (const SchemaType* type = Known().FindType(object))
                types.push_back(type);
        }
        return types;
    }

    static const SchemaName* FindIn(const std::vector<SchemaName>& names, std::string_view name)
    {
        const auto found =
            std::find_if(names.begin(), names.end(), [name](const SchemaName& each) { return each.Name == name; });
        return found == names.end() ? nullptr : &*found;
    }

    // What a name is to a type, or to one of several.
    struct Found {
        const SchemaName* Member = nullptr;
        const SchemaName* Method = nullptr;
    };

    void FindIn(const SchemaType* type, std::string_view name, Found& found) const
    {
        for (; type; type = Known().FindType(type->Base)) {
            found.Member = found.Member ? found.Member : FindIn(type->Members, name);
            found.Method = found.Method ? found.Method : FindIn(type->Methods, name);
        }
    }

    Found Find(const Types& types, std::string_view name) const
    {
        Found found;
        for (const SchemaType* type : types)
            FindIn(type, name, found);
        for (const SchemaType& type : Known().Types) {
            if (types.empty())
                FindIn(&type, name, found);
        }
        return found;
    }

    // To what a member gives. False: nothing is known of that.
    bool Follow(const SchemaName& name, Types& types) const
    {
        const SchemaType* result = name.Result.empty() ? nullptr : Known().FindType(name.Result);
        types.clear();
        if (result)
            types.push_back(result);
        return result || name.Result == AnyElement;
    }

    void Report(const ObjectUse::Step& step, std::size_t offset, std::string message, std::string meant)
    {
        m_Context.Report(m_Context.PlaceIn(m_Value, offset + step.Offset), std::move(message), std::move(meant));
    }

    void ReportUnknown(const Types& types, const ObjectUse::Step& step, std::size_t offset)
    {
        const std::string subject = types.empty() ? "no type has a" : "a " + types.front()->Name + " has no";
        Report(
            step, offset, subject + " member or method " + Quoted(step.Name), NearestName(step.Name, NamesOf(types)));
    }

    void ReportAssigned(const Types& types, const ObjectUse::Step& step, std::size_t offset)
    {
        const std::string setter = "Set" + std::string(step.Name);
        Report(step, offset, "a script cannot assign to " + Quoted(step.Name),
            Find(types, setter).Method ? ":" + setter + "(...)" : "");
    }

    std::vector<std::string> NamesOf(const Types& types) const
    {
        std::vector<std::string> names;
        const auto add = [&names](const SchemaType& type) {
            for (const SchemaName& name : type.Members)
                names.push_back(name.Name);
            for (const SchemaName& name : type.Methods)
                names.push_back(name.Name);
        };
        for (const SchemaType* type : types) {
            for (; type; type = Known().FindType(type->Base))
                add(*type);
        }
        for (const SchemaType& type : Known().Types) {
            if (types.empty())
                add(type);
        }
        return names;
    }

    LintContext& m_Context;
    const LintValue& m_Value;
};

// Those whose members are known.
std::vector<std::string_view> ObjectsOf(const LintContext& context)
{
    std::vector<std::string_view> objects = {This};
    for (const std::string& object : context.Known().Objects) {
        if (object != TextObject)
            objects.push_back(object);
    }
    return objects;
}

// The parts of a text that are to be evaluated, with where they begin, as check(offset, part). One that has no end is
// empty, and the last: where others would begin nobody knows.
template <class Check> void ForEachPart(std::string_view text, Check check)
{
    std::size_t end = 0;
    for (std::size_t at = text.find(Opening); at != text.npos && end != text.npos; at = text.find(Opening, end)) {
        end = SequenceParser::FindEnd(text, at);
        check(at, end == text.npos ? std::string_view() : text.substr(at, end - at));
    }
}

ObjectUse UseOf(const std::vector<SequenceStep>& path, std::string_view text)
{
    ObjectUse use;
    use.Object = path.front().Name;
    std::size_t at = text.find(path.front().Name);
    for (std::size_t index = 1; index < path.size(); ++index) {
        at = std::min(text.find(path[index].Name, at + 1), text.size());
        use.Steps.push_back({path[index].Name, at, path[index].StepKind == SequenceStep::Kind::Method});
    }
    return use;
}

void CheckPart(LintContext& context, const LintValue& value, std::size_t offset, std::string_view text)
{
    if (text.empty()) {
        context.Report(context.PlaceIn(value, offset), "'${' has no end, and is shown as it stands", "${...}");
        return;
    }
    const Sequence sequence = SequenceParser::Read(text);
    for (const SequencePart& part : sequence.Parts) {
        if (part.PartKind == SequencePart::Kind::Nothing)
            context.Report(context.PlaceIn(value, offset), Quoted(text) + " is no reference, and is shown as nothing");
        if (part.PartKind != SequencePart::Kind::Expression)
            continue;
        const CompileFault fault = Compile(context.Lua(), "return ", part.Text);
        if (!fault.Message.empty())
            context.Report(context.PlaceIn(value, offset), Quoted(text) + " does not compile: " + fault.Message);
    }
}

bool IsNumber(std::string_view text)
{
    text = NumberText::Trim(text);
    return NumberText::FloatLength(text) == text.size();
}

// A control that follows its value has nothing to follow in a text without a part that is evaluated.
void CheckData(LintContext& context, const LintValue& value, std::string_view text)
{
    const bool isFixed = text.find(Opening) == text.npos && !text.empty() && !IsNumber(text);
    if (value.Value->Name == DataTag && isFixed)
        context.Report(value, Quoted(text) + " is a text that never changes", "${" + std::string(text) + "}");
}

// The name of a variable stands alone.
void CheckVariable(LintContext& context, const LintValue& value, std::string_view text)
{
    const bool isWrapped = text.starts_with(Opening) && text.ends_with('}');
    if (text.find(Opening) != text.npos)
        context.Report(value, Quoted(text) + " is no name of a variable",
            isWrapped ? std::string(text.substr(Opening.size(), text.size() - Opening.size() - 1)) : "");
}

} // namespace

void LintChecks::ScriptError(LintContext& context)
{
    ForEachText(context, "script", [&](const LintValue& value, std::string_view text) {
        if (text.starts_with(LintContext::LiteralMark)) // of which another rule tells
            return;
        const CompileFault fault = Compile(context.Lua(), LocalsOf(value.Value->Arguments), text);
        if (!fault.Message.empty())
            context.Report(context.PlaceIn(value, OffsetOfLine(text, fault.Line)),
                "the script does not compile: " + fault.Message);
    });
}

void LintChecks::SequenceText(LintContext& context)
{
    ForEachText(context, "sequence", [&](const LintValue& value, std::string_view text) {
        ForEachPart(text, [&](std::size_t offset, std::string_view part) { CheckPart(context, value, offset, part); });
        CheckData(context, value, text);
    });
    ForEachText(context, "variable",
        [&](const LintValue& value, std::string_view text) { CheckVariable(context, value, text); });
}

void LintChecks::UnknownMember(LintContext& context)
{
    const std::vector<std::string_view> objects = ObjectsOf(context);
    ForEachText(context, "script", [&](const LintValue& value, std::string_view text) {
        for (const ObjectUse& use : FindObjectUses(text, objects))
            MemberCheck(context, value).Check(use, 0);
    });
    ForEachText(context, "sequence", [&](const LintValue& value, std::string_view text) {
        ForEachPart(text, [&](std::size_t offset, std::string_view part) {
            const Sequence sequence = SequenceParser::Read(part);
            const std::vector<SequenceStep> none;
            const std::vector<SequenceStep>& path = sequence.Parts.empty() ? none : sequence.Parts.front().Path;
            if (!path.empty() && std::find(objects.begin(), objects.end(), path.front().Name) != objects.end())
                MemberCheck(context, value).Check(UseOf(path, part), offset);
        });
    });
}

} // namespace host
