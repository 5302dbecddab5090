#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

// Sorts stably by a comparison that need not make sense: whatever it answers, it is asked at most n log n times, and
// nothing is lost or doubled. compare(left, right): above 0 if right belongs before left. Throws when there is no memory
// and what compare throws; items is in some order then.
template <class Item, class Compare> void MergeSort(std::vector<Item>& items, Compare&& compare)
{
    std::vector<Item> merged(items.size());
    for (std::size_t run = 1; run < items.size(); run *= 2) {
        for (std::size_t begin = 0; begin < items.size(); begin += 2 * run) {
            const std::size_t middle = std::min(begin + run, items.size());
            const std::size_t end = std::min(middle + run, items.size());
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t place = begin; place < end; ++place) {
                const bool takesRight = left == middle || (right < end && compare(items[left], items[right]) > 0);
                merged[place] = items[takesRight ? right++ : left++];
            }
        }
        std::swap(items, merged);
    }
}
