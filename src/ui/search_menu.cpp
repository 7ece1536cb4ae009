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
  end_ = menu_->addSeparator();
  menu_->addAction(tr("Save This Search ..."), this, &SearchMenu::SaveAsked)
      ->setObjectName("SaveSearch");
  remove_ = menu_->addMenu(tr("Remove"));
  remove_->setObjectName("RemoveSearch");
}

void SearchMenu::ShowSearches(const std::vector<PlanetSearch>& readyMade,
                              const std::vector<PlanetSearch>& own) {
  qDeleteAll(items_);
  items_.clear();
  int number = 0;
  for (const PlanetSearch& search : readyMade) {
    AddSearch(IndexedName("ReadySearch", ++number), search);
  }
  if (!own.empty()) items_ << menu_->insertSeparator(end_);
  number = 0;
  for (const PlanetSearch& search : own) AddSearch(IndexedName("OwnSearch", ++number), search);
  remove_->setEnabled(!own.empty());
  for (int index = 0; index < static_cast<int>(own.size()); ++index) {
    const std::string& name = own[static_cast<std::size_t>(index)].Name;
    items_ << remove_->addAction(WithoutAccessKeys(ToQString(name)), this,
                                 [this, index] { emit RemoveAsked(index); });
  }
}

void SearchMenu::AddSearch(const QString& name, const PlanetSearch& search) {
  auto* item = new QAction(WithoutAccessKeys(ToQString(search.Name)), menu_);
  item->setObjectName(name);
  item->setToolTip(PlainToolTip(ToQString(search.Query)));
  connect(item, &QAction::triggered, this, [this, search] { emit Chosen(search); });
  menu_->insertAction(end_, item);
  items_ << item;
}

}  // namespace quorvane
