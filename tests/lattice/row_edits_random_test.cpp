#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lattice/random_points.h"
#include "lattice/reference_store.h"
#include "lattice/row_edits.h"
#include "support/recording_messages.h"

namespace kov {
namespace {

/// What an edit is given.
struct Inputs {
  std::int32_t a;
  std::int32_t b;
  std::int32_t c;
  std::vector<KeyBox> boxes;
};

struct EditPair {
  const char* name;
  void (*edit)(Lmap& lmap, const Inputs& in, Messages& messages);
  void (*plain)(ReferenceStore& store, const Inputs& in);
  bool reports_wrong_order = false;
};

bool in_rows(const ReferenceStore::Point& point, std::int64_t a, std::int64_t b) {
  return a <= point.key.n() && point.key.n() <= b;
}

/// Sets the points with a <= n <= b of a copy at n + offset.
void insert_moved(ReferenceStore& store, const ReferenceStore& copy, std::int64_t a, std::int64_t b,
                  std::int64_t offset) {
  for (ReferenceStore::Point point : copy.points) {
    if (!in_rows(point, a, b)) continue;
    point.key.coo[0] = wrapped(point.key.n() + offset);
    store.set(point.key, point.q);
  }
}

/// True when a row of a ... b, moved by c - a, lands where the point is.
bool is_destination(const ReferenceStore::Point& point, const Inputs& in) {
  const std::int32_t source = wrapped(std::int64_t{point.key.n()} - (std::int64_t{in.c} - in.a));
  return in.a <= source && source <= in.b;
}

bool is_kept(const ReferenceStore::Point& point, const std::vector<KeyBox>& boxes) {
  for (const KeyBox& box : boxes) {
    bool inside_box = true;
    for (std::size_t i = 0; i < MaxDimCount; ++i) {
      inside_box = inside_box && box.min.coo[i] <= point.key.coo[i] && point.key.coo[i] <= box.max.coo[i];
    }
    if (inside_box) return true;
  }
  return false;
}

void plain_move_part(ReferenceStore& store, const Inputs& in) {
  if (in.a > in.b) return;
  const ReferenceStore copy = store;
  store.erase_rows(in.a, in.b);
  store.erase_where([&](const auto& point) { return is_destination(point, in); });
  insert_moved(store, copy, in.a, in.b, std::int64_t{in.c} - in.a);
}

void plain_copy_part(ReferenceStore& store, const Inputs& in) {
  if (in.a > in.b) return;
  const ReferenceStore copy = store;
  store.erase_where([&](const auto& point) { return is_destination(point, in); });
  insert_moved(store, copy, in.a, in.b, std::int64_t{in.c} - in.a);
  store.erase_rows(in.a, in.b);
  insert_moved(store, copy, in.a, in.b, 0);
}

void plain_choose_last(ReferenceStore& store, const Inputs& in) {
  if (in.a <= 0 || store.points.empty()) return;
  const std::int64_t nlast = store.nlast();
  store.erase_rows(lowest_int, nlast - in.a);
  const ReferenceStore copy = store;
  store.points.clear();
  insert_moved(store, copy, nlast + 1 - in.a, nlast, std::int64_t{in.a} + in.b - 1 - nlast);
}

void plain_choose_part(ReferenceStore& store, const Inputs& in) {
  if (in.a > in.b) return;
  store.erase_rows(lowest_int, std::int64_t{in.a} - 1);
  store.erase_rows(std::int64_t{in.b} + 1, highest_int);
  const ReferenceStore copy = store;
  store.points.clear();
  insert_moved(store, copy, in.a, in.b, std::int64_t{in.c} - in.a);
}

void plain_move_all(ReferenceStore& store, const Inputs& in) {
  const ReferenceStore copy = store;
  store.points.clear();
  insert_moved(store, copy, lowest_int, highest_int, in.a);
}

void plain_delete_all_but_last(ReferenceStore& store, const Inputs& in) {
  if (!store.points.empty()) store.erase_rows(lowest_int, std::int64_t{store.nlast()} - in.a);
}

void plain_delete_outside_except_last(ReferenceStore& store, const Inputs& in) {
  if (store.points.empty()) return;
  const std::int64_t first_spared = std::int64_t{store.nlast()} - in.a + 1;
  store.erase_where(
      [&](const auto& point) { return point.key.n() < first_spared && !is_kept(point, in.boxes); });
}

void plain_delete_rows_outside(ReferenceStore& store, const Inputs& in) {
  store.erase_where(
      [&](const auto& point) { return in_rows(point, in.a, in.b) && !is_kept(point, in.boxes); });
}

// clang-format off
const EditPair edit_pairs[] = {
    {"MoveAll",          [](Lmap& l, const Inputs& in, Messages&) { MoveAll(l, in.a); },                 plain_move_all},
    {"MovePart",         [](Lmap& l, const Inputs& in, Messages&) { MovePart(l, in.a, in.b, in.c); },    plain_move_part},
    {"CopyPart",         [](Lmap& l, const Inputs& in, Messages&) { CopyPart(l, in.a, in.b, in.c); },    plain_copy_part},
    {"ChooseLast",       [](Lmap& l, const Inputs& in, Messages&) { ChooseLast(l, in.a, in.b); },        plain_choose_last},
    {"ChoosePart",       [](Lmap& l, const Inputs& in, Messages&) { ChoosePart(l, in.a, in.b, in.c); },  plain_choose_part},
    {"DeleteRows",       [](Lmap& l, const Inputs& in, Messages&) { DeleteRows(l, in.a, in.b); },
                         [](ReferenceStore& store, const Inputs& in) { store.erase_rows(in.a, in.b); }},
    {"DeleteAllButLast", [](Lmap& l, const Inputs& in, Messages&) { DeleteAllButLast(l, in.a); },        plain_delete_all_but_last},
    {"DeleteRowsOutsideRange",
                         [](Lmap& l, const Inputs& in, Messages& m) { DeleteRowsOutsideRange(l, in.a, in.b, in.boxes, m); },
                         plain_delete_rows_outside, true},
    {"DeleteOutsideExceptLast",
                         [](Lmap& l, const Inputs& in, Messages& m) { DeleteOutsideExceptLast(l, in.a, in.boxes, m); },
                         plain_delete_outside_except_last},
};
// clang-format on

KeyBox random_box(RandomPoints& random) {
  KeyBox box{Lk::filled(0), Lk::filled(1)};
  box.min.coo[0] = random.step();
  box.max.coo[0] = random.step();
  box.min.coo[1] = random.integer(-1, 1);
  box.max.coo[1] = random.integer(-1, 1);
  return box;
}

void expect_same_edit(const EditPair& pair, RandomPoints& random) {
  Lmap store;
  ReferenceStore reference;
  for (int i = random.integer(0, 20); i > 0; --i) {
    const Lk key = random.key();
    const cotyp q = random.quantity();
    store.set(key, q);
    reference.set(key, q);
  }
  const std::string before = reference.text();
  const Inputs in{random.step(), random.step(), random.step(), {random_box(random), random_box(random)}};
  RecordingMessages messages;
  pair.edit(store, in, messages);
  pair.plain(reference, in);
  EXPECT_EQ(points_text(store), reference.text())
      << pair.name << " a=" << in.a << " b=" << in.b << " c=" << in.c << " of\n"
      << before;
  const bool reports = pair.reports_wrong_order && in.a > in.b;
  EXPECT_EQ(messages.shown.size(), reports ? 1U : 0U) << pair.name;
}

TEST(RowEditsRandom, AgreeWithThePlainEdits) {
  for (const EditPair& pair : edit_pairs) {
    RandomPoints random(20'250'101);
    for (int i = 0; i < 1500 && !::testing::Test::HasFailure(); ++i) expect_same_edit(pair, random);
  }
}

}  // namespace
}  // namespace kov
