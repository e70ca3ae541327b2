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
  /// Takes the parameters' values to whatever shows or uses them, and refreshes the pages.
  std::function<void()> apply;
};

/// Reads the file and then, unless the catalogue's switch suppress_applying is set, applies the values.
/// An aborted read applies the defaults that it left; a file that was not opened applies nothing.
ReadOutcome read_and_apply(const FileContext& context, const std::filesystem::path& path,
                           std::int32_t nelast);

/// Reads the file up to step nelast and lays the uniform configuration of the current directory over
/// it, if there is one: its entries then win over the file's own, and values are applied once, at the
/// end. After an aborted read the overlay is applied, too; after a file that was not opened it is not.
ReadOutcome read_with_overlay(const FileContext& context, const std::filesystem::path& path,
                              std::int32_t nelast);

/// Reads the uniform configuration if it exists, and applies it; the current file stays. As at
/// start-up: before any file was chosen every entry counts, afterwards only those of the uniform
/// configuration.
void read_uniform_configuration(const FileContext& context);

/// Reset Cfg: every parameter back to its default, then the uniform configuration, if it exists.
void reset_configuration(const FileContext& context);

}  // namespace kov
