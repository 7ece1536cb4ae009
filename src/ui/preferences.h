#pragma once

#include <QByteArray>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>

#include "map/map_options.h"

class QSettings;
class QWidget;

namespace quorvane {

/// What the user chose once for all games.
struct Preferences {
  MapOptions Map = {.OutlineNames = true};
};

/// Keeps the preferences, and the places of the windows, in a file. It is a helper: without it, or
/// with one that cannot be read or written, everything works as at first. What could not be read is
/// never overwritten: a damaged file is kept under another name.
class PreferencesFile {
 public:
  /// @param file  empty: nothing is kept beyond this run
  explicit PreferencesFile(const std::filesystem::path& file = {});
  ~PreferencesFile();
  PreferencesFile(const PreferencesFile&) = delete;
  PreferencesFile& operator=(const PreferencesFile&) = delete;

  const Preferences& Values() const { return values_; }
  void Keep(const Preferences& values);

  /// What was kept of a window's place; empty when nothing was.
  QByteArray PlaceOf(const QString& window) const;
  void KeepPlace(const QString& window, const QByteArray& place);

  /// What went wrong: in a few words, and with the file.
  struct Fault {
    QString Words;
    QString Details;
  };
  /// What went wrong since this was last asked; everything is told once.
  std::optional<Fault> TakeFault();

 private:
  void Open(const QString& path);
  void SetAside(const QString& path);
  void Write(const QString& key, const QVariant& value);

  Preferences values_;
  std::unique_ptr<QSettings> settings_;
  bool isKept_ = false;
  std::optional<Fault> fault_;
};

/// Lets a window open where and as large as it was left, as far as the screens allow, and remembers
/// that under its object name.
/// @param preferences  there as long as the window
void RememberPlace(QWidget& window, PreferencesFile& preferences);

}  // namespace quorvane
