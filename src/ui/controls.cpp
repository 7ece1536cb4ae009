#include "ui/controls.h"

#include <QApplication>
#include <QHelpEvent>
#include <QScreen>
#include <QTextDocument>
#include <QToolTip>

namespace quorvane {
namespace {

constexpr const char* kWholeTip = "wholeToolTip";

// Plain unless the toolkit would take it for markup: then it becomes markup that shows just this.
QString AsItStands(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return "<div style=\"white-space: pre-wrap\">" + text.toHtmlEscaped().replace('\n', "<br>") +
         "</div>";
}

// Where a line that begins at `start` ends: behind its last blank that has room, or in a word.
qsizetype EndOfLine(const QString& text, qsizetype start) {
  constexpr qsizetype kLongestLine = 100;
  const qsizetype room = start + kLongestLine;
  const qsizetype newLine = text.indexOf('\n', start);
  if (newLine >= 0 && newLine <= room) return newLine + 1;
  if (text.size() <= room) return text.size();
  const qsizetype blank = text.lastIndexOf(' ', room - 1);
  if (blank > start) return blank + 1;
  return text[room - 1].isHighSurrogate() ? room + 1 : room;
}

QString InShortLines(const QString& text) {
  constexpr int kMostLines = 30;
  QString lines;
  qsizetype start = 0;
  for (int line = 0; line < kMostLines && start < text.size(); ++line) {
    const qsizetype end = EndOfLine(text, start);
    if (!lines.isEmpty() && !lines.endsWith('\n')) lines += '\n';
    lines += text.mid(start, end - start);
    start = end;
  }
  return start < text.size() ? lines + "..." : lines;
}

class ToolTipFilter : public QObject {
 protected:
  bool eventFilter(QObject* target, QEvent* event) override {
    const QString text = target->property(kWholeTip).toString();
    if (event->type() != QEvent::ToolTip || text.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainToolTip(text),
                       qobject_cast<QWidget*>(target));
    return true;
  }
};

}  // namespace

QString PlainToolTip(const QString& text) { return AsItStands(InShortLines(text)); }

void SetPlainToolTip(QWidget& widget, const QString& text) {
  if (widget.property(kWholeTip) == text) return;  // the map's is set with every move of the mouse
  static ToolTipFilter filter;
  widget.setToolTip(AsItStands(text));
  widget.setProperty(kWholeTip, text);
  widget.installEventFilter(&filter);
}

QScrollArea* NewScrollArea(QWidget* part) {
  auto* scroll = new QScrollArea(part->parentWidget());
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setWidget(part);
  QObject::connect(qApp, &QApplication::focusChanged, scroll, [=](QWidget*, QWidget* now) {
    if (now != nullptr && part->isAncestorOf(now)) scroll->ensureWidgetVisible(now);
  });
  return scroll;
}

QSize RoomOnScreen(const QWidget& window) {
  constexpr QSize kFrame(0, 40);
  return window.screen()->availableSize() - kFrame;
}

}  // namespace quorvane
