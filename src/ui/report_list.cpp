#include "ui/report_list.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(320, 400);
constexpr int kFileColumn = NumberOf(ReportColumn::File);
constexpr int kYearColumn = NumberOf(ReportColumn::Year);
// From which width on, in heights of the font, there is room for further columns.
constexpr int kRoomForDetails = 34;
constexpr int kRoomForWarnings = 54;

bool IsNumber(int column) { return column >= kYearColumn && column <= NumberOf(ReportColumn::Age); }

Qt::Alignment SideOf(int column) { return IsNumber(column) ? Qt::AlignRight : Qt::AlignLeft; }

// Players without a report have the row 0 in common.
bool IsAboutTheSame(const ReportRow& row, const ReportRow& other) {
  return row.Row == other.Row && (HasFile(row) || row.Race == other.Race);
}

bool CanBeTicked(const ReportRow& row) { return HasFile(row) && !row.IsOwn; }

bool IsDigit(const QKeyEvent& key) {
  const QString text = key.text();
  const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return text.size() == 1 && text[0] >= '0' && text[0] <= '9' && !(key.modifiers() & others);
}

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

// All that is told of a report, for tooltips and for those who hear it.
QString WholeText(const ReportRow& row, const QString& between) {
  QStringList texts;
  for (const std::string& text : {row.File, row.Race, row.Date, row.Warning}) {
    if (!text.empty()) texts << ToQString(text);
  }
  if (row.IsOwn) texts << ReportList::tr("Your own report is always read");
  return texts.join(between);
}

void Fill(QTreeWidgetItem& item, const ReportRow& row) {
  const std::string texts[kReportColumns] = {row.File,       row.Race,    row.Date,
                                             row.Year,       row.Planets, row.OnlyHere,
                                             row.AverageAge, row.Warning};
  const QString tip = PlainToolTip(WholeText(row, "\n"));
  for (int column = 0; column < kReportColumns; ++column) {
    item.setText(column, ToQString(texts[column]));
    item.setToolTip(column, tip);
    item.setTextAlignment(column, SideOf(column) | Qt::AlignVCenter);
  }
  item.setData(kFileColumn, Qt::AccessibleTextRole, WholeText(row, ", "));
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  flags.setFlag(Qt::ItemIsEditable, HasFile(row));
  flags.setFlag(Qt::ItemIsUserCheckable, CanBeTicked(row));
  item.setFlags(flags);
  const QVariant tick = row.IsTicked ? Qt::Checked : Qt::Unchecked;
  item.setData(kFileColumn, Qt::CheckStateRole, HasFile(row) ? tick : QVariant());
}

}  // namespace

ReportList::ReportList(QWidget* parent)
    : QTreeWidget(parent), delegate_(new ReportDelegate(shown_, *this)) {
  setObjectName("ReportsList");
  setAccessibleName(tr("Reports"));
  setItemDelegate(delegate_);
  setRootIsDecorated(false);
  setAllColumnsShowFocus(true);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  SetUpHeader();
  SettleColumns();
  connect(this, &QTreeWidget::itemChanged, this, &ReportList::TakeChange);
}

