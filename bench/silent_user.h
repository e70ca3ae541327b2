#pragma once

#include <stdexcept>
#include <string>

#include "interact/scripted_user.h"

namespace kov {

/// Nobody at the program: captions and boxes cost what they cost a script, and any message ends the
/// benchmark, since what it measures would not be what it says.
class SilentUser {
 public:
  operator User() { return user_.user(); }  // NOLINT(google-explicit-constructor): it is one
  Progress& progress() { return user_; }
  Messages& messages() { return user_; }

 private:
  static void refuse(const std::string& report) {
    if (report != "beep") throw std::runtime_error(report);
  }

  ScriptedUser user_{refuse, ScriptedUser::Captions::none};
};

}  // namespace kov
