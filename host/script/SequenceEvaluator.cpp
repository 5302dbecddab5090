#include "host/script/SequenceEvaluator.h"

#include "host/Console.h"
#include "host/record/ToolkitCalls.h"
#include "host/script/Atoms.h"
#include "host/script/ScriptGlobals.h"
#include "host/script/ScriptObjects.h"
#include "host/script/ScriptValues.h"
#include "host/script/TopLevelObjects.h"
#include "teskara/script/MvTypeDefinition.h"

namespace host {

namespace {

constexpr int MostNested = 64; // evaluations inside each other
constexpr std::size_t MostArguments = 32;
constexpr std::string_view NoValue = "NULL";
constexpr std::string_view ExpressionName = "expression";

// A variable is set to one value. With more of them it is the method of an object.
bool IsSet(const SequenceStep& step)
{
    return step.StepKind == SequenceStep::Kind::Method && step.Name == "Set" && step.Arguments.size() == 1;
}

// The arguments of a step as texts for the toolkit.
class StepArguments
{
public:
    // False: there are too many.
    bool Read(SequenceEvaluator& evaluator, const SequenceStep& step)
    {
        if (step.Arguments.size() > MostArguments)
            return false;

        if (!step.IsConstant)
            m_Evaluated.resize(step.Arguments.size());
        for (const Sequence& argument : step.Arguments) {
            const std::string* constant = argument.Constant();
            if (!step.IsConstant && !constant)
                evaluator.Append(argument, m_Evaluated[static_cast<std::size_t>(m_Count)]);
            const std::string& text = constant ? *constant : m_Evaluated[static_cast<std::size_t>(m_Count)];
            m_Texts[m_Count++] = const_cast<char*>(text.c_str()); // nobody writes there
        }
        m_Texts[m_Count] = nullptr;
        return true;
    }

