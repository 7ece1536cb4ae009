#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/files.h"

namespace quorvane {

/// The title of message boxes.
inline constexpr const char* kProgramName = "Quorvane";

/// What a command that saves says while no game is loaded.
inline constexpr const char* kNothingToSave = "There is nothing to save before a game is loaded";

inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString PathText(const std::filesystem::path& path) { return ToQString(TextFromPath(path)); }
inline std::string ToText(const QString& text) { return text.toStdString(); }
inline std::filesystem::path ToPath(const QString& text) { return PathFromText(ToText(text)); }

/// A text that a control shows as it stands, where "&" would otherwise mark an access key.
inline QString WithoutAccessKeys(QString text) { return text.replace("&", "&&"); }

/// A window title that is shown as it stands, where "[*]" would otherwise be the place of the mark
/// for unsaved changes.
inline QString PlainTitle(QString text) { return text.replace("[*]", "[*][*]"); }

/// The object name of a control array's member: `OvButt(4)`.
inline QString IndexedName(const char* array, int index) {
  return QString("%1(%2)").arg(array).arg(index);
}

}  // namespace quorvane
