#include "ui/reload_bar.h"

#include <QAccessible>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <utility>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kGap = 6;
constexpr int kYearWidth = 52;  // pixels: four digits with room
constexpr int kBoxesInRow = 4;

QLineEdit* NewYearEdit(const QString& name, const QString& report, QWidget* parent) {
  auto* year = new QLineEdit(parent);
  year->setObjectName(name);
  year->setAccessibleName(ReloadBar::tr("Year of %1").arg(report));
  year->setPlaceholderText(ReloadBar::tr("Year"));
  year->setFixedWidth(kYearWidth);
  static const QRegularExpression digits("[0-9]{0,5}");
  year->setValidator(new QRegularExpressionValidator(digits, year));
  return year;
}

ReloadBar::YearBox NewYearBox(int row, const QString& report, QWidget* parent) {
  const ReloadBar::YearBox box = {
      .Name = NewCaption(report + ":", parent),
      .Year = NewYearEdit(IndexedName("ReloadYear", row), report, parent)};
  box.Name->show();
  box.Year->show();
  return box;
}

}  // namespace

ReloadBar::ReloadBar(QWidget* map) : QFrame(map), map_(map) {
  setObjectName("ReloadBar");
  setAttribute(Qt::WA_NoMousePropagation);  // the map below it is not meant
  ReloadNews = new ElidedLabel("ReloadNews", this);
  ReloadNews->setProperty("value", true);
  ReloadNews->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  ReloadNow = NewButton("ReloadNow", tr("Reload"), this);
  ReloadLater = NewButton("ReloadLater", tr("Not now"), this);
  auto* line = new QHBoxLayout();
  line->setSpacing(kGap);
  line->addWidget(ReloadNews, 1);
  line->addWidget(ReloadNow);
  line->addWidget(ReloadLater);
  years_ = new QWidget(this);
  auto* grid = new QGridLayout(years_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->setColumnStretch(2 * kBoxesInRow, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kGap + 2, kGap - 2, kGap, kGap - 2);
  column->setSpacing(kGap - 2);
  column->addLayout(line);
  column->addWidget(years_);
  connect(ReloadNow, &QPushButton::clicked, this, &ReloadBar::ReloadAsked);
  connect(ReloadLater, &QPushButton::clicked, this, &ReloadBar::Dismissed);
  map->installEventFilter(this);
  hide();
}

void ReloadBar::ShowNews(const QString& news, const ReloadPlan& plan) {
  ReloadNews->ShowValue(news);
  ShowBoxes(plan);
  Place();
  show();
  raise();
  QAccessibleEvent told(ReloadNews, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

// The boxes of reports that were new before as well stay, with the keyboard in them.
void ReloadBar::ShowBoxes(const ReloadPlan& plan) {
  std::vector<int> rows = plan.ChangedRows;
  if (plan.IsOwnYearAsked) rows.insert(rows.begin(), plan.Choice.MyRaceRow);
  std::map<int, YearBox> old = std::exchange(boxes_, {});
  auto* grid = static_cast<QGridLayout*>(years_->layout());
  int place = 0;
  for (const int row : rows) {
    const ReportFileSlot& report = plan.Choice.ReportFiles.at(static_cast<std::size_t>(row));
    const auto known = old.extract(row);
    const YearBox box =
        known ? known.mapped() : NewYearBox(row, PathText(report.Path.filename()), years_);
    if (!box.Year->isModified()) box.Year->setText(ToQString(plan.GameYear));
    grid->addWidget(box.Name, place / kBoxesInRow, place % kBoxesInRow * 2);
    grid->addWidget(box.Year, place / kBoxesInRow, place % kBoxesInRow * 2 + 1);
    ++place;
    boxes_[row] = box;
  }
  for (const auto& [row, box] : old) {
    delete box.Name;
    delete box.Year;
  }
  years_->setVisible(!boxes_.empty());
}

void ReloadBar::TakeYears(ReloadPlan& plan) const {
  for (const auto& [row, box] : boxes_) {
    const std::string year = ToText(box.Year->text());
    if (plan.IsOwnYearAsked && row == plan.Choice.MyRaceRow) {
      plan.GameYear = year;
    } else {
      plan.Years.at(static_cast<std::size_t>(row)) = year;
    }
  }
}

void ReloadBar::AskForYear(int row) {
  const auto box = boxes_.find(row);
  if (box == boxes_.end()) return;
  box->second.Year->setFocus();
  box->second.Year->selectAll();
}

// What was typed was meant for the news that are no longer shown.
void ReloadBar::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  if (event->spontaneous()) return;
  for (const auto& [row, box] : boxes_) box.Year->setModified(false);
}

void ReloadBar::Place() {
  ensurePolished();
  layout()->activate();
  setGeometry(0, 0, map_->width(), sizeHint().height());
}

bool ReloadBar::eventFilter(QObject* target, QEvent* event) {
  if (target == map_ && event->type() == QEvent::Resize) Place();
  return QFrame::eventFilter(target, event);
}

void ReloadBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit Dismissed();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
    emit ReloadAsked();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace quorvane
