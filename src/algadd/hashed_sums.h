#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "algadd/run_merge.h"
#include "numbers/vector_dispatch.h"

namespace kov {

/// The sums of keys that lie anywhere: a hash table with linear probing, the keys multiplied by the golden
/// ratio (D. E. Knuth, The Art of Computer Programming 3, section 6.4). Keys and sums stand in two arrays,
/// and a key is taken in without a branch that asks whether it is new: nobody could foresee it. Products of
/// sparse matrices are made so where their rows are thin (Y. Nagasaka, S. Matsuoka, A. Azad, A. Buluc,
/// High-performance sparse matrix-matrix products on Intel KNL and multicore architectures, ICPP Workshops
/// 2018).
template <class Sum>
class HashedSums {
 public:
  /// Where some further keys find their sums.
  class Places {
   public:
    /// The sum of a key, which is not negative; a new one is Sum{}.
    KOV_INLINE inline Sum& at(std::int64_t key) {
      std::size_t slot = first_slot(key, shift_);
      std::int64_t found = keys_[slot];
      while (static_cast<unsigned>(found == key) + static_cast<unsigned>(found == no_key) == 0) {
        slot = (slot + 1) & mask_;
        found = keys_[slot];
      }
      keys_[slot] = key;
      taken_[count_] = static_cast<std::uint32_t>(slot);
      count_ += static_cast<std::size_t>(found == no_key);
      return of_slot_[slot];
    }

   private:
    friend HashedSums;
    KOV_INLINE inline explicit Places(HashedSums& sums)
        : keys_(sums.keys_.data()),
          of_slot_(sums.sums_.data()),
          mask_(sums.slots() - 1),
          shift_(std::countl_zero(mask_)),
          taken_(sums.taken_.data()),
          count_(sums.count_) {}

    std::int64_t* keys_;
    Sum* of_slot_;
    std::size_t mask_;
    int shift_;
    std::uint32_t* taken_;
    std::size_t count_;
  };

  HashedSums() { make(smallest_table); }

  /// f(places), which may ask for the sums of up to count keys; there are less than 2^30 altogether.
  template <class Function>
  KOV_INLINE inline void take(std::size_t count, const Function& f) {
    while (slots_of_key * (count_ + count) > slots()) grow();
    Places places(*this);
    f(places);
    count_ = places.count_;
  }

  /// f(key, sum) for every key in ascending order; then there is none. Takes linear time where the keys came
  /// in few ascending runs.
  template <class Function>
  void drain(const Function& f) {
    items_.resize(count_);
    for (std::size_t i = 0; i < count_; ++i) items_[i] = {keys_[taken_[i]], taken_[i]};
    merge_.sort(items_);
    for (const Item& item : items_) {
      f(item.key, sums_[item.slot]);
      keys_[item.slot] = no_key;
      sums_[item.slot] = Sum{};
    }
    count_ = 0;
  }

 private:
  struct Item {
    std::int64_t key;
    std::uint32_t slot;
  };

  static constexpr std::int64_t no_key = -1;
  static constexpr std::size_t smallest_table = 64;
  /// At least: few keys then find the slot of another one taken.
  static constexpr std::size_t slots_of_key = 4;

  std::size_t slots() const { return keys_.size(); }

  KOV_INLINE static inline std::size_t first_slot(std::int64_t key, int shift) {
    constexpr std::uint64_t golden_ratio = 0x9E3779B97F4A7C15;
    return static_cast<std::size_t>(static_cast<std::uint64_t>(key) * golden_ratio >> shift);
  }

  // All slots free; their number is a power of two.
  void make(std::size_t slots) {
    keys_.assign(slots, no_key);
    sums_.assign(slots, Sum{});
    taken_.resize(slots / slots_of_key + 1);
  }

  void grow() {
    std::vector<Sum> sums = std::move(sums_);
    const std::vector<std::int64_t> keys = std::move(keys_);
    make(2 * keys.size());
    Places places(*this);
    places.count_ = 0;
    // The slot of the key at i is read before the one of its new place is written to i.
    for (std::size_t i = 0; i < count_; ++i) {
      const std::uint32_t slot = taken_[i];
      places.at(keys[slot]) = std::move(sums[slot]);
    }
  }

  std::vector<std::int64_t> keys_;
  std::vector<Sum> sums_;
  /// The slots of the keys in the order in which these came.
  std::vector<std::uint32_t> taken_;
  std::size_t count_ = 0;
  std::vector<Item> items_;
  RunMerge<Item> merge_;
};

}  // namespace kov
