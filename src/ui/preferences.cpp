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
  bool MapOptions::*Value;
};
constexpr Switch kSwitches[] = {{"Map/OutlineNames", &MapOptions::OutlineNames},
                                {"Map/FewerNames", &MapOptions::FewerNames},
                                {"Map/GatesOfSelectedOnly", &MapOptions::GatesOfSelectedOnly}};

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
  for (const auto& [key, value] : kSwitches) {
    const QString kept = settings_->value(key).toString();
    if (kept == "true" || kept == "false") values_.Map.*value = kept == "true";
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
  values_ = values;
  for (const auto& [key, value] : kSwitches) Write(key, values.Map.*value);
}

QByteArray PreferencesFile::PlaceOf(const QString& window) const {
  return settings_ == nullptr ? QByteArray() : settings_->value(PlaceKey(window)).toByteArray();
}

void PreferencesFile::KeepPlace(const QString& window, const QByteArray& place) {
  Write(PlaceKey(window), place);
}

void PreferencesFile::Write(const QString& key, const QVariant& value) {
  if (!isKept_ || settings_->value(key) == value) return;
  settings_->setValue(kFormatKey, kFormat);
  settings_->setValue(key, value);
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
