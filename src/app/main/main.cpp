#include <cstddef>
#include <iostream>
#include <span>

#include "algadd/process_memory.h"
#include "app/application.h"
#include "app/kovu1.h"
#include "app/kovus1.h"
#include "app/start_options.h"

namespace {

/// Behind the name of the program.
std::span<const char* const> arguments(int argc, const char* const* argv) {
  const std::span all(argv, static_cast<std::size_t>(argc));
  return all.empty() ? all : all.subspan(1);
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto answer = kov::answer_without_window(arguments(argc, argv))) {
    std::cout << *answer << std::flush;
    return std::cout ? 0 : 1;
  }
  kov::set_up_process_memory();
  kov::Application application(argc, argv);  // takes the toolkit's own options out
  kov::TF1 F1(kov::start_parameters(arguments(argc, argv)));
  kov::TUF1 UF1(F1);
  F1.show();
  return kov::Application::exec();
}
