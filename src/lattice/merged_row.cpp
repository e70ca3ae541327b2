#include "lattice/merged_row.h"

#include "lattice/row_builder.h"

namespace kov {
namespace {

/// The points of a row one after the other.
class RowWalk {
 public:
  explicit RowWalk(const Row& row) : row_(row), place_(row.begin()) { read(); }

  bool done() const { return place_ == row_.end(); }
  const Lk& key() const { return key_; }
  cotyp quantity() const { return row_.quantity(place_); }
  void advance() {
    place_ = row_.next(place_);
    read();
  }

 private:
  void read() {
    if (!done()) key_ = row_.key(place_);
  }

  const Row& row_;
  RowPlace place_;
  Lk key_;
};

RowBuilder builder_for(const Row& a, const Row& b) {
  if (a.packed() && a.frame().covers(b.box())) return {a.n(), a.frame()};
  KeyBox box = a.box();
  box.include(b.box());
  return {a.n(), box};
}

void move_point(RowWalk& walk, RowBuilder& builder) {
  builder.append(walk.key(), walk.quantity());
  walk.advance();
}

}  // namespace

Row merged_row(const Row& a, const Row& b) {
  RowBuilder builder = builder_for(a, b);
  RowWalk ours(a);
  RowWalk theirs(b);
  while (!ours.done() && !theirs.done()) {
    if (Lk1LessLk2(theirs.key(), ours.key())) {
      move_point(theirs, builder);
    } else {
      if (theirs.key() == ours.key()) theirs.advance();
      move_point(ours, builder);
    }
  }
  while (!ours.done()) move_point(ours, builder);
  while (!theirs.done()) move_point(theirs, builder);
  return builder.finish();
}

}  // namespace kov
