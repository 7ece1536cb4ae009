#pragma once

#include <deque>
#include <string>
#include <vector>

#include "ui/prompts.h"

namespace quorvane {

using Texts = std::vector<std::string>;

/// Answers questions from a script and remembers every message.
class ScriptedPrompts : public Prompts {
 public:
  void Inform(const std::string& text) override { shown_.push_back(text); }
  bool AskYesNo(const std::string& title, const std::string& question) override {
    shown_.push_back(title + ": " + question);
    if (answers_.empty()) return false;
    const bool answer = answers_.front();
    answers_.pop_front();
    return answer;
  }

  /// The next question is answered so.
  void Answer(bool yes) { answers_.push_back(yes); }
  /// What was shown since this was last asked.
  Texts Shown() {
    Texts shown;
    shown.swap(shown_);
    return shown;
  }

 private:
  Texts shown_;
  std::deque<bool> answers_;
};

}  // namespace quorvane
