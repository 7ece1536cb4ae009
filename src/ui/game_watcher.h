#pragma once

#include <QObject>
#include <QThread>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <future>
#include <optional>
#include <vector>

#include "loading/game_file_stamps.h"

namespace quorvane {

class WatchedFolder;

/// Looks after the files of the game on the screen. All looks at the disk are made in a thread of
/// their own, so that a slow share never keeps a window waiting.
class GameWatcher : public QObject {
  Q_OBJECT

 public:
  using Stamps = std::vector<GameFileStamp>;
  using IsStopped = std::function<bool()>;
  /// How the files are looked at.
  using Look = std::function<Stamps(const std::filesystem::path& map, const IsStopped& isStopped)>;

  GameWatcher();
  ~GameWatcher() override;

  /// Looks at the files of a game that is about to be loaded. What changes from then on is new,
  /// even while the game is still being read.
  /// @return the files, or nothing where that takes longer than anybody wants to wait
  std::optional<Stamps> LookBeforeLoad(const std::filesystem::path& map);
  /// Watches the game that was loaded since.
  /// @param since  the files as they were when the game was loaded, if that was not just now
  void Watch(const std::optional<Stamps>& since = {});
  /// Changes how the files are looked at, and how long one has to rest: no test has that much time.
  void SetLook(Look look, std::chrono::milliseconds rest);
  /// Has another look at the files: where changes are not told of, as on network folders.
  void LookAgain();

 signals:
  /// The game with that map was loaded with these files.
  void Began(const std::filesystem::path& map, const quorvane::GameWatcher::Stamps& files);
  /// Other files of it are there, complete.
  void Changed(const std::filesystem::path& map, const quorvane::GameWatcher::Stamps& files);

 private:
  QThread thread_;
  std::atomic<bool> isStopped_ = false;
  WatchedFolder* folder_ = nullptr;  // lives in the thread
  // The game that is loaded or about to be, and the look at its files.
  std::filesystem::path map_;
  std::shared_future<Stamps> before_;
};

}  // namespace quorvane
