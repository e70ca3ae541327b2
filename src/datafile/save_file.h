#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "datafile/document.h"
#include "interact/user.h"

namespace kov {

/// The question before lattices of so many counted bytes are saved.
std::string large_save_question(std::uint64_t bytes);

/// True when the store is small enough to be saved without asking (File_Save_WarnKB), the warning
/// level is below 2, or the person says yes.
bool large_save_confirmed(const Document& document, User user);

/// What Save and Save as do once the file is known: asks when the store is large, then writes it with
/// lattices. False when the person declined or pressed Break; the old file is then as it was. Throws
/// file_error like write_data_file.
bool save_data_file(const std::filesystem::path& path, const Document& document, User user);

}  // namespace kov
