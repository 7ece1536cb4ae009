#include "ui/history_keeper.h"

#include <QDateTime>
#include <system_error>
#include <utility>

#include "ui/texts.h"

namespace quorvane {

HistoryKeeper::HistoryKeeper(std::filesystem::path file) : file_(std::move(file)) {
  thread_.setMaxThreadCount(1);
}

HistoryKeeper::~HistoryKeeper() { Finish(); }

void HistoryKeeper::Look() {
  std::error_code ignored;
  if (file_.empty() || isChecked_ || !std::filesystem::exists(file_, ignored)) return;
  thread_.start([this] { static_cast<void>(OpenInThread()); });
}

void HistoryKeeper::Store(const GameSession& session) {
  if (file_.empty() || session.GameYear < 1) return Look();
  thread_.start([this, copy = std::make_shared<const GameSession>(session)] {
    static_cast<void>(StoreInThread(*copy));
  });
}

Result<void> HistoryKeeper::StoreNow(const GameSession& session) {
  Result<void> stored;
  thread_.start([&] { stored = StoreInThread(session); });
  Finish();
  return stored;
}

Result<void> HistoryKeeper::Forget(const std::string& game) {
  Result<void> forgotten;
  thread_.start([&] {
    forgotten = OpenInThread();
    if (forgotten) forgotten = history_->Forget(game);
  });
  Finish();
  emit Changed();
  return forgotten;
}

const History* HistoryKeeper::Years() {
  if (!isChecked_) return nullptr;
  if (!years_) {
    Result<History> opened = History::OpenToRead(file_);
    if (!opened) return nullptr;
    years_ = std::move(*opened);
  }
  return &*years_;
}

Result<void> HistoryKeeper::StoreInThread(const GameSession& session) {
  Result<void> stored = OpenInThread();
  if (!stored) return stored;
  stored = history_->Store(session, QDateTime::currentSecsSinceEpoch());
  if (!stored && history_->IsWritable()) {
    // The file may be another one than it was, and no history any more.
    history_.reset();
    stored = OpenInThread();
    if (stored) stored = history_->Store(session, QDateTime::currentSecsSinceEpoch());
  }
  if (!stored) TellFromThread(tr("This year is not kept in the history"), stored.Message());
  QMetaObject::invokeMethod(this, &HistoryKeeper::Changed, Qt::QueuedConnection);
  return stored;
}

// The file is looked at once; a history that was deleted meanwhile begins anew.
Result<void> HistoryKeeper::OpenInThread() {
  std::error_code ignored;
  if (history_ && std::filesystem::exists(file_, ignored)) return {};
  history_.reset();
  Result<History> opened = History::Open(file_);
  if (!opened) {
    TellFromThread(tr("No history can be kept"), opened.Message());
    return opened.Error();
  }
  history_ = std::move(*opened);
  const HistoryNotice& notice = history_->Notice();
  if (!notice.Words.empty()) TellFromThread(ToQString(notice.Words), notice.Details);
  QMetaObject::invokeMethod(
      this,
      [this] {
        isChecked_ = true;
        years_.reset();
        emit Changed();
      },
      Qt::QueuedConnection);
  return {};
}

void HistoryKeeper::TellFromThread(const QString& words, const std::string& details) {
  if (details == told_) return;
  told_ = details;
  QMetaObject::invokeMethod(
      this, [this, words, details] { emit FaultFound(words, ToQString(details)); },
      Qt::QueuedConnection);
}

}  // namespace quorvane
