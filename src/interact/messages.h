#pragma once

#include <string>

namespace kov {

/// What a message box is shown for.
enum class MessageKind { error, warning, remark, information };

/// The port by which the program tells a person something. Owns the warning level and filters by it;
/// how a box is shown and how a beep sounds is the implementation's.
class Messages {
 public:
  static constexpr int lowest_level = 0;
  static constexpr int highest_level = 4;

  virtual ~Messages() = default;

  /// A beep, then the box, at every level.
  void error(const std::string& text);
  /// Box at every level, beep from level 1.
  void essential_warning(const std::string& text);
  /// Box from level 2, beep from level 1.
  void warning(const std::string& text);
  /// Box from level 3, beep from level 1.
  void minor_warning(const std::string& text);
  /// Box at level 4.
  void remark(const std::string& text);
  /// What a command reports of its own: box at every level, no beep.
  void information(const std::string& text);
  void beep();

  /// The warning level, 0 ... 4, initially 2.
  int wl() const { return wl_; }
  /// Takes a level within 0 ... 4 and ignores any other.
  void set_wl(int level);

 protected:
  virtual void show(MessageKind kind, const std::string& text) = 0;
  virtual void ring() = 0;

 private:
  void warn(const std::string& text, int level_of_box);

  int wl_ = 2;
};

}  // namespace kov
