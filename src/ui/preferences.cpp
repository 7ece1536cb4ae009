#include "ui/preferences.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QScreen>
#include <QSettings>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kFormat = 1;
constexpr const char* kFormatKey = "Format";

struct Switch {
  const char* Key;
  bool* Value;
};

std::vector<Switch> SwitchesOf(Preferences& values) {
  return {{"Map/OutlineNames", &values.Map.OutlineNames},
          {"Map/FewerNames", &values.Map.FewerNames},
          {"Map/GatesOfSelectedOnly", &values.Map.GatesOfSelectedOnly},
          {"Map/NumbersInLegend", &values.NumbersInLegend},
          {"Start/ReopenLastGame", &values.ReopenAtStart},
          {"Start/ReloadByItself", &values.ReloadByItself},
          {"History/Keep", &values.KeepHistory}};
}

constexpr const char* kSets = "OverlaySets";
constexpr const char* kSearches = "PlanetSearches";
constexpr const char* kColumns = "PlanetColumns";

QString PlaceKey(const QString& window) { return "Places/" + window; }

class PlaceKeeper : public QObject {
 public:
  PlaceKeeper(QWidget& window, PreferencesFile& preferences)
      : QObject(&window), window_(window), preferences_(preferences) {
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    if (event->type() == QEvent::Show && !event->spontaneous() && !std::exchange(isPlaced_, true)) {
      if (window_.restoreGeometry(preferences_.PlaceOf(window_.objectName()))) MoveOntoScreen();
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
      preferences_.KeepPlace(window_.objectName(), window_.saveGeometry());
    }
    return QObject::eventFilter(target, event);
  }

 private:
  // The screen may be a smaller one than when the window was left.
  void MoveOntoScreen() {
    const QRect screen = window_.screen()->availableGeometry();
    if (window_.windowState() != Qt::WindowNoState) return;
    window_.resize(window_.size().boundedTo(screen.size()));
    const QPoint last = screen.bottomRight() - window_.rect().bottomRight();
    window_.move(std::max(std::min(window_.x(), last.x()), screen.left()),
                 std::max(std::min(window_.y(), last.y()), screen.top()));
  }

  QWidget& window_;
  PreferencesFile& preferences_;
  bool isPlaced_ = false;
};

QMap<QString, QString> TextsOfSets(const std::vector<OverlaySet>& sets) {
  QMap<QString, QString> texts = {{"Count", QString::number(sets.size())}};
  for (const OverlaySet& set : sets) {
    texts[QString::number(texts.size())] =
        ToQString(OverlaysText(set.Switches)) + "\n" + ToQString(set.Name);
  }
  return texts;
}

// Texts under numbers of three digits, so that their order is kept.
template <typename Value>
QMap<QString, QString> Numbered(const std::vector<Value>& values,
                                QString (*textOf)(const Value& value)) {
  QMap<QString, QString> texts;
  for (const Value& value : values) {
    texts[QString("%1").arg(texts.size() + 1, 3, 10, QChar('0'))] = textOf(value);
  }
  return texts;
}

// The query, the columns that it is sorted by with their directions, and the name, a line each; the
// name may hold anything.
QString TextOfSearch(const PlanetSearch& search) {
  QStringList sorting;
  for (const auto& [column, isDescending] : search.Sorting) {
    sorting << (isDescending ? "-" : "+") + ToQString(column);
  }
  return ToQString(search.Query) + "\n" + sorting.join('\t') + "\n" + ToQString(search.Name);
}

PlanetSearch SearchFromText(const QString& text) {
  PlanetSearch search = {.Name = ToText(text.section('\n', 2)),
                         .Query = ToText(text.section('\n', 0, 0))};
  for (const QString& sort : text.section('\n', 1, 1).split('\t', Qt::SkipEmptyParts)) {
    search.Sorting.push_back({ToText(sort.mid(1)), sort.startsWith('-')});
  }
  return search;
}

QString TextOfColumn(const ColumnPlace& place) {
  return QString("%1 %2 ").arg(place.Width).arg(place.IsShown ? 1 : 0) + ToQString(place.Column);
}

ColumnPlace ColumnFromText(const QString& text) {
  constexpr int kWidest = 4000;
  return {.Column = ToText(text.section(' ', 2)),
          .Width = std::clamp(text.section(' ', 0, 0).toInt(), 0, kWidest),
          .IsShown = text.section(' ', 1, 1) != "0"};
}

}  // namespace

PreferencesFile::PreferencesFile(const std::filesystem::path& file) {
  if (!file.empty()) Open(PathText(file));
}

PreferencesFile::~PreferencesFile() = default;

