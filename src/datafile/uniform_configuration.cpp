#include "datafile/uniform_configuration.h"

#include <filesystem>
#include <system_error>

#include "datafile/file_error.h"
#include "datafile/writer.h"

namespace kov {

bool uniform_file_exists() {
  std::error_code ignored;
  const auto status = std::filesystem::status(uniform_file_name, ignored);
  return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void save_uniform_configuration(const Document& document, Progress& progress) {
  write_data_file(uniform_file_name, document, WithLattices::no, progress);
}

bool delete_uniform_configuration(Messages& messages) {
  if (!uniform_file_exists()) return true;
  std::error_code failure;
  std::filesystem::remove(uniform_file_name, failure);
  if (!failure) return true;
  messages.error(removal_failure_text(failure));
  return false;
}

std::string removal_failure_text(std::error_code failure) {
  if (failure == std::errc::permission_denied || failure == std::errc::operation_not_permitted ||
      failure == std::errc::read_only_file_system) {
    return std::string(uniform_file_name) + " not removed, access forbidden.";
  }
  return file_error("remove", uniform_file_name, failure.value()).what();
}

std::string uniform_hint() {
  return std::string("The filename\n   ") + uniform_file_name +
         "\nis reserved as uniform default configuration."
         "\n\nIf this file exists in the current directory,"
         "\nconfiguration entries marked by \"u\""
         "\nwill be read automatically"
         "\nfrom it after after every input of another file"
         "\nas uniform default.\n\n";
}

std::string save_configuration_question() {
  return uniform_hint() + "Do you want to save current configuration as\nuniform default in   " +
         uniform_file_name + "?";
}

std::string delete_configuration_question() {
  return uniform_hint() +
         "Do you want to delete this file, so that complete"
         "\nconfiguration saved in individual files is used?";
}

std::string reset_configuration_question() {
  std::string question = "Do you want to set all program parameters\nto default values";
  if (uniform_file_exists()) question += std::string(" contained in ") + uniform_file_name;
  return question + "?";
}

std::string uniform_file_report() {
  return std::string("File for uniform configuration\n(") + uniform_file_name + ") " +
         (uniform_file_exists() ? "exists." : "is not existent.") + " " + uniform_hint();
}

}  // namespace kov
