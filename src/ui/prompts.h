#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace quorvane {

/// What becomes of changes that are not saved.
enum class SaveAnswer { Save, Discard, Cancel };

/// How windows talk to the user. The program shows message boxes; tests answer from a script.
class Prompts {
 public:
  virtual ~Prompts() = default;
  /// Shows a message with an OK button.
  virtual void Inform(const std::string& text) = 0;
  /// Asks with Yes and No buttons. @return whether the answer was Yes
  virtual bool AskYesNo(const std::string& title, const std::string& question) = 0;
  /// Asks with Save, Discard and Cancel buttons, before changes would be lost.
  virtual SaveAnswer AskSave(const std::string& question) = 0;
  /// Asks for one line of text. @param preset the answer to start from
  /// @return nothing when the user cancelled or left the answer empty
  virtual std::optional<std::string> AskText(const std::string& title, const std::string& prompt,
                                             const std::string& preset) = 0;
  /// Asks where to save a file, and whether one that is there is to be replaced.
  /// @param suggestion      the path to start from; its extension is added to a name without one
  /// @param otherExtension  of another format that is offered, such as ".tsv"; empty: there is none
  virtual std::optional<std::filesystem::path> AskSaveFile(const std::string& title,
                                                           const std::filesystem::path& suggestion,
                                                           const std::string& otherExtension) = 0;
  std::optional<std::filesystem::path> AskSaveFile(const std::string& title,
                                                   const std::filesystem::path& suggestion) {
    return AskSaveFile(title, suggestion, "");
  }
};

}  // namespace quorvane
