#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include "datafile/document.h"
#include "datafile/reader.h"
#include "interact/user.h"

namespace kov {

/// What the reading commands work on.
struct FileContext {
  Document& document;
  CurrentFile& current;
  const WindowFacts& window;
  User user;
  /// Takes the parameters' values to whatever shows or uses them.
  std::function<void()> apply;
  /// Shows the page on which a read ends.
  std::function<void()> show_initial_page;
  /// Redisplays whatever is on display, last of all.
  std::function<void()> redisplay = [] {};
};

// However many files a command reads, what follows comes once, behind the last of them, where the values
// that count are in force: after a complete read of a whole file the gaps in the tables are closed if
// Algadd_del_p0_entries says so, then the values are applied and the initial page is shown. An aborted
// read, or one whose memory runs out (std::bad_alloc passes on afterwards), applies the defaults that
// it left; where no file was opened nothing is applied or shown.

/// Reads the file.
ReadOutcome read_and_apply(const FileContext& context, const std::filesystem::path& path,
                           std::int32_t nelast);

/// Reads the file up to step nelast and lays the uniform configuration of the current directory over
/// it, if there is one: its entries then win over the file's own. After an aborted read the overlay is
/// applied, too; after a file that was not opened it is not.
ReadOutcome read_with_overlay(const FileContext& context, const std::filesystem::path& path,
                              std::int32_t nelast);

/// Reads the uniform configuration if it exists, and applies it; the current file stays. As at
/// start-up: before any file was chosen every entry counts, afterwards only those of the uniform
/// configuration.
void read_uniform_configuration(const FileContext& context);

/// Reset Cfg: every parameter back to its default, then the uniform configuration, if it exists. Without
/// it nothing is read: the values are applied, and the page stays.
void reset_configuration(const FileContext& context);

}  // namespace kov
