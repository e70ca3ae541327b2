#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>

#include "file_desk.h"

namespace kov {
namespace {

/// Two documents whose files differ in length, so that a mixture of both would show.
void fill(Document& document, bool large) {
  document.reset_data();
  document.comment = large ? "large\r\n" : "small\r\n";
  const int points = large ? 600 : 200;
  for (int k = 0; k < points; ++k) document.lmap.set(Lk::at(0, 0, k), cotyp(large ? 2 : 1));
}

/// The file's text but for its first line, the date.
std::string without_date(const std::string& text) {
  return text.substr(std::min(text.find('\n'), text.size()));
}

std::string expected_text(FileDesk& desk, bool large) {
  fill(desk.document, large);
  return without_date(data_file_text(desk.document, "a.aa1", WithLattices::yes, "now"));
}

[[noreturn]] void save_for_ever(FileDesk& desk) {
  for (bool large = false;; large = !large) {
    fill(desk.document, large);
    write_data_file("a.aa1", desk.document, WithLattices::yes, desk.scripted);
  }
}

TEST(WriteDataFile, KilledAtAnyMomentLeavesAWholeFile) {
  FileDesk desk;
  const std::string small = expected_text(desk, false);
  const std::string large = expected_text(desk, true);
  write_data_file("a.aa1", desk.document, WithLattices::yes, desk.scripted);
  std::mt19937 random(200);
  std::size_t most_names = 0;
  for (int kill = 0; kill < 200; ++kill) {
    const pid_t child = ::fork();
    if (child == 0) save_for_ever(desk);
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string text = without_date(text_of("a.aa1"));
    ASSERT_TRUE(text == small || text == large) << "after kill " << kill << ": " << text.size() << " bytes";
    most_names = std::max(most_names, desk.folder.names().size());
  }
  // Some kill left a temporary file (else this test would prove little), yet they did not pile up.
  EXPECT_GT(most_names, 1U);
  write_data_file("a.aa1", desk.document, WithLattices::yes, desk.scripted);
  EXPECT_EQ(desk.folder.names(), std::vector<std::string>{"a.aa1"});
}

}  // namespace
}  // namespace kov
