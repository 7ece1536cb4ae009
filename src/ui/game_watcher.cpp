#include "ui/game_watcher.h"

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "loading/settled_files.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// However many files of the folder change, it is looked at no more often.
constexpr std::chrono::milliseconds kBetweenLooks(500);
// A disk of this machine answers in a hundredth of that.
constexpr std::chrono::milliseconds kPatience(300);

}  // namespace

// The part of the watcher that lives in its thread.
class WatchedFolder : public QObject {
 public:
  WatchedFolder(GameWatcher& owner, GameWatcher::IsStopped isStopped)
      : owner_(owner), isStopped_(std::move(isStopped)) {}

  void SetLook(GameWatcher::Look look, std::chrono::milliseconds rest) {
    look_ = std::move(look);
    rest_ = rest;
    files_ = SettledFiles(told_, rest_.count());
  }

  GameWatcher::Stamps FilesOf(const std::filesystem::path& map) { return look_(map, isStopped_); }

  void Watch(const std::filesystem::path& map, const GameWatcher::Stamps& files) {
    if (isStopped_()) return;
    map_ = map;
    files_ = SettledFiles(files, rest_.count());
    told_ = files_.Files();
    BeginWatching();
    Tell(&GameWatcher::Began, told_);
    LookSoon(std::chrono::milliseconds(0));
  }

  void LookSoon(std::chrono::milliseconds delay) {
    if (watcher_ != nullptr && !nextLook_->isActive()) nextLook_->start(delay);
  }

 private:
  // These belong to the thread, and so are made in it.
  void BeginWatching() {
    watcher_ = std::make_unique<QFileSystemWatcher>();
    nextLook_ = std::make_unique<QTimer>();
    nextLook_->setSingleShot(true);
    clock_.start();
    connect(nextLook_.get(), &QTimer::timeout, this, &WatchedFolder::LookNow);
    const auto look = [this] { LookSoon(kBetweenLooks); };
    connect(watcher_.get(), &QFileSystemWatcher::fileChanged, this, look);
    connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, this, look);
  }

  void LookNow() {
    const GameWatcher::Stamps files = FilesOf(map_);
    if (isStopped_()) return;
    files_.Look(files, clock_.elapsed());
    WatchPaths(files);
    GameWatcher::Stamps settled = files_.Files();
    if (settled != told_) {
      told_ = std::move(settled);
      Tell(&GameWatcher::Changed, told_);
    }
    if (!files_.IsAtRest()) LookSoon(std::min(kBetweenLooks, rest_));
  }

  // A file that is replaced is another one, and is no longer watched.
  void WatchPaths(const GameWatcher::Stamps& files) {
    const std::filesystem::path folder = map_.parent_path();
    QStringList paths = {PathText(folder)};
    for (const GameFileStamp& file : files) paths << PathText(folder / file.Name);
    for (const QString& known : watcher_->files() + watcher_->directories()) paths.removeOne(known);
    if (!paths.isEmpty()) watcher_->addPaths(paths);
  }

  using News = void (GameWatcher::*)(const std::filesystem::path&, const GameWatcher::Stamps&);

  void Tell(News news, const GameWatcher::Stamps& files) {
    QMetaObject::invokeMethod(
        &owner_, [&owner = owner_, news, map = map_, files] { emit(owner.*news)(map, files); },
        Qt::QueuedConnection);
  }

  GameWatcher& owner_;
  GameWatcher::Look look_ = StampGameFiles;
  std::chrono::milliseconds rest_{SettledFiles::kRest};
  GameWatcher::IsStopped isStopped_;
  std::filesystem::path map_;
  SettledFiles files_;
  GameWatcher::Stamps told_;
  QElapsedTimer clock_;
  std::unique_ptr<QFileSystemWatcher> watcher_;
  std::unique_ptr<QTimer> nextLook_;
};

GameWatcher::GameWatcher()
    : folder_(new WatchedFolder(*this, [this] { return isStopped_.load(); })) {
  folder_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, folder_, &QObject::deleteLater);
  thread_.start(QThread::LowPriority);
}

GameWatcher::~GameWatcher() {
  isStopped_ = true;
  thread_.quit();
  thread_.wait();
}

std::optional<GameWatcher::Stamps> GameWatcher::LookBeforeLoad(const std::filesystem::path& map) {
  map_ = map;
  const auto found = std::make_shared<std::promise<Stamps>>();
  before_ = found->get_future().share();
  QMetaObject::invokeMethod(
      folder_, [folder = folder_, found, map] { found->set_value(folder->FilesOf(map)); },
      Qt::QueuedConnection);
  if (before_.wait_for(kPatience) != std::future_status::ready) return std::nullopt;
  return before_.get();
}

void GameWatcher::Watch(const std::optional<Stamps>& since) {
  QMetaObject::invokeMethod(
      folder_,
      [folder = folder_, map = map_, since, before = before_] {
        folder->Watch(map, since ? *since : before.get());
      },
      Qt::QueuedConnection);
}

void GameWatcher::SetLook(Look look, std::chrono::milliseconds rest) {
  QMetaObject::invokeMethod(
      folder_, [folder = folder_, look = std::move(look), rest] { folder->SetLook(look, rest); },
      Qt::QueuedConnection);
}

void GameWatcher::LookAgain() {
  QMetaObject::invokeMethod(
      folder_, [folder = folder_] { folder->LookSoon(std::chrono::milliseconds(0)); },
      Qt::QueuedConnection);
}

}  // namespace quorvane
