#include "ui/race_checks.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "paint/colours.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kSquare = 11;
constexpr int kRowSpacing = 4;
constexpr int kBesideName = 54;
constexpr int kWidestColumn = 140;  // a longer name is cut, and its tooltip tells it whole
constexpr int kLeastLines = 4;      // however low the window; the rest is scrolled to

// Switches a race by a click anywhere on it.
class WholeRowCheck : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem&,
                   const QModelIndex& index) override {
    if (!IsSwitch(*event)) return false;
    const bool isShown = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isShown ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
  }

  // A name that is longer than its column is cut there.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return static_cast<const QListView*>(option.widget)->gridSize();
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    painter->setPen(Qt::white);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  }

 private:
  static bool IsSwitch(const QEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease) {
      return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    }
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Space;
  }
};

}  // namespace

RaceChecks::RaceChecks(const QString& name, QWidget* parent) : QListWidget(parent) {
  setObjectName(name);
  setAccessibleName(tr("Races"));
  setFlow(LeftToRight);
  setWrapping(true);
  setResizeMode(Adjust);
  setIconSize({kSquare, kSquare});
  setTextElideMode(Qt::ElideRight);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setItemDelegate(new WholeRowCheck(this));
  connect(this, &QListWidget::itemChanged, this,
          [this](const QListWidgetItem* entry) { TakeSwitch(*entry); });
}

// The race that was the current one stays so.
void RaceChecks::ShowRaces(const std::vector<RaceCurve>& curves) {
  const QSignalBlocker filling(this);
  const QString current = currentItem() != nullptr ? currentItem()->text() : QString();
  clear();
  longest_ = 0;
  for (const RaceCurve& curve : curves) {
    auto* entry = new QListWidgetItem(ToQString(curve.Race), this);
    entry->setData(Qt::DecorationRole, QColor(RgbOf(curve.RaceColour)));
    entry->setToolTip(PlainToolTip(entry->text()));
    entry->setCheckState(hidden_.contains(curve.Race) ? Qt::Unchecked : Qt::Checked);
    longest_ = std::max(longest_, fontMetrics().horizontalAdvance(entry->text()));
    if (entry->text() == current) setCurrentItem(entry);
  }
  if (currentItem() == nullptr) setCurrentRow(0);
  Arrange();
}

void RaceChecks::TakeSwitch(const QListWidgetItem& entry) {
  const std::string race = ToText(entry.text());
  const bool isShown = entry.checkState() == Qt::Checked;
  if (isShown) {
    hidden_.erase(race);
  } else {
    hidden_.insert(race);
  }
  emit RaceSwitched(race, isShown);
}

// How many lines the races take in a width, and the width of a column.
RaceChecks::Grid RaceChecks::GridIn(int room) const {
  const int columns = std::max(room / std::clamp(longest_ + kBesideName, 1, kWidestColumn), 1);
  // The view breaks a line that fills its width to the last pixel.
  return {std::max((count() + columns - 1) / columns, 1), std::max(room / columns - 1, 1)};
}

int RaceChecks::LineHeight() const {
  return std::max(fontMetrics().height(), kSquare) + kRowSpacing;
}

// The view's own way to find whether it needs a scroll bar goes round in circles here.
void RaceChecks::Arrange() {
  const int room = width() - 2 * frameWidth();
  Grid grid = GridIn(room);
  const int frames = 2 * frameWidth();
  const bool isScrolled = grid.Lines * LineHeight() + frames > height();
  setMinimumHeight(std::min(grid.Lines, kLeastLines) * LineHeight() + frames);
  setMaximumHeight(grid.Lines * LineHeight() + frames);
  if (isScrolled) grid = GridIn(room - verticalScrollBar()->sizeHint().width());
  setVerticalScrollBarPolicy(isScrolled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setGridSize({grid.Width, LineHeight()});
  if (lines_ != grid.Lines) updateGeometry();
  lines_ = grid.Lines;
}

QSize RaceChecks::sizeHint() const { return {1, lines_ * LineHeight() + 2 * frameWidth()}; }

QSize RaceChecks::minimumSizeHint() const { return {1, minimumHeight()}; }

void RaceChecks::resizeEvent(QResizeEvent* event) {
  QListWidget::resizeEvent(event);
  Arrange();
}

void RaceChecks::focusInEvent(QFocusEvent* event) {
  if (currentItem() == nullptr) setCurrentRow(0);
  QListWidget::focusInEvent(event);
}

}  // namespace quorvane
