#include "bench/deleting_run.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string_view>

#include "algadd/algadd_run.h"
#include "bench/silent_user.h"
#include "bench/workloads.h"
#include "text/integers.h"

namespace kov {
namespace {

constexpr std::string_view option = "--deleting-run";

/// Bytes that the system counts for this process under a name of its status.
double status_bytes(std::string_view name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) return 1024.0 * std::stod(line.substr(name.size() + 1));
  }
  throw std::runtime_error("the system does not tell " + std::string(name));
}

/// Reads what a process writes, until it ends.
class ChildOutput {
 public:
  explicit ChildOutput(std::vector<std::string> arguments) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    const int failure = posix_spawn(&process_, "/proc/self/exe", &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    read_end_ = ends[0];
    if (failure != 0) {
      close(read_end_);
      throw std::runtime_error("the process did not start");
    }
  }
  ~ChildOutput() { close(read_end_); }
  ChildOutput(const ChildOutput&) = delete;
  ChildOutput& operator=(const ChildOutput&) = delete;

  std::string text() {
    std::string text;
    std::array<char, 256> part{};
    for (ssize_t count = 0; (count = read(read_end_, part.data(), part.size())) > 0;) {
      text.append(part.data(), static_cast<std::size_t>(count));
    }
    int status = 0;
    if (waitpid(process_, &status, 0) != process_ || status != 0) {
      throw std::runtime_error("the deleting run failed");
    }
    return text;
  }

 private:
  pid_t process_ = 0;
  int read_end_ = -1;
};

}  // namespace

double peak_of_deleting_run(const std::string& kind, std::int32_t side) {
  ChildOutput child({"kov_bench", std::string(option), kind, int_text(side)});
  return std::stod(child.text());
}

bool is_deleting_run(const std::vector<char*>& arguments) {
  return arguments.size() == 4 && arguments[1] == option;
}

int perform_deleting_run(const std::vector<char*>& arguments) {
  const std::int32_t side = std::stoi(arguments[3]);
  SilentUser user;
  cphclass cph(user.messages());
  cph.InitPrgPar(WindowFacts{});
  cph.setkmi_1("MaxAllowedMemOccupationInKB", highest_int);
  const double before = status_bytes("VmRSS:");
  const bool integers = std::string_view(arguments[2]) == "integers";
  Workload workload = integers ? run_of_integers(side) : run_of_floating(side);
  constexpr std::int32_t steps = 4;
  perform_algadd(workload.algadd, workload.row, cph, {},
                 {.table = 0, .mode = RunMode::all_but_last, .intro = "", .steps = steps}, user);
  if (workload.row.nfirst() != steps) throw std::runtime_error("the run did not end");
  const auto points = static_cast<double>(workload.row.count());
  std::cout << (status_bytes("VmHWM:") - before) / points << '\n';
  return 0;
}

}  // namespace kov
