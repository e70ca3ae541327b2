#pragma once

#include <cstddef>
#include <vector>

namespace kov {

/// Sorts items by their member key, when they consist of few ascending runs: natural merge sort
/// (D. E. Knuth, The Art of Computer Programming 3, section 5.2.4). A run is merged with the one before it as
/// soon as that one is not longer; so each item takes part in no more merges than the logarithm of the number
/// of runs, and in about one where the runs become shorter and shorter. Keys that are equal keep their order.
template <class Item>
class RunMerge {
 public:
  void sort(std::vector<Item>& items) {
    runs_.clear();
    for (std::size_t begin = 0; begin < items.size();) {
      std::size_t end = begin + 1;
      while (end < items.size() && items[end - 1].key <= items[end].key) ++end;
      runs_.push_back(begin);
      while (runs_.size() > 1 && runs_.back() - runs_[runs_.size() - 2] <= end - runs_.back()) {
        merge_last(items, end);
      }
      begin = end;
    }
    while (runs_.size() > 1) merge_last(items, items.size());
  }

 private:
  // The last two runs, of which the last ends at end, become one. From the back, with the last run out of the
  // way; which item is next cannot be foreseen, so no branch depends on it.
  void merge_last(std::vector<Item>& items, std::size_t end) {
    const std::size_t middle = runs_.back();
    runs_.pop_back();
    const std::size_t begin = runs_.back();
    room_.assign(items.begin() + static_cast<std::ptrdiff_t>(middle),
                 items.begin() + static_cast<std::ptrdiff_t>(end));
    const Item* const lower = items.data() + begin;
    const Item* const upper = room_.data();
    std::size_t lower_left = middle - begin;
    std::size_t upper_left = end - middle;
    Item* to = items.data() + end;
    while (lower_left != 0 && upper_left != 0) {
      const Item* const a = lower + lower_left - 1;
      const Item* const b = upper + upper_left - 1;
      const bool a_is_last = a->key > b->key;
      *--to = *(a_is_last ? a : b);
      lower_left -= static_cast<std::size_t>(a_is_last);
      upper_left -= static_cast<std::size_t>(!a_is_last);
    }
    for (; upper_left != 0; --upper_left) *--to = upper[upper_left - 1];
  }

  /// Where the runs begin that are not yet merged.
  std::vector<std::size_t> runs_;
  /// The last run, out of the way while it is merged.
  std::vector<Item> room_;
};

}  // namespace kov
