#include "ui/search_menu.h"

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {

SearchMenu::SearchMenu(QWidget* parent) : QPushButton(tr("Searches"), parent) {
  setObjectName("PlanetsSearches");
  setToolTip(tr("Ready-made searches and your own"));
  menu_ = new QMenu(this);
  menu_->setToolTipsVisible(true);
  setMenu(menu_);
}

void SearchMenu::ShowSearches(const std::vector<PlanetSearch>& readyMade,
                              const std::vector<PlanetSearch>& own) {
  menu_->clear();
  int number = 0;
  for (const PlanetSearch& search : readyMade) {
    AddSearch(IndexedName("ReadySearch", ++number), search);
  }
  if (!own.empty()) menu_->addSeparator();
  number = 0;
  for (const PlanetSearch& search : own) AddSearch(IndexedName("OwnSearch", ++number), search);
  menu_->addSeparator();
  menu_->addAction(tr("Save This Search ..."), this, &SearchMenu::SaveAsked)
      ->setObjectName("SaveSearch");
  QMenu* remove = menu_->addMenu(tr("Remove"));
  remove->setObjectName("RemoveSearch");
  remove->setEnabled(!own.empty());
  for (int index = 0; index < static_cast<int>(own.size()); ++index) {
    const std::string& name = own[static_cast<std::size_t>(index)].Name;
    remove->addAction(WithoutAccessKeys(ToQString(name)), this,
                      [this, index] { emit RemoveAsked(index); });
  }
}

void SearchMenu::AddSearch(const QString& name, const PlanetSearch& search) {
  QAction* item = menu_->addAction(WithoutAccessKeys(ToQString(search.Name)), this,
                                   [this, search] { emit Chosen(search); });
  item->setObjectName(name);
  item->setToolTip(PlainToolTip(ToQString(search.Query)));
}

}  // namespace quorvane
