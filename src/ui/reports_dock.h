#pragma once

#include <QDockWidget>
#include <QLabel>
#include <vector>

#include "screens/report_texts.h"
#include "ui/report_list.h"

namespace quorvane {

/// The dock that tells whose reports there are and how much they tell, and whose is missing or
/// late. Ticks and years can be changed in it for the next reload.
class ReportsDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Shows no game at first.
  explicit ReportsDock(QWidget* parent);

  /// Shows these rows: only what differs is changed. What comes while a year is typed waits for its
  /// end. No rows: no game is loaded.
  void ShowRows(const std::vector<ReportRow>& rows);

 signals:
  /// The user has ticked the report of a row 1 … 16 in or out; the list shows it already.
  void Ticked(int row, bool isIn);
  /// The user has typed the year of the report of a row 1 … 16, digits or nothing; the list shows
  /// it already.
  void YearTyped(int row, const QString& year);

 private:
  ReportList* list_ = nullptr;
  QLabel* note_ = nullptr;
};

}  // namespace quorvane
