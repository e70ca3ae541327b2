#include "datafile/file_titles.h"

#include "datafile/uniform_configuration.h"
#include "text/integers.h"

namespace kov {

namespace {

std::string overlay_hint() {
  if (!uniform_file_exists()) return {};
  return std::string(" (uniform config from ") + uniform_file_name + ")";
}

}  // namespace

std::string open_title() { return "Open File and read it" + overlay_hint(); }

std::string read_individual_title() { return "Read File, use its individual cfg"; }

std::string read_till_title(std::int32_t nelast) {
  return "Read all but lattices only till n=" + int_text(nelast) + overlay_hint();
}

std::string read_configuration_title() {
  std::string title = "Read uniform configuration only";
  if (uniform_file_exists()) title += std::string(", ignore ") + uniform_file_name;
  return title;
}

}  // namespace kov
