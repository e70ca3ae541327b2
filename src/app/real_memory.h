#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kov {

/// Bytes of main memory that the program occupies; nothing where the system does not tell.
std::optional<std::uint64_t> real_memory();

/// The number of resident pages in a text of the form of /proc/self/statm.
std::optional<std::uint64_t> resident_pages(std::string_view statm);

}  // namespace kov
