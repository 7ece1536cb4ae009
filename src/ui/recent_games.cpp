#include "ui/recent_games.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <algorithm>
#include <chrono>

#include "files/files.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// Maps on a disk of this machine are found in a hundredth of that.
constexpr std::chrono::milliseconds kPatience(150);

QString TextOf(const GameMemory& game) {
  const QString name = WithoutAccessKeys(PathText(game.Choice.MapFilePath.stem()));
  const QString year = game.Choice.GameYear > 0 ? QString("  %1").arg(game.Choice.GameYear) : "";
  const QDate date = QDateTime::fromSecsSinceEpoch(game.Opened).date();
  return name + year + "  (" + date.toString(Qt::ISODate) + ")";
}

}  // namespace

RecentGames::RecentGames(QMenu& menu, QMenu& parent, const GameMemories& memories)
    : QObject(&menu), menu_(menu), memories_(memories) {
  thread_.setMaxThreadCount(1);
  menu.setToolTipsVisible(true);
  connect(&parent, &QMenu::aboutToShow, this, &RecentGames::Fill);
  Fill();
}

RecentGames::~RecentGames() {
  isStopped_ = true;
  thread_.waitForDone();
}

void RecentGames::Fill() {
  menu_.clear();
  std::vector<std::filesystem::path> maps;
  for (const GameMemory& game : memories_.Games()) {
    if (maps.size() == GameMemories::kMostRecent) break;
    const std::filesystem::path& map = maps.emplace_back(game.Choice.MapFilePath);
    QAction* item = menu_.addAction(TextOf(game));
    item->setObjectName(IndexedName("GameRecent", static_cast<int>(maps.size())));
    item->setToolTip(PlainToolTip(PathText(map)));
    item->setData(QVariant::fromValue(map));
    connect(item, &QAction::triggered, this, [this, map] { emit Chosen(map); });
  }
  menu_.setEnabled(!maps.empty());
  if (!maps.empty()) GreyThoseThatAreGone(maps);
}

// What is found out late is shown late.
void RecentGames::GreyThoseThatAreGone(const std::vector<std::filesystem::path>& maps) {
  thread_.clear();
  thread_.start([this, maps] {
    for (const std::filesystem::path& map : maps) {
      if (isStopped_) return;
      if (FindFile(map)) continue;
      QMetaObject::invokeMethod(
          this, [this, map] { Grey(map); }, Qt::QueuedConnection);
    }
  });
  thread_.waitForDone(static_cast<int>(kPatience.count()));
  QCoreApplication::sendPostedEvents(this);
}

void RecentGames::Grey(const std::filesystem::path& map) {
  for (QAction* item : menu_.actions()) {
    if (item->data().value<std::filesystem::path>() == map) item->setEnabled(false);
  }
}

}  // namespace quorvane
