#include "datafile/save_file.h"

#include "datafile/writer.h"
#include "interact/warning_level.h"
#include "text/grouping.h"

namespace kov {

std::string large_save_question(std::uint64_t bytes) {
  return "The lattices need " + kilobyte_text(bytes) +
         " KB of memory."
         "\nModification of lattice (e.g. choose last)"
         "\nmay be recommendable before saving."
         "\nDo you really want to save all data?";
}

bool large_save_confirmed(const Document& document, User user) {
  if (user.messages.wl() < level_of_usual_warnings) return true;
  const std::int64_t limit = std::int64_t{1000} * document.cph.kmi("File_Save_WarnKB");
  const std::uint64_t bytes = document.lmap.estimated_bytes();
  if (limit >= 0 && bytes <= static_cast<std::uint64_t>(limit)) return true;
  return user.questions.yes_no(large_save_question(bytes));
}

bool save_data_file(const std::filesystem::path& path, const Document& document, User user) {
  return large_save_confirmed(document, user) &&
         write_data_file(path, document, WithLattices::yes, user.progress);
}

}  // namespace kov
