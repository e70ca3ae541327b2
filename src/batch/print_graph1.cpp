#include "batch/print_graph1.h"

#include <string>

#include "numbers/floating_text.h"
#include "text/integers.h"

namespace kov {
namespace {

/// The quantities in the order of G1Quantity.
constexpr const char* heading = "range\tcolumn\tx\tqre\tqim\tqq\tqa\tcntAt\n";

void print_range(const G1Par& par, std::size_t range, Output& output) {
  const G1Range& binned = par.range[range];
  for (std::size_t column = 0; column < binned.first_x.size(); ++column) {
    if (!binned.first_x[column]) continue;
    std::string line = int_text(static_cast<std::int64_t>(range) + 1) + "\t" +
                       int_text(static_cast<std::int64_t>(column)) + "\t" + int_text(*binned.first_x[column]);
    for (const G1Curve& curve : binned.curve) line += "\t" + exact_text(curve.at[column]);
    output.write(line + "\n");
  }
}

}  // namespace

void print_graph1(Pages& pages, const PictureSize& size, Output& output) {
  pages.graph1().set_image_size(size.width, size.height);
  pages.show(Page::graph1);
  output.write(heading);
  for (std::size_t range = 0; range < g1_range_count; ++range) {
    print_range(pages.graph1().par(), range, output);
  }
}

}  // namespace kov
