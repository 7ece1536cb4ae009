#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
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
    return answer_;
  }
  SaveAnswer AskSave(const std::string& question) override {
    shown_.push_back(question);
    return saveAnswer_;
  }
  std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                     const std::string& preset) override {
    shown_.push_back(title + ": " + prompt + " [" + preset + "]");
    if (textAnswers_.empty()) return std::nullopt;
    const std::string answer = textAnswers_.front();
    textAnswers_.pop_front();
    return answer.empty() ? std::nullopt : std::optional(answer);
  }

  using Prompts::AskSaveFile;
  std::optional<std::filesystem::path> AskSaveFile(const std::string& title,
                                                   const std::filesystem::path& suggestion,
                                                   const std::string& otherExtension) override {
    shown_.push_back(title + " [" + suggestion.filename().string() + "]" + otherExtension);
    return std::exchange(saveFile_, {});
  }

  /// Questions are answered so from now on; before, they are answered with no.
  void Answer(bool yes) { answer_ = yes; }
  /// Questions whether to save are answered so from now on; before, changes are discarded.
  void AnswerSave(SaveAnswer answer) { saveAnswer_ = answer; }
  /// The next text that is asked for; an empty one cancels, as every text without an answer does.
  void AnswerText(const std::string& text) { textAnswers_.push_back(text); }
  /// Where the next file is saved; without this, saving is cancelled.
  void AnswerSaveFile(const std::filesystem::path& file) { saveFile_ = file; }
  /// What was shown since this was last asked.
  Texts Shown() { return std::exchange(shown_, {}); }

 private:
  Texts shown_;
  bool answer_ = false;
  SaveAnswer saveAnswer_ = SaveAnswer::Discard;
  std::deque<std::string> textAnswers_;
  std::optional<std::filesystem::path> saveFile_;
};

}  // namespace quorvane