void ReportList::SetUpHeader() {
  setHeaderLabels({tr("Report"), tr("Race"), tr("Date"), tr("Year"), tr("Planets"),
                   tr("Only\nhere"), tr("Age"), tr("Warning")});
  const std::pair<ReportColumn, QString> tips[] = {
      {ReportColumn::File, tr("Ticked reports are read at the next reload")},
      {ReportColumn::Date, tr("When the file was written")},
      {ReportColumn::Year, tr("Year of the report; left empty, it is the current game year")},
      {ReportColumn::Planets, tr("Planets that the report tells of")},
      {ReportColumn::OnlyHere, tr("Planets that no other ticked report tells of")},
      {ReportColumn::Age, tr("Average age of what the report tells, in years")}};
  for (const auto& [column, tip] : tips) headerItem()->setToolTip(NumberOf(column), tip);
  QHeaderView& columns = *header();
  columns.setSectionsMovable(false);
  columns.setStretchLastSection(false);
  for (int column = 0; column < kReportColumns; ++column) {
    headerItem()->setTextAlignment(column, SideOf(column) | Qt::AlignBottom);
    const bool isNarrow = IsNumber(column) || column == NumberOf(ReportColumn::Date);
    columns.setSectionResizeMode(column,
                                 isNarrow ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
  }
}

QSize ReportList::sizeHint() const { return kFirstSize; }

// Race and date get columns of their own where these have room, then the warnings.
void ReportList::SettleColumns() {
  const int room = width() / fontMetrics().height();
  const bool hasDetails = room >= kRoomForDetails;
  const bool hasWarnings = room >= kRoomForWarnings;
  delegate_->SetColumns(hasDetails, hasWarnings);
  setColumnHidden(NumberOf(ReportColumn::Race), !hasDetails);
  setColumnHidden(NumberOf(ReportColumn::Date), !hasDetails);
  setColumnHidden(NumberOf(ReportColumn::Warning), !hasWarnings);
  scheduleDelayedItemsLayout();
}

void ReportList::ShowRows(const std::vector<ReportRow>& rows) {
  if (state() == EditingState) {
    waiting_ = rows;
    return;
  }
  waiting_.reset();
  if (rows == shown_) return;
  const QSignalBlocker blocker(this);  // only what the user changes is told
  std::optional<ReportRow> current;
  if (const ReportRow* const row = CurrentRow(); row != nullptr) current = *row;
  const int column = currentColumn();
  const int count = static_cast<int>(rows.size());
  while (topLevelItemCount() > count) delete takeTopLevelItem(topLevelItemCount() - 1);
  shown_ = rows;
  while (topLevelItemCount() < count) new QTreeWidgetItem(this);
  for (int place = 0; place < count; ++place) {
    const ReportRow& row = rows[static_cast<std::size_t>(place)];
    Fill(*topLevelItem(place), row);
    if (current && IsAboutTheSame(row, *current)) setCurrentItem(topLevelItem(place), column);
  }
  scheduleDelayedItemsLayout();
}

// What the user has changed in a row.
void ReportList::TakeChange(QTreeWidgetItem* item, int column) {
  ReportRow& row = shown_.at(static_cast<std::size_t>(indexOfTopLevelItem(item)));
  const int number = row.Row;
  if (column == kFileColumn) {
    row.IsTicked = item->checkState(kFileColumn) == Qt::Checked;
    emit Ticked(number, row.IsTicked);
  } else if (column == kYearColumn) {
    const QString year = item->text(kYearColumn);
    row.Year = ToText(year);
    emit YearTyped(number, year);
  }
}

// Opens the year of the current row. What was typed to open it begins the new year.
void ReportList::EditYear(QKeyEvent* typed) {
  if (!HasFile(*CurrentRow())) return;
  setCurrentItem(currentItem(), kYearColumn);  // from there the Tab key leads to the next year
  editItem(currentItem(), kYearColumn);
  QWidget* const year = indexWidget(currentIndex());
  if (year != nullptr && typed != nullptr) QCoreApplication::sendEvent(year, typed);
}

const ReportRow* ReportList::CurrentRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() ? &shown_.at(static_cast<std::size_t>(current.row())) : nullptr;
}

void ReportList::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTreeWidget::closeEditor(editor, hint);
  if (waiting_) ShowRows(std::vector(*waiting_));
}

void ReportList::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const bool isSelected = selectionModel()->isSelected(index);
  if (isSelected) painter->fillRect(option.rect, palette().color(QPalette::Highlight));
  QTreeWidget::drawRow(painter, option, index);
  delegate_->DrawFurtherLines(*painter, option.rect, index, isSelected);
}

void ReportList::focusInEvent(QFocusEvent* event) {
  if (currentItem() == nullptr && topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
  QTreeWidget::focusInEvent(event);
}

void ReportList::keyPressEvent(QKeyEvent* event) {
  const ReportRow* const row = CurrentRow();
  // A key that the box for a year has no use for comes here, too.
  const bool isOurs = row != nullptr && state() != EditingState;
  const bool isDigit = IsDigit(*event);
  if (isOurs && (isDigit || IsEnter(*event))) {
    EditYear(isDigit ? event : nullptr);
  } else if (isOurs && event->key() == Qt::Key_Space) {
    if (!CanBeTicked(*row)) return;
    currentItem()->setCheckState(kFileColumn, row->IsTicked ? Qt::Unchecked : Qt::Checked);
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

void ReportList::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  SettleColumns();
}

}  // namespace quorvane
