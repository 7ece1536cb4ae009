#pragma once

#include <functional>

namespace quorvane {

/// How a long step keeps in touch with its user. An empty one shows nothing and is never stopped.
struct Progress {
  std::function<void(int value, int maximum)> ShowValue;
  std::function<bool()> AskStopped;

  /// Shows how far the step is.
  void Show(int value, int maximum) const {
    if (ShowValue) ShowValue(value, maximum);
  }
  /// Lets the windows answer, and tells whether the user has given the step up, which then ends as
  /// soon as it can. A step that may take long asks every few milliseconds.
  bool IsStopped() const { return AskStopped && AskStopped(); }
};

}  // namespace quorvane
