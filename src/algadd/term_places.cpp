#include "algadd/term_places.h"

#include <algorithm>

namespace kov {

namespace {

// The first point of a block whose key is not less; a key below all packed ones may be negative.
std::size_t index_of(const Block& block, std::int64_t key, std::size_t near) {
  return key <= 0 ? 0 : block.lower_bound(static_cast<std::uint64_t>(key), near);
}

}  // namespace

TermPlaces::TermPlaces(const StepPlan& plan, std::int64_t key) {
  for (const StepTerm& term : plan.terms) {
    Place place{.stream = &plan.streams[term.stream], .shift = term.shift};
    place.block = place.stream->block_with(key - term.shift);
    if (!place.at_end()) {
      const Block& block = place.stream->block(place.block);
      place.index = index_of(block, key - term.shift, block.size() / 2);
    }
    places_.push_back(place);
  }
}

std::int64_t TermPlaces::next_key() const {
  std::int64_t next = no_key;
  for (const Place& place : places_) {
    if (!place.at_end()) next = std::min(next, place.key());
  }
  return next;
}

std::int64_t TermPlaces::key_behind(std::size_t count) const {
  std::int64_t smallest = no_key;
  for (Place place : places_) {
    std::size_t left = place.index + count;
    while (!place.at_end() && left >= place.stream->block(place.block).size()) {
      left -= place.stream->block(place.block++).size();
    }
    place.index = left;
    if (!place.at_end()) smallest = std::min(smallest, place.key());
  }
  return smallest;
}

void TermPlaces::pass(std::int64_t end, std::vector<Piece>& pieces) {
  pieces.clear();
  for (std::size_t term = 0; term < places_.size(); ++term) {
    Place& place = places_[term];
    while (!place.at_end()) {
      const Block& block = place.stream->block(place.block);
      const std::int64_t source_end = end - place.shift;
      const bool whole = static_cast<std::int64_t>(block.last_key()) < source_end;
      const std::size_t to = whole ? block.size() : index_of(block, source_end, place.index + place.passed);
      place.passed = to - place.index;
      if (to > place.index) pieces.push_back({term, place.block, place.index, place.passed});
      place.index = to;
      if (!whole) break;
      ++place.block;
      place.index = 0;
    }
  }
}

}  // namespace kov
