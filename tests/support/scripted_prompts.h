#pragma once

#include <deque>
#include <optional>
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
  std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                     const std::string& preset) override {
    shown_.push_back(title + ": " + prompt + " [" + preset + "]");
    if (textAnswers_.empty()) return std::nullopt;
    const std::string answer = textAnswers_.front();
    textAnswers_.pop_front();
    return answer.empty() ? std::nullopt : std::optional(answer);
  }

  /// The next question is answered so.
  void Answer(bool yes) { answers_.push_back(yes); }
  /// The next text that is asked for; an empty one cancels, as every text without an answer does.
  void AnswerText(const std::string& text) { textAnswers_.push_back(text); }
  /// What was shown since this was last asked.
  Texts Shown() {
    Texts shown;
    shown.swap(shown_);
    return shown;
  }

 private:
  Texts shown_;
  std::deque<bool> answers_;
  std::deque<std::string> textAnswers_;
};

}  // namespace quorvane
