#pragma once

#include <QPushButton>

namespace quorvane {

/// A value that is changed by pressing it. Like an `ElidedLabel` it is drawn shortened where it is
/// longer than its place. Assistive technology reads what the value means before the value.
class RangeButton : public QPushButton {
  Q_OBJECT

 public:
  RangeButton(const QString& name, const QString& meaning, QWidget* parent);

  void ShowValue(const QString& value);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Shortened() const;
  void UpdateToolTip();

  QString meaning_;
};

}  // namespace quorvane
