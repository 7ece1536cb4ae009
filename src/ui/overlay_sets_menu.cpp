#include "ui/overlay_sets_menu.h"

#include <QKeySequence>

#include "ui/texts.h"

namespace quorvane {

OverlaySetsMenu::OverlaySetsMenu(QMenu& menu) : QObject(&menu), menu_(menu) {
  menu.addSeparator();
  save_ = menu.addAction(tr("Save as Set ..."), this, &OverlaySetsMenu::SaveAsked);
  save_->setObjectName("ViewSaveSet");
  remove_ = menu.addAction(tr("Remove Set"), this, [this] { emit RemoveAsked(lit_); });
  remove_->setObjectName("ViewRemoveSet");
}

void OverlaySetsMenu::ShowSets(const std::vector<OverlaySet>& sets) {
  qDeleteAll(items_);
  items_.clear();
  sets_ = sets;
  for (int index = 0; index < static_cast<int>(sets.size()); ++index) AddSet(index);
}

void OverlaySetsMenu::AddSet(int index) {
  const OverlaySet& set = sets_[static_cast<std::size_t>(index)];
  auto* item = new QAction(WithoutAccessKeys(ToQString(set.Name)), &menu_);
  item->setObjectName(IndexedName("ViewSet", index + 1));
  item->setCheckable(true);
  item->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)));
  // The mark tells what is on, which a click on the set that is on does not change.
  connect(item, &QAction::triggered, this, [this, item, index] {
    item->setChecked(index == lit_);
    emit SetChosen(index);
  });
  menu_.insertAction(menu_.actions().at(index), item);
  items_.push_back(item);
}

void OverlaySetsMenu::ShowLit(const OverlaySwitches& current, bool hasNewReports, bool isEnabled) {
  lit_ = -1;
  for (int index = static_cast<int>(items_.size()) - 1; index >= 0; --index) {
    const bool isLit = IsShown(sets_[static_cast<std::size_t>(index)], current, hasNewReports);
    items_[static_cast<std::size_t>(index)]->setChecked(isLit);
    items_[static_cast<std::size_t>(index)]->setEnabled(isEnabled);
    if (isLit) lit_ = index;
  }
  save_->setEnabled(isEnabled);
  remove_->setEnabled(isEnabled && lit_ >= 0);
}

}  // namespace quorvane
