#pragma once

#include <QTreeWidget>
#include <optional>
#include <vector>

#include "screens/report_texts.h"
#include "ui/report_delegate.h"

namespace quorvane {

/// The list of the game's reports: each can be ticked in or out, and its year typed.
class ReportList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ReportList(QWidget* parent);

  /// Shows these rows; the current one stays it. What comes while a year is typed waits for its
  /// end.
  void ShowRows(const std::vector<ReportRow>& rows);

  QSize sizeHint() const override;

 signals:
  /// The user has ticked the report of a row 1 … 16 in or out; the list shows it already.
  void Ticked(int row, bool isIn);
  /// The user has typed the year of the report of a row 1 … 16; the list shows it already.
  void YearTyped(int row, const QString& year);

 protected:
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SetUpHeader();
  void SettleColumns();
  void TakeChange(QTreeWidgetItem* item, int column);
  void EditYear(QKeyEvent* typed);
  const ReportRow* CurrentRow() const;

  std::vector<ReportRow> shown_;                   // as long as the list
  std::optional<std::vector<ReportRow>> waiting_;  // for the end of typing
  ReportDelegate* delegate_ = nullptr;
};

}  // namespace quorvane
