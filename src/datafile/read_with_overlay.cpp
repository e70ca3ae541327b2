#include "datafile/read_with_overlay.h"

#include "datafile/uniform_configuration.h"

namespace kov {

namespace {

/// Holds the catalogue's switch for the length of a scope.
class SuppressApplying {
 public:
  SuppressApplying(cphclass& cph, bool suppress) : cph_(cph) { cph_.suppress_applying = suppress; }
  ~SuppressApplying() { cph_.suppress_applying = false; }
  SuppressApplying(const SuppressApplying&) = delete;
  SuppressApplying& operator=(const SuppressApplying&) = delete;

 private:
  cphclass& cph_;
};

}  // namespace

ReadOutcome read_and_apply(const FileContext& context, const std::filesystem::path& path,
                           std::int32_t nelast) {
  const ReadOutcome outcome =
      read_data_file(path, context.document, context.current, nelast, context.window, context.user);
  if (outcome != ReadOutcome::not_opened && !context.document.cph.suppress_applying) context.apply();
  return outcome;
}

ReadOutcome read_with_overlay(const FileContext& context, const std::filesystem::path& path,
                              std::int32_t nelast) {
  const bool overlay = uniform_file_exists();
  ReadOutcome outcome = ReadOutcome::not_opened;
  {
    const SuppressApplying suppressed(context.document.cph, overlay);
    outcome = read_and_apply(context, path, nelast);
  }
  if (!overlay || outcome == ReadOutcome::not_opened) return outcome;
  // Without the overlay's values the file's own are still to be applied.
  const ReadOutcome laid_over = read_and_apply(context, uniform_file_name, configuration_only);
  if (laid_over == ReadOutcome::not_opened) context.apply();
  return outcome;
}

void read_uniform_configuration(const FileContext& context) {
  if (uniform_file_exists()) read_and_apply(context, uniform_file_name, configuration_only);
}

void reset_configuration(const FileContext& context) {
  context.document.cph.InitPrgPar(context.window);
  if (!uniform_file_exists() ||
      read_and_apply(context, uniform_file_name, configuration_only) == ReadOutcome::not_opened) {
    context.apply();
  }
}

}  // namespace kov
