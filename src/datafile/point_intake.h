#pragma once

#include "lattice/lmap.h"
#include "lattice/row_gatherer.h"

namespace kov {

/// Points on their way from a file into a store. As long as they come in key order, whole rows are gathered
/// beside the store; a point that comes out of order, or of a row that is there, goes into the store alone.
class PointIntake {
 public:
  explicit PointIntake(Lmap& store) : store_(store) {}

  /// Takes the point, whose quantity is not zero, unless its place is occupied; true when taken.
  bool insert(const Lk& key, const cotyp& q) {
    if (!gatherer_.behind_all(key)) return insert_elsewhere(key, q);
    gatherer_.append(key, q);
    return true;
  }
  /// Puts what is gathered into the store.
  void finish() {
    if (!gatherer_.empty()) store_.insert_row(gatherer_.finish());
  }

 private:
  bool insert_elsewhere(const Lk& key, const cotyp& q) {
    finish();
    if (store_.row(key.n())) return store_.insert_new(key, q);
    gatherer_.append(key, q);
    return true;
  }

  Lmap& store_;
  RowGatherer gatherer_;
};

}  // namespace kov
