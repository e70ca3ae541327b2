#pragma once

#include <cstdint>
#include <string>

namespace kov {

/// A memory size in decimal kilobytes (1000 bytes) with three digits behind the point and thousands
/// separated by blanks: 176 000 bytes give "176.000", 1 234 567 891 bytes "1 234 567.891".
std::string kilobyte_text(std::uint64_t bytes);

}  // namespace kov
