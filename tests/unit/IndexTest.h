#pragma once

#include "teskara/script/MvIndex.h"
#include "teskara/script/MvTypeDefinition.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A type of texts, each in memory of its own that the type counts; "bad" is none. A test can act where an index calls
// the type.
class WordType : public MvTypeDefinition
{
public:
    WordType() : MvTypeDefinition("word") { }

    bool InitVariable(MvValue& value, const char* subtype) override
    {
        Subtypes.push_back(subtype ? subtype : "none");
        Act(OnInit);
        value.Object = nullptr;
        return RefusedSubtype != Subtypes.back();
    }

    bool FromText(MvValue& value, const char* text) override
    {
        Act(OnText);
        if (std::string_view(text) == "bad")
            return false;

        value.Object = new std::string(text);
        ++Alive;
        return true;
    }

    void FreeValue(MvValue& value) override
    {
        ++Freed;
        Alive -= value.Object ? 1 : 0;
        delete static_cast<std::string*>(value.Object);
        value.Object = nullptr;
        Act(OnFree);
    }

    std::vector<std::string> Subtypes; // that variables were made with
    std::string RefusedSubtype;
    int Alive = 0;
    int Freed = 0;
    std::function<void()> OnInit; // these happen once
    std::function<void()> OnText;
    std::function<void()> OnFree;

private:
    static void Act(std::function<void()>& act)
    {
        if (const auto once = std::exchange(act, nullptr))
            once();
    }
};

// --- What a host does to an index, with one text for the value

inline u32 Add(MvIndex& index, const char* text)
{
    char* argv[] = {const_cast<char*>(text)};
    return index.Add(1, argv);
}

inline bool Set(MvIndex& index, u32 position, const char* text)
{
    char* argv[] = {const_cast<char*>(text)};
    return index.Set(position, 1, argv);
}

// The positions up to the last entry: "a - c".
inline std::string TextOf(MvIndex& index)
{
    std::string text;
    std::string gap;
    for (u32 position = 1; position <= index.GetSize(); ++position) {
        _MvTypeVar entry;
        gap += text.empty() && gap.empty() ? "" : " ";
        if (!index.GetEntry(position, entry)) {
            gap += '-';
            continue;
        }
        text += gap + *static_cast<std::string*>(entry.Value.Object);
        gap.clear();
    }
    return text;
}
