#pragma once

#include "ui/prompts.h"

class QWidget;

namespace quorvane {

/// Prompts as message boxes in front of whichever window is active, or else of their parent.
class MessageBoxPrompts : public Prompts {
 public:
  explicit MessageBoxPrompts(QWidget& parent) : parent_(parent) {}

  void Inform(const std::string& text) override;
  bool AskYesNo(const std::string& title, const std::string& question) override;
  SaveAnswer AskSave(const std::string& question) override;
  std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                     const std::string& preset) override;
  std::optional<std::filesystem::path> AskSaveFile(const std::string& title,
                                                   const std::filesystem::path& suggestion,
                                                   const std::string& otherExtension) override;

 private:
  QWidget* Parent() const;

  QWidget& parent_;
};

}  // namespace quorvane
