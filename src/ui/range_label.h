#pragma once

#include "ui/elided_label.h"

namespace quorvane {

/// A value that changes when it is clicked, or when Enter or Space is pressed while it has the
/// focus. Assistive technology reads what the value means before the value.
class RangeLabel : public ElidedLabel {
  Q_OBJECT

 public:
  RangeLabel(const QString& name, const QString& meaning, QWidget* parent);

  void ShowValue(const QString& value);

 signals:
  void Clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString meaning_;
};

}  // namespace quorvane
