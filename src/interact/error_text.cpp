#include "interact/error_text.h"

#include <exception>
#include <new>

namespace kov {

std::string text_of_handled_error() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return "Not enough memory.";
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "Unknown error.";
  }
}

}  // namespace kov
