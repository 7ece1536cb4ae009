#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include "model/progress.h"

class QProgressBar;
class QWidget;

namespace quorvane {

/// Keeps the windows alive while one event handler does something that may take long: they repaint,
/// the progress bar moves, and Escape gives the step up. Any other key or click would meet a window
/// whose game or map is half done, so it is dropped. A step that is quickly done never gets so far.
/// It ends with the object.
class LongStep : public QObject {
  Q_OBJECT

 public:
  /// @param bar  shows how far the step is, or only that it goes on while it does not tell
  explicit LongStep(QProgressBar& bar);
  ~LongStep() override;

  /// What the step tells and asks; good as long as this object.
  Progress Display();
  /// Gives the step up, as Escape does.
  void Stop() { isStopped_ = true; }
  bool IsStopped() const { return isStopped_; }

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void ShowValue(int value, int maximum);
  bool Answer();

  QProgressBar& bar_;
  const QWidget* modal_;  // the dialog, if any, that the step runs for
  int value_;
  int maximum_;
  bool isTold_ = false;  // how far the step is, since the windows answered last
  bool isLong_ = false;
  bool isStopped_ = false;
  QElapsedTimer sinceAnswer_;
  QPointer<QWindow> closing_;  // the window that the user wanted to close meanwhile
};

}  // namespace quorvane
