#pragma once

#include <QLabel>
#include <QString>

namespace quorvane {

/// How wide a value wants to be, and must be, at most, in pixels; the numbers of an ordinary game
/// need less.
inline constexpr int kWidestValueHint = 120;
inline constexpr int kLeastValueWidth = 40;

/// A value that may be longer than its place. It is drawn shortened then, and its tooltip tells it
/// whole; its text stays whole, and the window does not grow with it.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(const QString& name, QWidget* parent);

  void ShowValue(const QString& value);
  /// What the value means, as a tooltip.
  void SetTip(const QString& tip);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool IsTooLong() const;
  QRect TextRect() const;
  void UpdateToolTip();

  QString tip_;
};

}  // namespace quorvane
