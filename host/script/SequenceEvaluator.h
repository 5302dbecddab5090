#pragma once

#include "host/script/Sequence.h"
#include "teskara/script/MvTypeVar.h"

#include <string>
#include <string_view>

namespace host {

class Atoms;
class Console;
class ScriptGlobals;
class ScriptValues;
class TopLevelObjects;

// Evaluates the parts of texts. What has no value reads NULL; if a script of the text's failed, a line says why, once.
class SequenceEvaluator
{
public:
    struct Surroundings {
        LuaState& State;
        const ScriptGlobals& Globals;
        const ScriptValues& Values;
        const TopLevelObjects& Objects;
        const Atoms& Scripts;
        Console& Output;
    };

    // Everything is borrowed.
    explicit SequenceEvaluator(const Surroundings& surroundings) : m_In(surroundings) { }

    // Compiles what is to be compiled of a text.
    void Prepare(Sequence& sequence);

    // Appends what the text is now. May run scripts, which may do anything.
    void Append(const Sequence& sequence, std::string& text);

    // The value of a text that is one part and nothing else; of any other text, the text. It lies on the thread's stack
    // if it is a value of Lua's. Calls take with its typed form, while it lives. False: there is none.
    template <class Take> bool Evaluate(const Sequence& sequence, Take&& take)
    {
        const Frame frame(*this);
        _MvTypeVar value;
        if (!EvaluateWhole(sequence, frame, value))
            return false;
        take(value);
        return true;
    }

    // An object, or a type, is going away.
    void Invalidate(const void* object);
    void ForgetType(const MvTypeDefinition* type);

private:
    // One evaluation inside others. Its value follows the path, and is none when its object goes.
    struct Frame {
        explicit Frame(SequenceEvaluator& evaluator);
        ~Frame();
        Frame(const Frame&) = delete;
        Frame& operator=(const Frame&) = delete;

        SequenceEvaluator& Evaluator;
        Frame* Outer;
        ScriptCall Call;
        lua_State* Thread;
        int Top;
        mutable _MvTypeVar Value = {};
        mutable std::string Text;
    };

    // Where a value is.
    enum class Place { Nowhere, Frame, Stack };

    bool EvaluateWhole(const Sequence& sequence, const Frame& frame, _MvTypeVar& value);
    void AppendPart(const Sequence& sequence, const SequencePart& part, std::string& text);
    Place Evaluate(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place EvaluateChecked(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place EvaluateExpression(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place EvaluatePath(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place Start(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place SetVariable(const Sequence& sequence, const SequencePart& part);
    Place SetField(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place ReadIndex(const SequenceStep& step, const Frame& frame);
    Place CallFunction(const Sequence& sequence, const SequencePart& part, const Frame& frame);
    Place TakeStep(const SequenceStep& step, const Frame& frame, Place place);
    Place ReadField(const SequenceStep& step, const Frame& frame);
    void SayError(const Sequence& sequence, const SequencePart& part);

    Surroundings m_In;
    Frame* m_Frame = nullptr; // the innermost
    int m_Depth = 0;
};

} // namespace host
