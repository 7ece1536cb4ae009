#pragma once

#include <QMenu>
#include <QObject>
#include <QThreadPool>
#include <atomic>
#include <filesystem>
#include <vector>

#include "ui/game_memories.h"

namespace quorvane {

/// The menu of the games that were opened last: their names, years and dates. Those whose map is
/// gone are greyed; the maps are looked for in a thread of their own, as they may lie behind a slow
/// network.
class RecentGames : public QObject {
  Q_OBJECT

 public:
  /// @param parent  the menu in which it is
  RecentGames(QMenu& menu, QMenu& parent, const GameMemories& memories);
  ~RecentGames() override;

  /// Shows the games that are remembered now.
  void Fill();

 signals:
  /// The user wants that game opened again.
  void Chosen(const std::filesystem::path& map);

 private:
  void GreyThoseThatAreGone(const std::vector<std::filesystem::path>& maps);
  void Grey(const std::filesystem::path& map);

  QMenu& menu_;
  const GameMemories& memories_;
  std::atomic<bool> isStopped_ = false;
  QThreadPool thread_;
};

}  // namespace quorvane
