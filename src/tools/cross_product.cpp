#include "tools/cross_product.h"

#include <algorithm>

#include "interact/integer_question.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr const char* cross_prompt =
    "Cross product calculation:\n w[coo] := u[coo]    X    v[coo+offset]\ncoo are the location coordinates\n"
    "lattices 0,1,2 contain the components of vector u\nlattices 3,4,5 contain the components of vector v\n"
    "lattices 6,7,8 contain the components of vector w\n For calculation of the crossproducts of all \n"
    "coordinates using offset (a,b,c,0,0,0,...))";

/// One of the six products of which w is made: the lattices of its factors and of the component it belongs
/// to.
struct Term {
  std::int32_t u;
  std::int32_t v;
  std::int32_t w;
  bool subtract;
};

// clang-format off
constexpr std::array<Term, 6> products{{
    {.u = 0, .v = 5, .w = 7, .subtract = true},
    {.u = 0, .v = 4, .w = 8, .subtract = false},
    {.u = 1, .v = 5, .w = 6, .subtract = false},
    {.u = 1, .v = 3, .w = 8, .subtract = true},
    {.u = 2, .v = 4, .w = 6, .subtract = true},
    {.u = 2, .v = 3, .w = 7, .subtract = false},
}};
// clang-format on

constexpr bool is_u(std::int32_t l) { return 0 <= l && l <= 2; }
constexpr bool is_w(std::int32_t l) { return 6 <= l && l <= 8; }

Lk in_lattice(Lk key, std::int32_t l) {
  key.coo[l_position] = l;
  return key;
}

Lk shifted(Lk key, const CrossOffset& offset) {
  for (std::size_t i = 0; i < offset.size(); ++i) key.coo[i + 1] = wrapping_add(key.coo[i + 1], offset[i]);
  return key;
}

/// Counts the points of a walk; true at each that is to be displayed.
class DisplayedWalk {
 public:
  DisplayedWalk(ProgressBox& box, std::int64_t points_per_display)
      : box_(box), step_(std::max<std::int64_t>(points_per_display, 1)) {}

  bool shows_next() {
    if (++done_ % step_ != 0) return false;
    box_.at(done_);
    return true;
  }

 private:
  ProgressBox& box_;
  std::int64_t step_;
  std::int64_t done_ = 0;
};

std::int64_t length(const Lmap& lmap) { return static_cast<std::int64_t>(lmap.count()); }

void delete_w(Lmap& lmap, DisplayedWalk walk, Progress& progress) {
  for (Lmap::Cursor point = lmap.begin(); point != lmap.end();) {
    if (is_w(point.key().l())) {
      point = lmap.erase(point);
    } else {
      ++point;
    }
    if (walk.shows_next()) progress.breathe();
  }
}

void add_terms(const Lmap& lmap, const Lk& key, const cotyp& u, const CrossOffset& offset, Lmap& w) {
  const Lk v_key = shifted(key, offset);
  for (const Term& term : products) {
    if (term.u != key.l()) continue;
    const cotyp product = u * lmap.get(in_lattice(v_key, term.v));
    const Lk w_key = in_lattice(key, term.w);
    const cotyp sum = term.subtract ? w.get(w_key) - product : w.get(w_key) + product;
    require_finite(sum);
    w.set(w_key, sum);
  }
}

/// False when Break was pressed. w is a store of its own, so that nothing half-done is left when memory runs
/// out.
bool add_all_terms(const Lmap& lmap, const CrossOffset& offset, DisplayedWalk walk, Progress& progress,
                   Lmap& w) {
  bool stop = false;
  Lk location;
  for (Lmap::Cursor point = lmap.begin(); point != lmap.end(); ++point) {
    const Lk here = in_lattice(point.key(), 0);
    // The points of a location follow one another: no w is left with some of its terms.
    if (stop && here != location) return false;
    location = here;
    if (is_u(point.key().l())) add_terms(lmap, point.key(), point.quantity(), offset, w);
    if (walk.shows_next() && progress.break_requested()) stop = true;
  }
  return true;
}

}  // namespace

std::optional<CrossOffset> ask_for_cross_offset(Questions& questions) {
  return ask_three_integers(questions, "Cross product", cross_prompt, "0,0,0");
}

std::string CrossResult::text() const {
  return int_text(static_cast<std::int64_t>(count)) + " non-zero\ncross products calculated" +
         (broken ? "\n\n user break ! " : "");
}

CrossResult calculate_cross_products(Lmap& lmap, const CrossOffset& offset, std::int64_t points_per_display,
                                     Progress& progress) {
  // Stays open around the other one: a Break during the deletion, which is soon over, then counts in the
  // calculation.
  ProgressBox deletion(progress, 0, length(lmap), "deleting lattices 6,7,8");
  delete_w(lmap, DisplayedWalk(deletion, points_per_display), progress);
  ProgressBox calculation(progress, 0, length(lmap), "calculating cross products");
  Lmap w;
  const bool whole = add_all_terms(lmap, offset, DisplayedWalk(calculation, points_per_display), progress, w);
  const CrossResult result{.count = w.count(), .broken = !whole};
  lmap.merge_new(w);
  return result;
}

}  // namespace kov
