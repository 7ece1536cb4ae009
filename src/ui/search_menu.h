#pragma once

#include <QMenu>
#include <QPushButton>
#include <vector>

#include "screens/planet_searches.h"

namespace quorvane {

/// The button with the list of the searches that can be chosen: the ready-made ones and the user's
/// own.
class SearchMenu : public QPushButton {
  Q_OBJECT

 public:
  explicit SearchMenu(QWidget* parent);

  void ShowSearches(const std::vector<PlanetSearch>& readyMade,
                    const std::vector<PlanetSearch>& own);

 signals:
  void Chosen(const PlanetSearch& search);
  /// The search as it is typed is to be kept.
  void SaveAsked();
  /// @param index  of one of the user's own, from 0
  void RemoveAsked(int index);

 private:
  void AddSearch(const QString& name, const PlanetSearch& search);

  QMenu* menu_ = nullptr;
  QMenu* remove_ = nullptr;
  QAction* end_ = nullptr;  // of the searches
  QList<QAction*> items_;
};

}  // namespace quorvane
