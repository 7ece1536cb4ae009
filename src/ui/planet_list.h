#pragma once

#include <QTableView>
#include <QTimer>
#include <string>
#include <vector>

#include "screens/planet_table.h"

class QMenu;

namespace quorvane {

class GridHeading;
class GridModel;
class PlanetRows;

/// The table of the planets that were found: sorted by a click on a heading, by several with Ctrl;
/// its columns can be chosen, moved and sized. A row that is chosen is a planet to be shown.
class PlanetList : public QTableView {
  Q_OBJECT

 public:
  explicit PlanetList(QWidget* parent);

  /// Shows a table, of which those planets were found; columns and sorting stay as they are.
  void ShowTable(PlanetGrid table, const std::vector<int>& found);
  /// Shows which planets of the same table are found now.
  void ShowFound(const std::vector<int>& found);
  /// Tells the ways from another selected planet.
  /// @param sortsAnew  whether rows that are sorted by these move
  void ShowWays(const GameSession& session, int selected, bool sortsAnew);
  const PlanetGrid& Table() const;

  /// Makes the row of a planet the current one and brings it into sight; without one, no row is.
  void SelectPlanet(int planet);
  /// The planet of the current row; 0: there is none.
  int CurrentPlanet() const;
  /// Chooses the first planet where none is chosen yet.
  void ChooseFirst();

  void SortBy(std::vector<ColumnSort> sorting);
  const std::vector<ColumnSort>& Sorting() const { return sorting_; }
  void Arrange(std::vector<ColumnPlace> kept);
  /// How the user has arranged the columns, in this game and others.
  const std::vector<ColumnPlace>& Arrangement() const { return kept_; }
  /// Fills a menu in which columns are chosen.
  void FillColumnMenu(QMenu& menu);

  /// The shown columns of rows as they stand: of all rows, or of the selected ones.
  std::vector<std::vector<std::string>> Cells(bool onlySelected) const;
  /// The headings of the shown columns.
  std::vector<std::string> Headings() const;

 signals:
  void PlanetChosen(int planet);
  void ZoomAsked(int planet);
  void MenuAsked(int planet, QPoint at);
  void CopyAsked();
  /// The user has arranged columns.
  void Arranged();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void SetUpHeading();
  void TakeChoice();
  void Choose(const QModelIndex& index);
  void ShowCurrent();
  void Heading_Clicked(int column, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void ShowColumn(const std::string& column, bool isShown);
  void TakeArrangement();
  void SortCurrent(Qt::SortOrder order, bool adds);
  void ShowMarks();
  int PlanetAt(const QModelIndex& index) const;
  std::vector<int> ShownColumns() const;
  int FirstColumn() const;
  int WidthOf(const PlanetGridColumn& column) const;

  GridModel* model_ = nullptr;
  PlanetRows* rows_ = nullptr;
  GridHeading* heading_ = nullptr;
  std::vector<ColumnSort> sorting_;
  std::vector<ColumnPlace> kept_;
  QTimer arranged_;
  int chosen_ = 0;  // the planet that is known to be selected
  bool isFilling_ = false;
};

}  // namespace quorvane
