#include "ui/distances_dock.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kNothingSelected = "Select a planet on the map first";
constexpr QSize kFirstSize(300, 420);
constexpr int kGap = 4;
constexpr int kNameColumn = 0;
constexpr int kListColumns = 3;
constexpr int kRowSpacing = 2;
constexpr int kYearsLine = 3;  // the grid's first line of years
constexpr int kGateLines = 2;  // in the narrow columns, a gate's text takes so many

// The dock's content; a scrolled part alone would ask for more or less room, as its font goes.
class Content : public QWidget {
 public:
  using QWidget::QWidget;
  QSize sizeHint() const override { return kFirstSize; }
};

void ShowText(QLabel& label, const std::string& text) {
  const QString shown = ToQString(text);
  if (label.text() != shown) label.setText(shown);
}

int PlanetOf(const QTreeWidgetItem* row) {
  return row != nullptr ? row->data(kNameColumn, Qt::UserRole).toInt() : 0;
}

Qt::Alignment AlignmentOf(int listColumn) {
  return (listColumn == kNameColumn ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

int RowHeight(const QTreeWidget& list) { return list.fontMetrics().height() + kRowSpacing; }

// Takes the room of two lines even for one, so that nothing below it moves with the pointer.
QLabel* NewGateValue(const QString& name, QWidget* parent) {
  QLabel* label = NewValue(name, parent);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setMinimumHeight(kGateLines * label->fontMetrics().lineSpacing());
  return label;
}

QVBoxLayout* NewColumn(QWidget* parent) {
  auto* column = new QVBoxLayout(parent);
  column->setContentsMargins(6, kGap, 6, kGap);
  column->setSpacing(kGap);
  return column;
}

}  // namespace

DistancesDock::DistancesDock(QWidget* parent) : QDockWidget(tr("Distances"), parent) {
  setObjectName("DistancesDock");
  auto* content = new Content(this);
  auto* page = new QWidget(content);
  QVBoxLayout* column = NewColumn(page);
  from_ = new ElidedLabel("DistancesFrom", page);
  from_->ShowValue(tr(kNothingSelected));
  column->addWidget(from_);
  column->addWidget(NewButtons(page));
  column->addWidget(NewWayGrid(page));
  column->addSpacing(kGap);
  column->addWidget(NewHeading(tr("Own planets nearby"), page));
  own_.View = NewNearList("DistancesOwn", tr("Own planets nearby"), page);
  column->addWidget(own_.View);
  column->addSpacing(kGap);
  column->addWidget(NewHeading(tr("Stargates nearby"), page));
  gates_.View = NewNearList("DistancesGates", tr("Stargates nearby"), page);
  column->addWidget(gates_.View);
  column->addStretch(1);
  auto* whole = new QVBoxLayout(content);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(NewScrollArea(page));
  setWidget(content);
}

// They stand above the grid, so that the Tab key brings its first lines into sight.
QWidget* DistancesDock::NewButtons(QWidget* page) {
  auto* buttons = new QWidget(page);
  auto* column = new QVBoxLayout(buttons);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  keep_ = NewButton("DistancesKeep", tr("Keep as destination"), buttons);
  keep_->setToolTip(tr("Keep a planet as destination (Ctrl+D)"));
  keep_->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus to the row that may be meant
  forget_ = NewButton("DistancesForget", tr("Forget destination"), buttons);
  forget_->setEnabled(false);
  column->addWidget(keep_);
  column->addWidget(forget_);
  connect(keep_, &QPushButton::clicked, this, &DistancesDock::KeepAsked);
  connect(forget_, &QPushButton::clicked, this, &DistancesDock::ForgetAsked);
  return buttons;
}

QWidget* DistancesDock::NewWayGrid(QWidget* page) {
  auto* ways = new QWidget(page);
  auto* grid = new QGridLayout(ways);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  QStringList captions = {"", "", tr("Distance:")};
  for (int warp = kSlowestWarp; warp <= kFastestWarp; ++warp) captions << tr("Warp %1:").arg(warp);
  captions << tr("Gate there:") << tr("Gate back:");
  for (int line = 0; line < captions.size(); ++line) {
    grid->addWidget(NewCaption(captions[line], ways), line, 0, Qt::AlignLeft | Qt::AlignTop);
  }
  grid->addWidget(NewHeading(tr("Pointer"), ways), 0, 1);
  grid->addWidget(NewHeading(tr("Destination"), ways), 0, 2);
  for (int index = 0; index < 2; ++index) AddColumn(ways, index);
  return ways;
}

void DistancesDock::AddColumn(QWidget* ways, int index) {
  auto* grid = static_cast<QGridLayout*>(ways->layout());
  Column& column = columns_.at(static_cast<std::size_t>(index));
  const int place = index + 1;
  grid->setColumnStretch(place, 1);
  grid->setColumnMinimumWidth(place, ways->fontMetrics().horizontalAdvance(tr("Destination")));
  column.To = new ElidedLabel(index == 0 ? "DistancesPointer" : "DistancesKept", ways);
  column.To->setProperty("value", true);
  column.LightYears = NewValue(IndexedName("DistancesLightYears", index), ways);
  grid->addWidget(column.To, 1, place);
  grid->addWidget(column.LightYears, kYearsLine - 1, place);
  int line = kYearsLine;
  for (QLabel*& years : column.Years) {
    const int warp = kSlowestWarp + line - kYearsLine;
    years = NewValue(QString("DistancesYears(%1,%2)").arg(index).arg(warp), ways);
    grid->addWidget(years, line++, place);
  }
  column.GateThere = NewGateValue(IndexedName("DistancesGateThere", index), ways);
  column.GateBack = NewGateValue(IndexedName("DistancesGateBack", index), ways);
  grid->addWidget(column.GateThere, line++, place);
  grid->addWidget(column.GateBack, line, place);
  // Neither column takes room from the other as the texts change, so both stand still.
  for (line = 0; line < grid->rowCount(); ++line) {
    grid->itemAtPosition(line, place)
        ->widget()
        ->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }
}

QTreeWidget* DistancesDock::NewNearList(const char* name, const QString& meaning, QWidget* page) {
  auto* list = new QTreeWidget(page);
  list->setObjectName(name);
  list->setAccessibleName(meaning);
  list->setHeaderLabels({tr("Planet"), tr("l.y."), tr("Warp %1").arg(kListedWarp)});
  list->headerItem()->setToolTip(1, tr("Light years"));
  list->headerItem()->setToolTip(2, tr("Years at warp %1").arg(kListedWarp));
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QHeaderView& header = *list->header();
  header.setSectionsMovable(false);
  header.setStretchLastSection(false);
  header.setMinimumSectionSize(kLeastValueWidth);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(kNameColumn, QHeaderView::Stretch);
  for (int column = 0; column < kListColumns; ++column) {
    list->headerItem()->setTextAlignment(column, AlignmentOf(column));
  }
  const int rows = static_cast<int>(kNearestPlanets) * RowHeight(*list);
  list->setFixedHeight(header.sizeHint().height() + rows + 2 * list->frameWidth());
  list->installEventFilter(this);
  list->viewport()->installEventFilter(this);
  connect(list, &QTreeWidget::itemClicked, this,
          [this](const QTreeWidgetItem* row) { emit PlanetChosen(PlanetOf(row)); });
  return list;
}

void DistancesDock::ShowWays(const std::string& from, const DistanceTexts& toPointer,
                             const DistanceTexts& toKept) {
  const bool isSelected = !from.empty();
  const QString told = isSelected ? tr("From %1").arg(ToQString(from)) : tr(kNothingSelected);
  if (from_->text() != told) from_->ShowValue(told);
  ShowColumn(columns_[0], isSelected ? toPointer : DistanceTexts());
  ShowColumn(columns_[1], isSelected ? toKept : DistanceTexts());
  forget_->setEnabled(!toKept.To.empty());
}

void DistancesDock::ShowColumn(Column& column, const DistanceTexts& texts) {
  if (column.Shown == texts) return;
  column.Shown = texts;
  column.To->ShowValue(ToQString(texts.To));
  ShowText(*column.LightYears, texts.LightYears);
  for (std::size_t step = 0; step < kWarpCount; ++step) {
    ShowText(*column.Years[step], texts.Years[step]);
  }
  ShowText(*column.GateThere, texts.GateThere);
  ShowText(*column.GateBack, texts.GateBack);
}

void DistancesDock::ShowNearest(const GameSession& session, int selectedPlanet) {
  const NearLists near = DescribeNearPlanets(session, selectedPlanet);
  Fill(own_, near.Own);
  Fill(gates_, near.Stargates);
}

// The row of the same planet stays the current one; a list that has the focus always has one.
void DistancesDock::Fill(NearList& list, const std::vector<NearRow>& rows) {
  if (list.Shown == rows) return;
  list.Shown = rows;
  const int current = PlanetOf(list.View->currentItem());
  list.View->clear();
  for (const NearRow& near : rows) {
    auto* row = new QTreeWidgetItem(list.View);
    const QString texts[] = {ToQString(near.Name), ToQString(near.LightYears),
                             ToQString(near.Years)};
    for (int column = 0; column < kListColumns; ++column) {
      row->setText(column, texts[column]);
      row->setTextAlignment(column, AlignmentOf(column));
    }
    row->setSizeHint(kNameColumn, {0, RowHeight(*list.View)});
    row->setToolTip(kNameColumn, PlainToolTip(texts[kNameColumn]));
    row->setData(kNameColumn, Qt::UserRole, near.Planet);
    if (near.Planet == current) list.View->setCurrentItem(row);
  }
  if (list.View->hasFocus() && list.View->currentItem() == nullptr) {
    list.View->setCurrentItem(list.View->topLevelItem(0));
  }
}

int DistancesDock::ChosenPlanet() const {
  for (const QTreeWidget* list : {own_.View, gates_.View}) {
    if (list->hasFocus()) return PlanetOf(list->currentItem());
  }
  return 0;
}

bool DistancesDock::eventFilter(QObject* target, QEvent* event) {
  // The first click chooses, and another planet may stand under the pointer at the second one.
  if (event->type() == QEvent::MouseButtonDblClick) return true;
  auto* list = qobject_cast<QTreeWidget*>(target);
  if (list == nullptr) return QDockWidget::eventFilter(target, event);
  if (event->type() == QEvent::FocusIn && list->currentItem() == nullptr) {
    list->setCurrentItem(list->topLevelItem(0));
  }
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  const int planet = PlanetOf(list->currentItem());
  if ((key != Qt::Key_Return && key != Qt::Key_Enter) || planet == 0) return false;
  emit PlanetChosen(planet);
  return true;
}

}  // namespace quorvane
