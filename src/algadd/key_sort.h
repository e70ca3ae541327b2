#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kov {

/// A value with the packed key that it belongs to.
template <class Value>
struct Keyed {
  std::int64_t key = 0;
  Value value{};
};

/// Sorts items by key; items of one key keep their order. One pass puts them into buckets of equal width over
/// the range of keys, one item a bucket on average, and insertion sorts what is left in the buckets: linear
/// time for keys that lie evenly. A bucket that gathers many is sorted by itself, so that the worst is
/// count log count. room is memory for the pass.
template <class Value>
void sort_by_key(std::vector<Keyed<Value>>& items, std::vector<Keyed<Value>>& room) {
  constexpr std::size_t largest_insertion = 16;
  if (items.size() < 2) return;
  const auto by_key = [](const Keyed<Value>& a, const Keyed<Value>& b) { return a.key < b.key; };
  const auto [smallest, largest] = std::minmax_element(items.begin(), items.end(), by_key);
  const std::int64_t low = smallest->key;
  const auto range = static_cast<std::uint64_t>(largest->key - low);
  int shift = 0;
  while (range >> shift >= items.size()) ++shift;

  std::vector<std::uint32_t> ends((range >> shift) + 2);
  const auto bucket = [&](const Keyed<Value>& item) {
    return static_cast<std::uint64_t>(item.key - low) >> shift;
  };
  for (const auto& item : items) ++ends[bucket(item) + 1];
  for (std::size_t b = 1; b < ends.size(); ++b) ends[b] += ends[b - 1];
  room.resize(items.size());
  for (const auto& item : items) room[ends[bucket(item)]++] = item;

  std::size_t begin = 0;
  for (std::size_t b = 0; b + 1 < ends.size(); ++b) {
    const std::size_t end = ends[b];
    if (end - begin > largest_insertion) {
      std::stable_sort(room.begin() + static_cast<std::ptrdiff_t>(begin),
                       room.begin() + static_cast<std::ptrdiff_t>(end), by_key);
    } else {
      for (std::size_t i = begin + 1; i < end; ++i) {
        Keyed<Value> item = room[i];
        std::size_t to = i;
        for (; to > begin && item.key < room[to - 1].key; --to) room[to] = room[to - 1];
        room[to] = item;
      }
    }
    begin = end;
  }
  items.swap(room);
}

}  // namespace kov
