#pragma once

#include "teskara/core/Types.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/MvTypeVar.h"

#include <cstddef>
#include <string_view>
#include <type_traits>

// What a script type answers, as constant tables in the order of the ids. A new type is a class with two of them:
//
//     constexpr ScriptMember<TeskGauge> Members[] = {
//         {0, "Border", Script::Nothing},
//         {1, "Range",  Script::Float<&TeskGauge::Range>},
//         {2, "Marker", Script::Element<FindMarker>, 1}, // needs an argument
//     };
//     constexpr ScriptMethod<TeskGauge> Methods[] = {
//         {0, "SetRange", SetRange, 1}, // bool SetRange(TeskGauge& gauge, const Arguments& arguments)
//         {1, "SetColor", Script::SetColor<&TeskGauge::Color>},
//         {2, "Reset",    Script::Call<&TeskGauge::Reset>},
//     };
//
//     TeskGaugeType::TeskGaugeType(const char* name) : ElementType(name, Members, Methods) { }
//
// declared as class TeskGaugeType : public ElementType<TeskGauge>, and made by its row in ScriptTypes.cpp. What
// stands for members is in ScriptResults.h, what stands for methods in ScriptActions.h. Two names that share an answer
// name the same function. The columns are kept by hand, between the marks that keep the formatter away.

// A name of a script type, as tools see it.
struct ScriptRow {
    u32 ID = 0;
    const char* Name = nullptr;
    const char* Result = nullptr; // the type of a member's value; null where there never is one, and for methods
    int Needs = 0; // with fewer arguments than these nothing is answered
};

// A member. False: there is no value, and the result has no type.
template <class Owner> struct ScriptMember : ScriptRow {
    using Function = bool (*)(Owner& owner, const Arguments& arguments, _MvTypeVar& result);

    // Form: one of ScriptResults.h, or of its shape.
    template <class Form>
    constexpr ScriptMember(u32 id, const char* name, Form, int needs = 0)
        : ScriptRow{id, name, Form::Result, needs},
          Answer([](Owner& owner, const Arguments& arguments, _MvTypeVar& result) {
              return Form::Answer(owner, arguments, result);
          })
    {
    }

    Function Answer;
};

// A method. False: nothing was done. Afterwards the owner may be gone.
template <class Owner> struct ScriptMethod : ScriptRow {
    using Function = bool (*)(Owner& owner, const Arguments& arguments);

    constexpr ScriptMethod(u32 id, const char* name, Function act, int needs = 0)
        : ScriptRow{id, name, nullptr, needs}, Act(act)
    {
    }

    // Form: one of ScriptActions.h. It tells how many arguments it needs.
    template <class Form>
    requires std::is_class_v<Form>
    constexpr ScriptMethod(u32 id, const char* name, Form)
        : ScriptRow{id, name, nullptr, Form::Needs},
          Act([](Owner& owner, const Arguments& arguments) { return Form::Act(owner, arguments); })
    {
    }

    Function Act;
};

// The rows of one table. They are the caller's constant array; one whose ids do not count up by one, or in which a name
// comes twice, does not compile.
template <class Row> class ScriptTable
{
public:
    constexpr ScriptTable() = default;

    template <std::size_t Count>
    consteval ScriptTable(const Row (&rows)[Count]) : m_Rows(rows), m_Count(Count), m_FirstID(rows[0].ID)
    {
        for (std::size_t index = 0; index < Count; ++index) {
            if (rows[index].ID != m_FirstID + index)
                throw "ids count up by one";
            for (std::size_t other = 0; other < index; ++other) {
                if (std::string_view(rows[index].Name) == rows[other].Name)
                    throw "a name comes once";
            }
        }
    }

    // Null: there is none.
    const Row* Find(u32 id) const
    {
        const std::size_t index = id - m_FirstID;
        return index < m_Count ? m_Rows + index : nullptr;
    }

    const Row* begin() const { return m_Rows; }
    const Row* end() const { return m_Rows + m_Count; }

private:
    const Row* m_Rows = nullptr;
    std::size_t m_Count = 0;
    u32 m_FirstID = 0;
};
