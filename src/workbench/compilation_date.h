#pragma once

namespace kov {

/// When the program was built, in the form "Jun  5 2005".
struct CompilationDateClass {
  static const char* const date;
};

}  // namespace kov
