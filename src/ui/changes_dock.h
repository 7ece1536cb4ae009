#pragma once

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <string>
#include <vector>

#include "screens/change_texts.h"

namespace quorvane {

class ChangeModel;

/// The dock "What Changed": what became of the planets between the shown year and an earlier one.
/// A row that is chosen is a planet to be shown.
class ChangesDock : public QDockWidget {
  Q_OBJECT

 public:
  explicit ChangesDock(QWidget* parent);

  /// Offers years to compare with.
  /// @param earlier  in ascending order
  /// @param chosen   which one it is; 0: there is none
  void ShowYears(const std::vector<int>& earlier, int chosen);
  /// Offers races whose changes can be shown alone; the chosen one stays where it is among them.
  void ShowRaces(const std::vector<std::string>& races);
  /// Shows changes; the row of the same words stays the current one.
  /// @param text  the same to be copied or saved
  void ShowChanges(const std::vector<ChangeRow>& rows, const QString& summary, const QString& text);

  /// The year that is compared with; 0: none.
  int Against() const;
  /// Whose changes are wanted; empty: everybody's.
  std::string Race() const;
  const QString& Text() const { return text_; }

 signals:
  /// The user chose another year or race.
  void Asked();
  void PlanetChosen(int planet);
  void SaveAsked();

 private:
  QWidget* NewContent();
  void Row_Chosen(const QModelIndex& index);

  QComboBox* against_ = nullptr;
  QComboBox* race_ = nullptr;
  QLabel* summary_ = nullptr;
  QListView* list_ = nullptr;
  ChangeModel* model_ = nullptr;
  QPushButton* copy_ = nullptr;
  QPushButton* save_ = nullptr;
  QString text_;
  bool isFilling_ = false;
};

}  // namespace quorvane
