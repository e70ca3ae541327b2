#include "app/real_memory.h"

#include <unistd.h>

#include <fstream>
#include <string>

#include "text/integers.h"
#include "text/tokens.h"

namespace kov {

std::optional<std::uint64_t> resident_pages(std::string_view statm) {
  Tokens tokens(statm);
  tokens.next();  // the size of the program's address space
  const auto pages = parse_int32(tokens.next());
  if (!pages || *pages < 0) return std::nullopt;
  return static_cast<std::uint64_t>(*pages);
}

std::optional<std::uint64_t> real_memory() {
  std::ifstream file("/proc/self/statm");
  std::string line;
  std::getline(file, line);
  const auto pages = resident_pages(line);
  const long page_size = sysconf(_SC_PAGESIZE);
  if (!pages || page_size <= 0) return std::nullopt;
  return *pages * static_cast<std::uint64_t>(page_size);
}

}  // namespace kov
