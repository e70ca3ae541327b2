#include "graphs/colour_lookup.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "support/recording_messages.h"

namespace kov {
namespace {

/// Values of every kind that a map may hold: which kind, and from where to where.
class Values {
 public:
  explicit Values(unsigned seed) : random_(seed) {}

  double next(int kind) {
    switch (kind) {
      case 0:
        return uniform_(random_);
      case 1:
        return std::ldexp(uniform_(random_), std::uniform_int_distribution(-1000, 1000)(random_));
      case 2:
        return 1 + 1e-13 * uniform_(random_);
      case 3:
        return std::round(20 * uniform_(random_));
      case 4:
        return 1.7e308 * uniform_(random_);
      default:
        return std::abs(std::ldexp(uniform_(random_), std::uniform_int_distribution(-60, 0)(random_)));
    }
  }

 private:
  std::mt19937 random_;
  std::uniform_real_distribution<double> uniform_{-1, 1};
};

void expect_as_searched(const ColourScale& scale, const std::vector<double>& values) {
  RecordingMessages messages;
  const ColourLookup lookup(scale);
  for (const double q : values) {
    ASSERT_EQ(lookup.pixel(q), raster_pixel(scale.color_from_fcl_table(q, messages))) << q;
  }
}

/// The values of the table's ends, their neighbours, and far away.
std::vector<double> with_edges(std::vector<double> values, const ColourScale& scale) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double limit : scale.fclimit()) {
    values.insert(values.end(), {limit, std::nextafter(limit, -infinity), std::nextafter(limit, infinity)});
  }
  values.insert(values.end(), {0.0, -0.0, 1e308, -1e308, 5e-324, -5e-324});
  return values;
}

TEST(ColourLookup, GivesWhatTheSearchGives) {
  RecordingMessages messages;
  for (int kind = 0; kind < 6; ++kind) {
    for (const std::size_t count : {1U, 2U, 961U, 3000U}) {
      for (int mode = 0; mode <= 4; ++mode) {
        Values source(static_cast<unsigned>(kind) * 100 + static_cast<unsigned>(count));
        std::vector<double> values(count);
        for (double& value : values) value = source.next(kind);
        ColourScale distributed(ColourRamp(mode, 25));
        distributed.Set_equally_distributed_fclimit(values, messages);
        expect_as_searched(distributed, with_edges(values, distributed));
        const auto [smallest, largest] = std::minmax_element(values.begin(), values.end());
        ColourScale linear(ColourRamp(mode, 0));
        linear.set_linear_fclimit(*smallest, *largest);
        expect_as_searched(linear, with_edges(values, linear));
      }
    }
  }
}

}  // namespace
}  // namespace kov