void PreferencesFile::Open(const QString& path) {
  settings_ = std::make_unique<QSettings>(path, QSettings::IniFormat);
  isKept_ = true;
  if (settings_->status() == QSettings::FormatError) SetAside(path);
  if (QFileInfo::exists(path) && !QFileInfo(path).isReadable()) {
    isKept_ = false;
    fault_ = {"Preferences cannot be read", "The preferences cannot be read: " + path};
  } else if (settings_->value(kFormatKey, kFormat).toInt() > kFormat) {
    isKept_ = false;
    fault_ = {"Preferences of a newer version",
              "The preferences were written by a newer version and stay as they are: " + path};
  }
  Read();
}

void PreferencesFile::Read() {
  for (const auto& [key, value] : SwitchesOf(values_)) {
    const QString kept = settings_->value(key).toString();
    if (kept == "true" || kept == "false") *value = kept == "true";
  }
  const QMap<QString, QString> sets = TextsOf(kSets);
  if (!sets.isEmpty()) values_.Sets.clear();
  for (const QString& set : sets) {
    // The overlays' names have no line break; the name may hold anything else.
    const qsizetype end = set.indexOf('\n');
    if (end < 0) continue;
    static_cast<void>(
        SaveAsSet(values_.Sets, ToText(set.mid(end + 1)), OverlaysFromText(ToText(set.left(end)))));
  }
  for (const QString& search : TextsOf(kSearches)) {
    static_cast<void>(KeepSearch(values_.Searches, SearchFromText(search)));
  }
  for (const QString& column : TextsOf(kColumns)) {
    values_.PlanetColumns.push_back(ColumnFromText(column));
  }
}

void PreferencesFile::SetAside(const QString& path) {
  QString kept = path + ".damaged";
  for (int number = 2; QFile::exists(kept); ++number) {
    kept = QString("%1.damaged-%2").arg(path).arg(number);
  }
  isKept_ = QFile::copy(path, kept);
  if (isKept_) {
    settings_->setValue(kFormatKey, kFormat);  // what could be read is whole again
    settings_->sync();
  }
  fault_ = {"Preferences are damaged",
            isKept_ ? "The preferences are damaged; the file is kept as " + kept
                    : "The preferences are damaged and stay as they are: " + path};
}

void PreferencesFile::Keep(const Preferences& values) {
  const bool areSetsNew = values_.Sets != values.Sets;
  const bool areSearchesNew = values_.Searches != values.Searches;
  const bool areColumnsNew = values_.PlanetColumns != values.PlanetColumns;
  values_ = values;
  for (const auto& [key, value] : SwitchesOf(values_)) Write(key, *value);
  if (areSetsNew) KeepTexts(kSets, TextsOfSets(values_.Sets));
  if (areSearchesNew) KeepTexts(kSearches, Numbered(values_.Searches, TextOfSearch));
  if (areColumnsNew) KeepTexts(kColumns, Numbered(values_.PlanetColumns, TextOfColumn));
}

QByteArray PreferencesFile::PlaceOf(const QString& window) const {
  return settings_ == nullptr ? QByteArray() : settings_->value(PlaceKey(window)).toByteArray();
}

void PreferencesFile::KeepPlace(const QString& window, const QByteArray& place) {
  Write(PlaceKey(window), place);
}

void PreferencesFile::Write(const QString& key, const QVariant& value) {
  if (!isKept_ || settings_->value(key) == value) return;
  settings_->setValue(key, value);
  Finish();
}

QStringList PreferencesFile::Groups() const {
  return settings_ == nullptr ? QStringList() : settings_->childGroups();
}

QMap<QString, QString> PreferencesFile::TextsOf(const QString& group) const {
  QMap<QString, QString> texts;
  if (settings_ == nullptr) return texts;
  settings_->beginGroup(group);
  for (const QString& key : settings_->childKeys()) texts[key] = settings_->value(key).toString();
  settings_->endGroup();
  return texts;
}

void PreferencesFile::KeepTexts(const QString& group, const QMap<QString, QString>& texts) {
  if (!isKept_ || TextsOf(group) == texts) return;
  settings_->remove(group);
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    settings_->setValue(group + "/" + text.key(), text.value());
  }
  Finish();
}

void PreferencesFile::Finish() {
  settings_->setValue(kFormatKey, kFormat);
  settings_->sync();
  if (settings_->status() != QSettings::AccessError) return;
  isKept_ = false;
  fault_ = {"Preferences cannot be saved",
            "The preferences cannot be saved: " + settings_->fileName()};
}

std::optional<PreferencesFile::Fault> PreferencesFile::TakeFault() {
  return std::exchange(fault_, {});
}

void RememberPlace(QWidget& window, PreferencesFile& preferences) {
  new PlaceKeeper(window, preferences);
}

}  // namespace quorvane
