#pragma once

#include <QTreeWidget>
#include <vector>

#include "screens/import_plan.h"

namespace quorvane {

/// The table of the old reports that were found: each can be ticked in or out, and its year typed.
class ImportTable : public QTreeWidget {
  Q_OBJECT

 public:
  explicit ImportTable(QWidget* parent);

  /// Shows the rows of the plan; the current one stays it.
  void ShowRows(const ImportPlan& plan);
  /// Whether the rows can only be looked at.
  void SetFixed(bool isFixed);

 signals:
  /// The user has ticked a row in or out; the table shows it already.
  void Ticked(int row, bool isIn);
  /// The user has typed a year; the table shows it already.
  void YearTyped(int row, const QString& year);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SetUpHeader();
  void SettleColumns();
  void SetFlags(QTreeWidgetItem& item, bool canBeTicked) const;
  void TakeChange(QTreeWidgetItem* item, int column);
  void EditYear(QKeyEvent* typed);

  std::vector<ImportRow> shown_;
  bool isFixed_ = false;
};

}  // namespace quorvane
