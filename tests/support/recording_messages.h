#pragma once

#include <string>
#include <vector>

#include "interact/messages.h"

namespace kov {

/// One message box as it would have been shown.
struct RecordedMessage {
  MessageKind kind;
  std::string text;

  friend bool operator==(const RecordedMessage&, const RecordedMessage&) = default;
};

/// Keeps what would have been shown, for tests that look at messages only and answer no questions.
class RecordingMessages final : public Messages {
 public:
  std::vector<RecordedMessage> shown;
  int beeps = 0;

  /// The texts of all boxes, in order.
  std::vector<std::string> texts() const {
    std::vector<std::string> result;
    for (const RecordedMessage& message : shown) result.push_back(message.text);
    return result;
  }

 protected:
  void show(MessageKind kind, const std::string& text) override { shown.push_back({kind, text}); }
  void ring() override { ++beeps; }
};

}  // namespace kov
