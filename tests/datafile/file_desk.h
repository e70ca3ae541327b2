#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "datafile/document.h"
#include "datafile/read_with_overlay.h"
#include "datafile/reader.h"
#include "datafile/writer.h"
#include "interact/scripted_user.h"
#include "support/temporary_folder.h"

namespace kov {

/// A document with everything around it that reading and saving need, in a folder of its own.
struct FileDesk {
  TemporaryFolder folder;
  std::vector<std::string> reports;
  ScriptedUser scripted{[this](const std::string& report) { reports.push_back(report); },
                        ScriptedUser::Captions::every};
  Document document{scripted};
  CurrentFile current;
  WindowFacts window;
  int applied = 0;
  int pages_shown = 0;

  FileDesk() {
    document.cph.InitPrgPar(window);
    document.reset_data();
  }

  FileContext context() {
    return {document, current, window, scripted.user(), [this] { ++applied; }, [this] { ++pages_shown; }};
  }
  ReadOutcome read(const std::filesystem::path& path, std::int32_t nelast = every_step) {
    auto file = open_data_file(path, document, window, scripted);
    if (!file) return ReadOutcome::not_opened;
    return read_opened_file(std::move(*file), document, current, nelast, scripted.user());
  }
  /// Writes the text to a file and reads it.
  ReadOutcome read_text(std::string_view text, std::int32_t nelast = every_step) {
    write_text("read.aa1", text);
    return read("read.aa1", nelast);
  }
  /// Everything that a data file keeps, as one text; equal texts mean equal documents.
  std::string state() const { return data_file_text(document, "state", WithLattices::yes, "now"); }
};

/// The line of a point: lattice l, step n, k1, all others 0.
std::string point_line(std::int32_t l, std::int32_t n, std::int32_t k1, std::string_view quantity);

/// The same text count times, separated by blanks.
std::string repeated(std::string_view text, int count);

/// Puts something different from the start-up state into every part of a document.
void fill_every_part(Document& document);

}  // namespace kov
