#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "history/history.h"

namespace quorvane {

/// Keeps the years of the games that are loaded. They are stored in a thread of its own: neither a
/// slow disk nor another program that stores keeps a window waiting. Whatever is wrong with the
/// history is told once, and everything else works as without it.
class HistoryKeeper : public QObject {
  Q_OBJECT

 public:
  /// @param file  of the history; empty: nothing is kept
  explicit HistoryKeeper(std::filesystem::path file);
  /// Completes what was begun.
  ~HistoryKeeper() override;

  /// Looks for a history, so that its years can be read.
  void Look();
  /// Stores the year of a session, as it is now; a session whose year is not known is not kept.
  void Store(const GameSession& session);
  /// The same, and waits until it is done.
  Result<void> StoreNow(const GameSession& session);
  /// Deletes all years of a game, and waits until it is done.
  Result<void> Forget(const std::string& game);
  /// Waits until all is stored.
  void Finish() { thread_.waitForDone(); }

  /// The history to read years of; nullptr while there is none. Good until the next event.
  const History* Years();

 signals:
  /// There may be other years than before.
  void Changed();
  /// Something is wrong with the history: in a few words, and in full.
  void FaultFound(const QString& words, const QString& details);

 private:
  Result<void> StoreInThread(const GameSession& session);
  Result<void> OpenInThread();
  void TellFromThread(const QString& words, const std::string& details);

  const std::filesystem::path file_;
  QThreadPool thread_;
  // In the thread only.
  std::optional<History> history_;
  std::string told_;
  // In the windows' thread only.
  std::optional<History> years_;
  bool isChecked_ = false;
};

}  // namespace quorvane
