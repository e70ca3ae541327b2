#pragma once

#include <stdexcept>

namespace kov {

/// The program's own exception: a broken assumption or an operation without a result. Its text is
/// complete and meant for the user.
class program_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Raised by exact arithmetic; its only text is "ratyp error: de=0".
class ratyp_error : public program_error {
 public:
  ratyp_error() : program_error("ratyp error: de=0") {}
};

/// A floating-point operation left the finite numbers. No infinity and no NaN ever enters the store
/// or a table: whoever would put one there raises this instead.
class math_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A floating-point result beyond the largest double.
class floating_overflow : public math_error {
 public:
  using math_error::math_error;
  floating_overflow() : math_error("floating point overflow") {}
};

}  // namespace kov
