#pragma once

#include "interact/messages.h"
#include "interact/progress.h"
#include "interact/questions.h"

namespace kov {

/// The person at the program, as the three ports by which the core reaches them.
struct User {
  Messages& messages;
  Questions& questions;
  Progress& progress;
};

}  // namespace kov
