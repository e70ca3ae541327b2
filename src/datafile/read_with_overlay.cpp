#include "datafile/read_with_overlay.h"

#include "algadd/table_edits.h"
#include "datafile/uniform_configuration.h"

namespace kov {

namespace {

/// The reads of one command, and what is to be done once behind the last of them.
class Reads {
 public:
  explicit Reads(const FileContext& context) : context_(context) {}

  ReadOutcome read(const std::filesystem::path& path, std::int32_t nelast) {
    auto file = open_data_file(path, context_.document, context_.window, context_.user.messages);
    if (!file) return ReadOutcome::not_opened;
    file_read_ = true;
    const ReadOutcome outcome =
        read_opened_file(std::move(*file), context_.document, context_.current, nelast, context_.user);
    tables_read_ = tables_read_ || (nelast != configuration_only && outcome == ReadOutcome::completed);
    return outcome;
  }

  void restore_defaults() {
    context_.document.cph.InitPrgPar(context_.window);
    defaults_restored_ = true;
  }

  void finish() const {
    if (tables_read_) apply_zero_entry_rule(context_.document.algadd, context_.document.cph);
    if (!file_read_ && !defaults_restored_) return;
    context_.apply();
    if (file_read_) context_.show_initial_page();
    context_.redisplay();
  }

 private:
  const FileContext& context_;
  bool file_read_ = false;
  bool tables_read_ = false;
  bool defaults_restored_ = false;
};

/// Runs the reads and finishes them, also when an exception ends them: the state that it leaves has values,
/// too.
template <class Body>
ReadOutcome read_and_finish(const FileContext& context, const Body& body) {
  Reads reads(context);
  ReadOutcome outcome = ReadOutcome::not_opened;
  try {
    outcome = body(reads);
  } catch (...) {
    reads.finish();
    throw;
  }
  reads.finish();
  return outcome;
}

}  // namespace

ReadOutcome read_and_apply(const FileContext& context, const std::filesystem::path& path,
                           std::int32_t nelast) {
  return read_and_finish(context, [&](Reads& reads) { return reads.read(path, nelast); });
}

ReadOutcome read_with_overlay(const FileContext& context, const std::filesystem::path& path,
                              std::int32_t nelast) {
  return read_and_finish(context, [&](Reads& reads) {
    const bool overlay = uniform_file_exists();
    const ReadOutcome outcome = reads.read(path, nelast);
    if (overlay && outcome != ReadOutcome::not_opened) reads.read(uniform_file_name, configuration_only);
    return outcome;
  });
}

void read_uniform_configuration(const FileContext& context) {
  if (uniform_file_exists()) read_and_apply(context, uniform_file_name, configuration_only);
}

void reset_configuration(const FileContext& context) {
  read_and_finish(context, [](Reads& reads) {
    reads.restore_defaults();
    return uniform_file_exists() ? reads.read(uniform_file_name, configuration_only)
                                 : ReadOutcome::not_opened;
  });
}

}  // namespace kov
