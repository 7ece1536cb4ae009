#pragma once

#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <functional>
#include <optional>
#include <vector>

#include "screens/planet_filter.h"
#include "screens/planet_searches.h"

namespace quorvane {

class PlanetList;
class SearchHelp;
class SearchLine;
class SearchMenu;

/// The dock with all planets of the game, or those that a search finds.
class PlanetsDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Which planets changed, by number; empty where there is no year to compare with.
  using Changes = std::function<std::vector<bool>()>;

  /// @param session  the game that is shown; whenever it becomes another one, the dock is told
  /// @param changed  asked only for searches that want to know
  PlanetsDock(const GameSession& session, Changes changed, QWidget* parent);

  /// Shows the game as it is now. The search stays, and so do columns and sorting.
  /// @param selected  the selected planet; 0: none
  void ShowGame(int selected);
  /// Follows the selection, wherever it was made.
  void ShowSelected(int selected);
  /// Searches again, as the planets that changed are other ones.
  void ShowChanges();
  void ShowOwnSearches(std::vector<PlanetSearch> own);

  /// The planets to be marked on the map: those that were found, where the user wants that and
  /// searches for something.
  std::vector<int> Marked() const;
  /// The search as it is typed, with its sorting and no name.
  PlanetSearch Search() const;

  PlanetList* List = nullptr;

 signals:
  void PlanetChosen(int planet);
  void ZoomAsked(int planet);
  void MenuAsked(int planet, QPoint at);
  /// Other planets are to be marked.
  void MarksChanged();
  void SaveSearchAsked();
  void RemoveSearchAsked(int index);
  void ExportAsked();
  /// The keyboard goes back to the map.
  void BackAsked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* NewContent();
  QLayout* NewSearchRows(QWidget* content);
  QLayout* NewButtonRows(QWidget* content);
  void ConnectParts();
  void Line_Changed();
  void TakeSearch();
  void Find();
  void ShowFound();
  void ShowSearches();
  void Searches_Chosen(const PlanetSearch& search);
  void List_PlanetChosen(int planet);
  void Help_Click();
  void Copy_Click();

  const GameSession& session_;
  Changes changed_;
  SearchFacts facts_;
  std::vector<PlanetSearch> own_;
  std::string good_;  // the last search that could be read
  std::optional<PlanetFilter> filter_;
  std::vector<int> found_;
  bool isChoosing_ = false;

  SearchLine* line_ = nullptr;
  SearchMenu* searches_ = nullptr;
  QPushButton* help_ = nullptr;
  QLabel* fault_ = nullptr;
  QLabel* summary_ = nullptr;
  QCheckBox* mark_ = nullptr;
  QPushButton* columns_ = nullptr;
  QPushButton* copy_ = nullptr;
  QPushButton* export_ = nullptr;
  SearchHelp* helpWindow_ = nullptr;
};

}  // namespace quorvane
