# One interface target carries what every target of the project is compiled with.
add_library(kov_flags INTERFACE)
target_compile_features(kov_flags INTERFACE cxx_std_20)
target_compile_options(kov_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  # A fused multiply-add rounds once where the text rounds twice: results would depend on the machine.
  -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # clang has it among its -Wall, but sees it in the sources of single files alone, not in units of a folder.
  target_compile_options(kov_flags INTERFACE -Wunused-const-variable=1)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlapping copies in any "text" + std::string that it inlines, and uninitialized operands in its
  # own functions for vectors, and means nothing by either. The second compiler looks for what it knows of both.
  target_compile_options(kov_flags INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
target_include_directories(kov_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(KOV_SANITIZE)
  target_compile_options(kov_flags INTERFACE
    -fsanitize=${KOV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kov_flags INTERFACE -fsanitize=${KOV_SANITIZE})
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()
