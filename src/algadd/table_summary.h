#pragma once

#include <string>

#include "algadd/algadd.h"

namespace kov {

/// What stands beside the table menu: the current table, how many tables up to the highest that is not
/// empty are empty, and how many of all:
/// " Table 3   ( 2 empty in 0..5 ,    12 empty in 0..15 ) ". Where all are empty, the first part counts
/// 1 empty table in 0..0.
std::string table_summary(const Algadd& algadd);

}  // namespace kov
