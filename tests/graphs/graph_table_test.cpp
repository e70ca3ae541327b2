#include "graphs/graph_table.h"

#include <gtest/gtest.h>

namespace kov {
namespace {

TEST(GraphTable, IsWrittenWithItsHeading) {
  const GraphTable table{{"k1", "SR1: qre"}, {{-1, 0.5}, {0, 0.1 + 0.2}, {1, -1e20}}};
  EXPECT_EQ(csv_text(table), "k1,SR1: qre\r\n-1,0.5\r\n0,0.30000000000000004\r\n1,-1E20\r\n");
}

TEST(GraphTable, WithoutRowsIsItsHeading) { EXPECT_EQ(csv_text({{"n"}, {}}), "n\r\n"); }

TEST(GraphTable, NamesThatWouldBreakTheLineAreQuoted) {
  const GraphTable table{{"a,b", "say \"x\"", "two\nlines", "one\rline", "y = 3"}, {}};
  EXPECT_EQ(csv_text(table), "\"a,b\",\"say \"\"x\"\"\",\"two\nlines\",\"one\rline\",y = 3\r\n");
}

}  // namespace
}  // namespace kov
