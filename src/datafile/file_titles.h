#pragma once

#include <cstdint>
#include <string>

namespace kov {

// The titles of the file dialogs. They depend on whether the uniform configuration file exists, so
// they are composed when a dialog opens.

/// Open: with what is laid over the file.
std::string open_title();
/// Read indiv.
std::string read_individual_title();
/// Read till n=.
std::string read_till_title(std::int32_t nelast);
/// Read new Cfg.
std::string read_configuration_title();

}  // namespace kov
