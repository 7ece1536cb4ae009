#pragma once

#include <QHeaderView>

namespace quorvane {

/// The heading row of the planet grid, which tells clicks of all mouse buttons. The column that the
/// sort indicator stands for has a small arrow above its text, where narrow columns have room.
class GridHeading : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridHeading(QWidget* parent);

 signals:
  /// A button was pressed and released on a column's heading, not on the edge that resizes it.
  void Clicked(int column, Qt::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;

 private:
  int pressed_ = -1;  // where another than the left button went down
};

}  // namespace quorvane
