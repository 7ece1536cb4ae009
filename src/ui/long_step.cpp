#include "ui/long_step.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QProgressBar>
#include <QTimer>

namespace quorvane {
namespace {

constexpr qint64 kPatience = 100;  // milliseconds

// What begins something. What ends it is let through: a button that was pressed before would stay
// so.
bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::NativeGesture:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

LongStep::LongStep(QProgressBar& bar)
    : bar_(bar),
      modal_(QApplication::activeModalWidget()),
      value_(bar.value()),
      maximum_(bar.maximum()) {
  sinceAnswer_.start();
}

LongStep::~LongStep() {
  if (!isLong_) return;
  bar_.setRange(0, maximum_);
  bar_.setValue(value_);
  QApplication::restoreOverrideCursor();
  QTimer::singleShot(0, qApp, [window = closing_] {
    if (window != nullptr) window->close();
  });
}

Progress LongStep::Display() {
  return {.ShowValue = [this](int value, int maximum) { ShowValue(value, maximum); },
          .AskStopped = [this] { return Answer(); }};
}

void LongStep::ShowValue(int value, int maximum) {
  isTold_ = true;
  value_ = value;
  maximum_ = maximum;
  bar_.setRange(0, maximum);
  bar_.setValue(value);
  bar_.repaint();
}

bool LongStep::Answer() {
  if (isStopped_ || sinceAnswer_.elapsed() < kPatience) return isStopped_;
  if (!isLong_) {
    isLong_ = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
  }
  // Without a maximum the bar shows that something goes on.
  if (!isTold_) bar_.setRange(0, 0);
  isTold_ = false;
  QApplication::processEvents();
  sinceAnswer_.restart();
  return isStopped_;
}

bool LongStep::eventFilter(QObject* target, QEvent* event) {
  // Assistive technology may open a dialog meanwhile, which has to be closed again.
  const bool isForDialog = QApplication::activeModalWidget() != modal_;
  if (isForDialog || !IsInput(event->type())) return QObject::eventFilter(target, event);
  if (event->type() == QEvent::KeyPress) {
    isStopped_ = isStopped_ || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  } else if (event->type() == QEvent::Close) {
    isStopped_ = true;
    closing_ = qobject_cast<QWindow*>(target);
    event->ignore();
  }
  return true;
}

}  // namespace quorvane
