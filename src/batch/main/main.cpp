#include "batch/program.h"

int main(int argc, char** argv) {
  const std::span<const char* const> arguments(argv, static_cast<std::size_t>(argc));
  return static_cast<int>(kov::run_program(arguments.subspan(argc > 0 ? 1 : 0)));
}
