#pragma once

#include <cstdint>
#include <filesystem>

#include "datafile/document.h"
#include "datafile/line_reader.h"
#include "interact/user.h"

namespace kov {

enum class ReadOutcome { completed, aborted, not_opened };

/// Reads the file into the document, all of it or (nelast = configuration_only) its configuration.
///
/// A file that cannot be opened is reported and changes nothing. From warning level 2 on, each line's
/// message is asked about; No, Break and a failing disk abort the read. An aborted read leaves the
/// start-up state (a configuration-only read: the default catalogue, the rest untouched). When memory
/// runs out, the document is left as by an abort and std::bad_alloc passes on.
///
/// A read of a whole file makes it the current file once it is open, and sets current.chosen when it
/// is complete. Values are not applied to anything: see read_and_apply.
ReadOutcome read_data_file(const std::filesystem::path& path, Document& document, CurrentFile& current,
                           std::int32_t nelast, const WindowFacts& window, User user);

}  // namespace kov
