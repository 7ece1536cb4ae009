#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "map/map_options.h"
#include "map/overlay_sets.h"
#include "screens/planet_searches.h"

class QSettings;
class QWidget;

namespace quorvane {

/// What the user chose once for all games.
struct Preferences {
  MapOptions Map = {.OutlineNames = true};
  /// Whether the race's number stands on its swatch and beside the marker.
  bool NumbersInLegend = false;
  /// Whether a start shows the last game instead of the open dialog.
  bool ReopenAtStart = false;
  /// Whether a game whose files changed is loaded again without being asked.
  bool ReloadByItself = false;
  /// Whether the year of every game that is loaded is stored.
  bool KeepHistory = true;
  std::vector<OverlaySet> Sets = FirstOverlaySets();
  /// The user's own searches for planets, and how the columns of the list are arranged.
  std::vector<PlanetSearch> Searches;
  std::vector<ColumnPlace> PlanetColumns;
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

  /// Groups of texts of other kinds: the names of all, what one holds, and one as it is from now
  /// on; without texts it is forgotten.
  QStringList Groups() const;
  QMap<QString, QString> TextsOf(const QString& group) const;
  void KeepTexts(const QString& group, const QMap<QString, QString>& texts);

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
  void Read();
  void Write(const QString& key, const QVariant& value);
  void Finish();

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
