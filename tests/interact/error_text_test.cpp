#include "interact/error_text.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "numbers/errors.h"

namespace kov {
namespace {

template <class Error>
std::string told_of(const Error& error) {
  try {
    throw error;
  } catch (...) {
    return text_of_handled_error();
  }
}

TEST(ErrorText, IsTheErrorsOwnIfItHasOne) {
  EXPECT_EQ(told_of(std::runtime_error("no such thing")), "no such thing");
  EXPECT_EQ(told_of(ratyp_error()), "ratyp error: de=0");
  EXPECT_EQ(told_of(std::bad_alloc()), "Not enough memory.");
  EXPECT_EQ(told_of(7), "Unknown error.");
}

}  // namespace
}  // namespace kov
