#pragma once

#include <filesystem>
#include <string>

#include "datafile/document.h"
#include "interact/user.h"

namespace kov {

enum class WithLattices : bool { no, yes };

/// Writes the document as a data file at path: to a new file beside it, flushed to the disk, renamed
/// over the old one, the folder flushed. At any moment the old file or the new one is there, whole. A
/// symbolic link is followed, the old file's permissions are kept. Throws file_error when that fails;
/// the old file is then as it was, but for one case: when the folder alone cannot be flushed the new file
/// is in place, though a power failure may still bring the old one back, and the error names the folder.
/// Break ends the writing likewise: false, with the old file as it was.
/// Asks nothing: see save_data_file.
bool write_data_file(const std::filesystem::path& path, const Document& document, WithLattices lattices,
                     Progress& progress);

/// The same file as a text, for a given date-time text.
std::string data_file_text(const Document& document, const std::string& file_name, WithLattices lattices,
                           const std::string& date_time);

}  // namespace kov
