#include "ui/distances_dock.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kSide = 8;
// Where a row of a list keeps the number of its planet.
constexpr int kNumberRole = Qt::UserRole;

QStringList Captions() {
  QStringList captions = {"To", "Light years"};
  for (int warp = kSlowestWarp; warp <= kFastestWarp; ++warp) {
    captions << QString("Years at warp %1").arg(warp);
  }
  return captions << "Gate there"
                  << "Gate back";
}

}  // namespace

DistancesDock::DistancesDock(QWidget* parent) : QDockWidget("Distances", parent) {
  setObjectName("DistancesDock");
  auto* content = new QWidget(this);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(kSide, kSide, kSide, kSide);
  column->addWidget(NewWays(content));
  auto* buttons = new QHBoxLayout();
  DistancesKeep = NewButton("DistancesKeep", "Keep as destination", content);
  DistancesKeep->setToolTip("The planet under the pointer (Ctrl+D), else the selected one");
  DistancesForget = NewButton("DistancesForget", "Forget", content);
  DistancesForget->setAccessibleName("Forget the destination");
  connect(DistancesKeep, &QPushButton::clicked, this, &DistancesDock::KeepAsked);
  connect(DistancesForget, &QPushButton::clicked, this, &DistancesDock::ForgetAsked);
  buttons->addWidget(DistancesKeep, 1);
  buttons->addWidget(DistancesForget);
  column->addLayout(buttons);
  column->addWidget(NewHeading("Own planets nearby", content));
  DistancesOwn = NewList("DistancesOwn", "Own planets nearby", content);
  column->addWidget(DistancesOwn, 1);
  column->addWidget(NewHeading("Stargates nearby", content));
  DistancesGates = NewList("DistancesGates", "Stargates nearby", content);
  column->addWidget(DistancesGates, 1);
  setWidget(NewScrollArea(content));
  ShowWays("", {}, {});
}

QWidget* DistancesDock::NewWays(QWidget* parent) {
  auto* ways = new QWidget(parent);
  auto* grid = new QGridLayout(ways);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(2);
  grid->addWidget(NewCaption("From", ways), 0, 0);
  DistancesFrom = new ElidedLabel("DistancesFrom", ways);
  grid->addWidget(DistancesFrom, 0, 1, 1, 2);
  grid->addWidget(NewHeading("Pointer", ways), 1, 1);
  grid->addWidget(NewHeading("Destination", ways), 1, 2);
  int row = 0;
  for (const QString& caption : Captions()) {
    const auto index = static_cast<std::size_t>(row);
    grid->addWidget(NewCaption(caption, ways), row + 2, 0);
    pointer_[index] = new ElidedLabel(IndexedName("DistancesPointer", row), ways);
    kept_[index] = new ElidedLabel(IndexedName("DistancesKept", row), ways);
    grid->addWidget(pointer_[index], row + 2, 1);
    grid->addWidget(kept_[index], row + 2, 2);
    ++row;
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  return ways;
}

QTreeWidget* DistancesDock::NewList(const char* name, const QString& meaning, QWidget* parent) {
  constexpr int kLeastHeight = 90;
  auto* list = new QTreeWidget(parent);
  list->setObjectName(name);
  list->setAccessibleName(meaning);
  list->setHeaderLabels({"Planet", "l.y.", QString("Years at %1").arg(kUsualWarp)});
  list->headerItem()->setToolTip(2, QString("Years at warp %1").arg(kUsualWarp));
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  list->setMinimumHeight(kLeastHeight);
  QHeaderView& header = *list->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(0, QHeaderView::Stretch);
  // Later, as the list that is in the middle of it will be filled anew.
  const auto choose = [this](QTreeWidgetItem* item) {
    const int planet = item->data(0, kNumberRole).toInt();
    QTimer::singleShot(0, this, [this, planet] { emit PlanetChosen(planet); });
  };
  // Enter activates a row; a click does so only on some desktops.
  connect(list, &QTreeWidget::itemActivated, this, choose);
  if (list->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick) == 0) {
    connect(list, &QTreeWidget::itemClicked, this, choose);
  }
  return list;
}

void DistancesDock::ShowWays(const std::string& from, const WayTexts& toPointer,
                             const WayTexts& toKept) {
  const QString start = from.empty() ? "Select a planet on the map first" : ToQString(from);
  if (DistancesFrom->text() != start) DistancesFrom->ShowValue(start);
  ShowWay(pointer_, toPointer);
  ShowWay(kept_, toKept);
  DistancesForget->setEnabled(!toKept.To.empty());
}

void DistancesDock::ShowWay(const Column& column, const WayTexts& way) {
  std::vector<std::string> texts = {way.To, way.LightYears};
  texts.insert(texts.end(), way.Years.begin(), way.Years.end());
  texts.insert(texts.end(), {way.GateThere, way.GateBack});
  for (std::size_t row = 0; row < column.size(); ++row) {
    const QString text = ToQString(texts[row]);
    if (column[row]->text() != text) column[row]->ShowValue(text);
  }
}

void DistancesDock::ShowNearest(std::vector<NearPlanet> own, std::vector<NearPlanet> withGate) {
  if (own != own_) Fill(*DistancesOwn, own);
  if (withGate != withGate_) Fill(*DistancesGates, withGate);
  own_ = std::move(own);
  withGate_ = std::move(withGate);
}

void DistancesDock::Fill(QTreeWidget& list, const std::vector<NearPlanet>& planets) {
  list.clear();
  for (const NearPlanet& planet : planets) {
    auto* row = new QTreeWidgetItem(
        &list, {ToQString(planet.Name), ToQString(planet.LightYears), ToQString(planet.Years)});
    row->setData(0, kNumberRole, planet.Number);
    row->setToolTip(0, PlainToolTip(ToQString(planet.Name)));
    row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
  }
  if (list.hasFocus()) list.setCurrentItem(list.topLevelItem(0));
}

int DistancesDock::FocusedPlanet() const {
  for (const QTreeWidget* list : {DistancesOwn, DistancesGates}) {
    const QTreeWidgetItem* row = list->hasFocus() ? list->currentItem() : nullptr;
    if (row != nullptr) return row->data(0, kNumberRole).toInt();
  }
  return 0;
}

}  // namespace quorvane
