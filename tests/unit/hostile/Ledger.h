#pragma once

#include "teskara/core/Types.h"
#include "tests/unit/Allocations.h"

#include <array>
#include <initializer_list>
#include <map>
#include <string>

// What a host lends by number.
enum class Loan : u8 { Font, Texture, Atom, Sequence, Query, Count };

// What is lent at present. Numbers may be lent more than once, since a host may lie about them; each time counts.
class Ledger
{
public:
    u32 Lend(Loan loan, u32 number)
    {
        const Allocations::Spared spared;
        if (number != 0)
            ++Of(loan)[number];
        return number;
    }

    void TakeBack(Loan loan, u32 number)
    {
        const Allocations::Spared spared;
        if (number != 0 && --Of(loan)[number] == 0)
            Of(loan).erase(number);
    }

    // What is lent, and what came back too often, a line each; empty if the books are balanced.
    std::string Imbalance(std::initializer_list<Loan> loans) const
    {
        static constexpr const char* names[] = {"font", "texture", "atom", "sequence", "query"};
        static_assert(std::size(names) == static_cast<std::size_t>(Loan::Count));
        std::string text;
        for (const Loan loan : loans) {
            const auto place = static_cast<std::size_t>(loan);
            for (const auto& [number, count] : m_Lent[place])
                text += std::string(names[place]) + " " + std::to_string(number) + ": " + std::to_string(count) + "\n";
        }
        return text;
    }

private:
    std::map<u32, int>& Of(Loan loan) { return m_Lent[static_cast<std::size_t>(loan)]; }

    std::array<std::map<u32, int>, static_cast<std::size_t>(Loan::Count)> m_Lent;
};
