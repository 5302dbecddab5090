#pragma once

#include "teskara/core/Types.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

// What a host has lent to the toolkit by number: fonts, textures, atoms, sequences. Each must come back once, and be
// used only until then.
class HostBooks
{
public:
    // Returns the number; 0 means that nothing was lent.
    u32 Lend(const char* sort, u32 number)
    {
        if (number != 0 && !Numbers(sort).insert(number).second)
            Blame("lent twice: ", sort, number);
        return number;
    }

    void TakeBack(const char* sort, u32 number)
    {
        if (Numbers(sort).erase(number) == 0)
            Blame("given back without being lent: ", sort, number);
    }

    void Use(const char* sort, u32 number)
    {
        if (!Numbers(sort).contains(number))
            Blame("used without being lent: ", sort, number);
    }

    // How many of a sort are lent at present.
    std::size_t Lent(const char* sort) { return Numbers(sort).size(); }

    // What is still lent, and everything that was ever wrong; empty if the books balance.
    std::string Imbalance() const
    {
        std::string text = m_Faults;
        for (const auto& [sort, numbers] : m_Lent) {
            if (!numbers.empty())
                text += "not given back: " + sort + ", " + std::to_string(numbers.size()) + " of them\n";
        }
        return text;
    }

    const std::string& Faults() const { return m_Faults; }

private:
    std::unordered_set<u32>& Numbers(std::string_view sort)
    {
        for (auto& [name, numbers] : m_Lent) {
            if (name == sort)
                return numbers;
        }
        return m_Lent.emplace_back(sort, std::unordered_set<u32>()).second;
    }

    void Blame(const char* what, const char* sort, u32 number)
    {
        m_Faults += what + std::string(sort) + " " + std::to_string(number) + "\n";
    }

    std::vector<std::pair<std::string, std::unordered_set<u32>>> m_Lent; // of each of the few sorts
    std::string m_Faults;
};
