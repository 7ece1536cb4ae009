#pragma once

#include <QMainWindow>
#include <QString>
#include <QTableView>
#include <utility>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

class GridModel;

/// The window "Planet Grid": all planets of a game in one table, which a click on a heading sorts.
/// What it shows is a snapshot that stays until it is filled again. It stands beside the main
/// window and does not keep the program running.
class Grid : public QMainWindow {
  Q_OBJECT

 public:
  Grid();

  /// Shows a game as it is now: all planets in map order and all columns in their first widths.
  void Fill(const GameSession& session);

  /// Shows the game as it is now where another year of it was shown: columns, sorting and the
  /// current planet stay.
  void Refresh(const GameSession& session);

  int ColumnCount() const;
  QString Heading(int column) const;
  /// In twips; 0 for a hidden column.
  int ColumnWidth(int column) const;
  /// @param twips  0 hides the column, -1 stands for the grid's default width
  void SetColumnWidth(int column, int twips);

  QTableView* DG = nullptr;
  QMenu* mnuView = nullptr;
  QAction* mnuSH = nullptr;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void BuildTable();
  void AddKeys();
  void Form_Resize();
  void DG_Click(int column, Qt::MouseButton button);
  void mnuSH_Click();
  int ColumnOf(const QString& heading) const;
  void SortBy(int column, Qt::SortOrder order);

  GridModel* model_ = nullptr;
  // Rows that are equal in one column are in the order of the one before.
  std::vector<std::pair<int, Qt::SortOrder>> sorting_;
};

}  // namespace quorvane