    int Count() const { return m_Count; }
    char** Texts() { return m_Texts; }

private:
    char* m_Texts[MostArguments + 1];
    int m_Count = 0;
    std::vector<std::string> m_Evaluated;
};

} // namespace

SequenceEvaluator::Frame::Frame(SequenceEvaluator& evaluator)
    : Evaluator(evaluator), Outer(evaluator.m_Frame), Call(evaluator.m_In.State), Thread(evaluator.m_In.State.Thread()),
      Top(lua_gettop(Thread))
{
    evaluator.m_Frame = this;
    ++evaluator.m_Depth;
}

SequenceEvaluator::Frame::~Frame()
{
    lua_settop(Thread, Top);
    Evaluator.m_Frame = Outer;
    --Evaluator.m_Depth;
}

void SequenceEvaluator::Prepare(Sequence& sequence)
{
    LuaState& state = m_In.State;
    const ScriptCall call(state);
    for (SequencePart& part : sequence.Parts) {
        if (part.PartKind == SequencePart::Kind::Expression) {
            part.Function = LuaReference(state, state.Compile("return ", part.Text, "=expression"));
            if (part.Function.Number() == LUA_NOREF)
                SayError(sequence, part);
        }
        for (SequenceStep& step : part.Path) {
            for (Sequence& argument : step.Arguments) {
                argument.Where = sequence.Where;
                Prepare(argument);
            }
        }
        if (part.PartKind != SequencePart::Kind::Path)
            continue;
        state.Protect([&](lua_State* thread) {
            const std::string& name = part.Path.front().Name;
            lua_pushlstring(thread, name.data(), name.size());
            part.NameKey = LuaReference(state, luaL_ref(thread, LUA_REGISTRYINDEX));
        });
    }
}

void SequenceEvaluator::Append(const Sequence& sequence, std::string& text)
{
    for (const SequencePart& part : sequence.Parts) {
        if (part.PartKind == SequencePart::Kind::Text)
            text += part.Text;
        else
            AppendPart(sequence, part, text);
    }
}

void SequenceEvaluator::Invalidate(const void* object)
{
    for (Frame* frame = m_Frame; frame; frame = frame->Outer) {
        if (frame->Value.Value.Object == object)
            frame->Value = {};
    }
}

void SequenceEvaluator::ForgetType(const MvTypeDefinition* type)
{
    for (Frame* frame = m_Frame; frame; frame = frame->Outer) {
        if (frame->Value.Type == type)
            frame->Value = {};
    }
}

bool SequenceEvaluator::EvaluateWhole(const Sequence& sequence, const Frame& frame, _MvTypeVar& value)
{
    const bool isOnePart = sequence.Parts.size() == 1 && sequence.Parts[0].PartKind != SequencePart::Kind::Text;
    if (!isOnePart) {
        Append(sequence, frame.Text);
        m_In.State.Protect([&](lua_State* thread) { lua_pushstring(thread, frame.Text.c_str()); });
        value = m_In.Values.Read(frame.Thread, -1);
        return value.Type;
    }

    const Place place = Evaluate(sequence, sequence.Parts[0], frame);
    if (place == Place::Nowhere)
        return false;
    value = place == Place::Frame ? frame.Value : m_In.Values.Read(frame.Thread, -1);
    return value.Type;
}

void SequenceEvaluator::AppendPart(const Sequence& sequence, const SequencePart& part, std::string& text)
{
    const Frame frame(*this);
    const Place place = Evaluate(sequence, part, frame);
    const bool isText = place == Place::Frame ? m_In.Values.AppendText(frame.Value, text)
                                              : place == Place::Stack && m_In.Values.AppendText(frame.Thread, -1, text);
    if (!isText)
        text += NoValue;
}

SequenceEvaluator::Place SequenceEvaluator::Evaluate(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    const ScriptBudget& budget = m_In.State.Budget();
    if (m_Depth > MostNested || !lua_checkstack(frame.Thread, 8) || !part.Rest.IsOver(budget.Frame()))
        return Place::Nowhere;

    const Place place = EvaluateChecked(sequence, part, frame);
    if (budget.IsOutermost()) // else somebody else may be to blame
        part.Rest.Note(budget.WhySpent(), budget.Frame());
    return place;
}

SequenceEvaluator::Place SequenceEvaluator::EvaluateChecked(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    if (part.PartKind == SequencePart::Kind::Expression)
        return EvaluateExpression(sequence, part, frame);
    return part.PartKind == SequencePart::Kind::Path ? EvaluatePath(sequence, part, frame) : Place::Nowhere;
}

SequenceEvaluator::Place SequenceEvaluator::EvaluateExpression(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    if (part.Function.Number() == LUA_NOREF)
        return Place::Nowhere;

    part.Function.Push(frame.Thread);
    if (m_In.State.Call(0, 1))
        return Place::Stack;
    SayError(sequence, part);
    return Place::Nowhere;
}

SequenceEvaluator::Place SequenceEvaluator::EvaluatePath(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    const std::vector<SequenceStep>& path = part.Path;
    const bool isVariable = path[0].Arguments.empty() && !m_In.Objects.Find(path[0].Name);
    const bool isSetting = isVariable && path.size() > 1 && IsSet(path.back());
    if (isSetting && path.size() == 2)
        return SetVariable(sequence, part);

    Place place = Start(sequence, part, frame);
    for (std::size_t index = 1; index < path.size() && place != Place::Nowhere; ++index) {
        if (isSetting && index + 2 == path.size() && place == Place::Stack && lua_istable(frame.Thread, -1))
            return SetField(sequence, part, frame);
        place = TakeStep(path[index], frame, place);
    }
    return place;
}

// The value of the name that a path begins with.
SequenceEvaluator::Place SequenceEvaluator::Start(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    const SequenceStep& step = part.Path[0];
    if (const TopLevelObjectHandler handler = m_In.Objects.Find(step.Name)) {
        StepArguments arguments;
        return arguments.Read(*this, step)
                && Toolkit::AskTopLevelObject(handler, arguments.Count(), arguments.Texts(), frame.Value)
                && frame.Value.Type
            ? Place::Frame
            : Place::Nowhere;
    }
    if (step.Name == "this" && m_In.Scripts.Self().Type) {
        frame.Value = m_In.Scripts.Self();
        return Place::Frame;
    }

    part.NameKey.Push(frame.Thread);
    m_In.Globals.PushNamed(frame.Thread);
    if (step.Arguments.empty())
        return Place::Stack;
    return ScriptObjects::At(frame.Thread, -1) ? ReadIndex(step, frame) : CallFunction(sequence, part, frame);
}

SequenceEvaluator::Place SequenceEvaluator::SetVariable(const Sequence& sequence, const SequencePart& part)
{
    StepArguments arguments;
    if (!arguments.Read(*this, part.Path[1]) || arguments.Count() == 0)
        return Place::Nowhere;

    const bool isSet = m_In.State.Protect([&](lua_State* thread) {
        lua_pushglobaltable(thread);
        part.NameKey.Push(thread);
        ScriptValues::PushVariable(thread, arguments.Texts()[0]);
        lua_pushvalue(thread, -1);
        lua_insert(thread, 1);
        lua_settable(thread, 2);
        lua_settop(thread, 1);
    });
    if (isSet)
        return Place::Stack;
    SayError(sequence, part);
    return Place::Nowhere;
}

// Sets a field of the table on top of the stack: the last two steps are its name and what it becomes.
SequenceEvaluator::Place SequenceEvaluator::SetField(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    const SequenceStep& field = part.Path[part.Path.size() - 2];
    StepArguments arguments;
    if (field.StepKind != SequenceStep::Kind::Member || !field.Arguments.empty()
        || !arguments.Read(*this, part.Path.back()) || arguments.Count() == 0)
        return Place::Nowhere;

    lua_pushcfunction(frame.Thread, [](lua_State* thread) {
        lua_pushstring(thread, static_cast<const char*>(lua_touserdata(thread, 2)));
        ScriptValues::PushVariable(thread, static_cast<const char*>(lua_touserdata(thread, 3)));
        lua_pushvalue(thread, -1);
        lua_replace(thread, 2);
        lua_settable(thread, 1);
        lua_settop(thread, 2);
        return 1;
    });
    lua_insert(frame.Thread, -2);
    lua_pushlightuserdata(frame.Thread, const_cast<char*>(field.Name.c_str()));
    lua_pushlightuserdata(frame.Thread, const_cast<char*>(arguments.Texts()[0]));
    if (m_In.State.Call(3, 1))
        return Place::Stack;
    SayError(sequence, part);
    return Place::Nowhere;
}

// What the object on top of the stack has at an index.
SequenceEvaluator::Place SequenceEvaluator::ReadIndex(const SequenceStep& step, const Frame& frame)
{
    StepArguments arguments;
    if (!arguments.Read(*this, step))
        return Place::Nowhere;

    const ScriptObject* object = ScriptObjects::At(frame.Thread, -1);
    if (!object->Value.Type)
        return Place::Nowhere;
    const int done = Toolkit::GetIndex(_MvTypeVar(object->Value), arguments.Count(), arguments.Texts(), frame.Value);
    return done == DispatchDone && frame.Value.Type ? Place::Frame : Place::Nowhere;
}

// A function that a script has made answers ${Name[argument,...]}. It lies on top of the stack.
SequenceEvaluator::Place SequenceEvaluator::CallFunction(
    const Sequence& sequence, const SequencePart& part, const Frame& frame)
{
    StepArguments arguments;
    if (!lua_isfunction(frame.Thread, -1) || !arguments.Read(*this, part.Path[0]))
        return Place::Nowhere;

    const bool isReady = m_In.State.Protect([&](lua_State* thread) {
        luaL_checkstack(thread, arguments.Count(), nullptr);
        for (int index = 0; index < arguments.Count(); ++index)
            lua_pushstring(thread, arguments.Texts()[index]);
    });
    if (isReady && m_In.State.Call(arguments.Count(), 1))
        return Place::Stack;
    SayError(sequence, part);
    return Place::Nowhere;
}

// A method's value is what it was called on.
SequenceEvaluator::Place SequenceEvaluator::TakeStep(const SequenceStep& step, const Frame& frame, Place place)
{
    if (place == Place::Stack) {
        const ScriptObject* object = ScriptObjects::At(frame.Thread, -1);
        if (!object)
            return ReadField(step, frame);
        frame.Value = object->Value;
    }

    StepArguments arguments;
    if (!arguments.Read(*this, step) || !frame.Value.Type)
        return Place::Nowhere;

    const _MvTypeVar object = frame.Value; // the frame may forget it meanwhile
    if (step.StepKind == SequenceStep::Kind::Method)
        return Toolkit::DispatchMethod(object, step.Name.c_str(), arguments.Count(), arguments.Texts()) == DispatchDone
            ? Place::Frame
            : Place::Nowhere;

    _MvTypeVar result;
    const int done = Toolkit::DispatchMember(object, step.Name.c_str(), arguments.Count(), arguments.Texts(), result);
    frame.Value = result;
    return done == DispatchDone && result.Type ? Place::Frame : Place::Nowhere;
}

// A field of the table on top of the stack.
SequenceEvaluator::Place SequenceEvaluator::ReadField(const SequenceStep& step, const Frame& frame)
{
    if (!lua_istable(frame.Thread, -1) || step.StepKind == SequenceStep::Kind::Method || !step.Arguments.empty())
        return Place::Nowhere;

    lua_pushcfunction(frame.Thread, [](lua_State* thread) {
        lua_pushstring(thread, static_cast<const char*>(lua_touserdata(thread, 2)));
        lua_gettable(thread, 1);
        return 1;
    });
    lua_insert(frame.Thread, -2);
    lua_pushlightuserdata(frame.Thread, const_cast<char*>(step.Name.c_str()));
    return m_In.State.Call(2, 1) ? Place::Stack : Place::Nowhere;
}

void SequenceEvaluator::SayError(const Sequence& sequence, const SequencePart& part)
{
    const bool isSpent = m_In.State.Budget().WhySpent();
    if (part.IsErrorSaid || (isSpent && !m_In.State.Budget().TakeNews()))
        return;

    part.IsErrorSaid = true;
    std::string why = m_In.State.Error();
    const std::string chunk = std::string(ExpressionName) + ":1: ";
    if (why.starts_with(chunk))
        why.erase(0, chunk.size());
    const bool isExpression = part.PartKind == SequencePart::Kind::Expression;
    const std::string& outer = m_In.Output.Trail().Where();
    const std::string where = outer.empty() ? sequence.Where : outer;
    const TrailStep step(m_In.Output.Trail(), where);
    m_In.Output.PrintText((isExpression ? "${=" : "${") + part.Text + "}: " + why, LineWeight::Error);
}

} // namespace host
