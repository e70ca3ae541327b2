#include "graphs/colour_lookup.h"

namespace kov {

ColourLookup::ColourLookup(const ColourScale& scale)
    : scale_(scale),
      lowest_(packed(scale.ramp().at(0))),
      highest_(packed(scale.ramp().at(1))),
      first_key_(ordered_key(scale.fclimit().front())) {
  const ColourScale::Thresholds& fclimit = scale.fclimit();
  while (bucket(fclimit.back()) >= bucket_count) ++shift_;
  std::size_t below = 0;   // Thresholds in earlier buckets.
  std::size_t within = 0;  // Those, and the ones in this bucket.
  for (std::size_t b = 0; b < bucket_count; ++b) {
    while (within < fclimit_count && bucket(fclimit[within]) <= b) ++within;
    const std::size_t lo = below == 0 ? 0 : below - 1;
    const std::size_t hi = within == fclimit_count ? within - 1 : within;
    bounds_[b] = {static_cast<std::uint16_t>(lo), static_cast<std::uint16_t>(hi)};
    below = within;
  }
}

}  // namespace kov
