#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "algadd/step_plan.h"
#include "algadd/term_places.h"

namespace kov {

/// The quantities of a plan's streams as an arithmetic reads them: straight from the columns.
template <class Arithmetic>
class StepSources {
 public:
  /// Memory of one thread for what stands in the columns in another form.
  using Room = std::unique_ptr<typename Arithmetic::Room>;

  StepSources(const StepPlan& plan, const Arithmetic& arithmetic) : plan_(plan), arithmetic_(arithmetic) {}

  std::size_t block_count() const { return 0; }
  void prepare(std::size_t) {}

  auto values(std::size_t stream, const Piece& piece, Room& room) const {
    if (!room) room = std::make_unique<typename Arithmetic::Room>();
    return arithmetic_.values(plan_.streams[stream].block(piece.block), piece.from, piece.count, *room);
  }

 private:
  const StepPlan& plan_;
  const Arithmetic& arithmetic_;
};

/// The same where every block is made ready first, once for all terms.
template <class Arithmetic>
requires requires { typename Arithmetic::Prepared; }
class StepSources<Arithmetic> {
 public:
  struct Room {};

  StepSources(const StepPlan& plan, const Arithmetic&) : plan_(plan), prepared_(plan.streams.size()) {
    for (std::size_t stream = 0; stream < prepared_.size(); ++stream) {
      prepared_[stream].resize(plan.streams[stream].block_count());
      for (std::size_t block = 0; block < prepared_[stream].size(); ++block)
        places_.push_back({stream, block});
    }
  }

  /// Of all streams.
  std::size_t block_count() const { return places_.size(); }
  /// Makes the block ready; on any thread.
  void prepare(std::size_t i) {
    const auto [stream, block] = places_[i];
    prepared_[stream][block] = Arithmetic::prepare(plan_.streams[stream].block(block));
  }

  auto values(std::size_t stream, const Piece& piece, Room&) const {
    return Arithmetic::values(prepared_[stream][piece.block], piece.from);
  }

 private:
  struct BlockPlace {
    std::size_t stream;
    std::size_t block;
  };

  const StepPlan& plan_;
  std::vector<BlockPlace> places_;
  std::vector<std::vector<typename Arithmetic::Prepared>> prepared_;
};

}  // namespace kov
