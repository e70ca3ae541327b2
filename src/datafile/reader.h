#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "config/mmi.h"
#include "datafile/document.h"
#include "datafile/line_reader.h"
#include "datafile/line_source.h"
#include "interact/user.h"

namespace kov {

enum class ReadOutcome { completed, aborted, not_opened };

/// A data file that is open, with everything that a read of it needs before it changes anything.
struct OpenedDataFile {
  LineSource lines;
  /// Absolute.
  std::filesystem::path path;
  /// As progress texts and questions show it.
  std::string name;
  /// The parameters after an aborted read, made beforehand: going back needs no memory.
  Kmap defaults;
};

/// Opens a file for a read into the document, which stays as it is. Nothing when the file cannot be
/// opened, which is reported.
std::optional<OpenedDataFile> open_data_file(const std::filesystem::path& path, const Document& document,
                                             const WindowFacts& window, Messages& messages);

/// Reads an open file into the document, all of it or (nelast = configuration_only) its configuration.
/// The file is used up.
///
/// From warning level 2 on, each line's message is asked about; No, Break and a failing disk abort the
/// read. An aborted read leaves the start-up state (a configuration-only read: the default catalogue, the
/// rest untouched). When memory runs out, the document is left as by an abort and std::bad_alloc passes
/// on.
///
/// A read of a whole file makes it the current file at once, and sets current.chosen when it is
/// complete. Values are not applied to anything, nor are gaps in the tables closed: see read_and_apply.
ReadOutcome read_opened_file(OpenedDataFile&& file, Document& document, CurrentFile& current,
                             std::int32_t nelast, User user);

}  // namespace kov
