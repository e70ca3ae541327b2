#pragma once

#include <string>
#include <system_error>

#include "datafile/document.h"
#include "interact/messages.h"
#include "interact/progress.h"

namespace kov {

// The uniform configuration: a data file without lattices in the current directory whose entries of
// the uniform configuration win over those of every file that is read.

/// True when the current directory holds it (a folder of this name does not count).
bool uniform_file_exists();

/// Writes the configuration there; throws file_error like write_data_file.
void save_uniform_configuration(const Document& document, Progress& progress);

/// Removes it; a failure is reported as an error. True when there is no such file afterwards.
bool delete_uniform_configuration(Messages& messages);
/// What that error says: that access is forbidden, or else the reason.
std::string removal_failure_text(std::error_code failure);

/// What the file is for; part of several questions.
std::string uniform_hint();

/// The questions of Save Cfg, Del Cfg File and Reset Cfg, and what the menu bar's C shows.
std::string save_configuration_question();
std::string delete_configuration_question();
std::string reset_configuration_question();
std::string uniform_file_report();

}  // namespace kov
