#pragma once

#include <QHeaderView>
#include <utility>
#include <vector>

namespace quorvane {

/// The heading row of a table of planets, which tells clicks of all mouse buttons. A column that
/// the table is sorted by has a small arrow above its text, where narrow columns have room.
class GridHeading : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridHeading(QWidget* parent);

  /// Marks several columns that the table is sorted by, the one that counts most first, instead of
  /// the one that the sort indicator stands for. They are counted where they are more than one.
  void ShowSorting(std::vector<std::pair<int, Qt::SortOrder>> sorting);

 signals:
  /// A button was pressed and released on a column's heading, not on the edge that resizes it.
  void Clicked(int column, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;

 private:
  void PaintMark(QPainter& painter, const QRect& rect, Qt::SortOrder order, int rank) const;

  std::vector<std::pair<int, Qt::SortOrder>> sorting_;
  Qt::KeyboardModifiers modifiers_;
  int pressed_ = -1;  // where another than the left button went down
};

}  // namespace quorvane
