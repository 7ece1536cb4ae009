#include "ui/import_table.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// The columns.
constexpr int kName = 0;
constexpr int kYear = 1;
constexpr int kNote = 4;
constexpr int kColumns = 5;

constexpr int kPadding = 4;  // above and below a row's text
constexpr int kMargin = 4;   // beside the box of a year
constexpr int kLongestYear = 9;
// In pixels: names of folders may be very long.
constexpr int kLeastName = 100;
constexpr int kWidestName = 240;
constexpr int kLeastNote = 120;
constexpr QRgb kWarningColour = 0xFFF2B84B;
// What the row's note warns of.
constexpr int kWarningRole = Qt::UserRole;

// Shows which cells can be typed in, and what is wrong; only years can be typed.
class RowPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (index.column() == kYear) {
      size.setWidth(option.fontMetrics.horizontalAdvance("00000") + 4 * kMargin);
    } else if (index.column() == kNote) {
      const auto& table = static_cast<const QTreeWidget&>(*option.widget);
      const QRect room(0, 0, table.columnWidth(kNote) - 4 * kMargin, 1);
      const QString note = index.data().toString();
      const int height = option.fontMetrics.boundingRect(room, Qt::TextWordWrap, note).height();
      size.setHeight(std::max(size.height(), height));
    }
    return size + QSize(2 * kMargin, 2 * kPadding);
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() != kYear) return;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isWrong = index.data(kWarningRole).toBool();
    painter->save();
    painter->setPen(isWrong      ? QColor(kWarningColour)
                    : isSelected ? option.palette.color(QPalette::HighlightedText)
                                 : option.palette.color(QPalette::PlaceholderText));
    painter->drawRect(YearBox(option).adjusted(0, 0, -1, -1));
    painter->restore();
  }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& index) const override {
    if (index.column() != kYear) return nullptr;
    auto* year = new QLineEdit(parent);
    year->setObjectName("ImportYear");
    year->setAccessibleName(tr("Year of %1").arg(index.siblingAtColumn(kName).data().toString()));
    year->setMaxLength(kLongestYear);
    year->setAlignment(Qt::AlignCenter);
    return year;
  }

  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& /*index*/) const override {
    editor->setGeometry(YearBox(option));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() == kName) option->textElideMode = Qt::ElideMiddle;
    option->features.setFlag(QStyleOptionViewItem::WrapText, index.column() == kNote);
    if (index.data(kWarningRole).toBool()) {
      option->palette.setColor(QPalette::Text, QColor(kWarningColour));
    }
    if (index.column() == kName && !index.flags().testFlag(Qt::ItemIsUserCheckable)) {
      FixBox(*option);
    }
  }

 private:
  // As high as a line, however many the note beside it has.
  static QRect YearBox(const QStyleOptionViewItem& option) {
    QRect box = option.rect.adjusted(kMargin / 2, 0, -kMargin + 1, 0);
    box.setHeight(option.fontMetrics.height() + 2 * kPadding - 4);
    box.moveCenter({box.center().x(), option.rect.center().y()});
    return box;
  }

  // The box looks fixed, the name beside it does not.
  static void FixBox(QStyleOptionViewItem& option) {
    option.state &= ~QStyle::State_Enabled;
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::HighlightedText}) {
      const QColor colour = option.palette.color(QPalette::Active, role);
      option.palette.setColor(QPalette::Disabled, role, colour);
    }
  }
};

// All that is told of a row, for those who hear it.
QString HeardText(const ImportRow& row) {
  QStringList texts;
  for (const std::string& text : {row.Name, row.Year, row.Source, row.Reports, row.Note}) {
    if (!text.empty()) texts << ToQString(text);
  }
  return texts.join(", ");
}

void Fill(QTreeWidgetItem& item, const ImportRow& row) {
  const std::string texts[kColumns] = {row.Name, row.Year, row.Source, row.Reports, row.Note};
  const QString tip = PlainToolTip(ToQString(row.Whole));
  for (int column = 0; column < kColumns; ++column) {
    item.setText(column, ToQString(texts[column]));
    item.setToolTip(column, tip);
    item.setTextAlignment(column,
                          Qt::AlignVCenter | (column == kYear ? Qt::AlignHCenter : Qt::AlignLeft));
  }
  item.setData(kName, Qt::AccessibleTextRole, HeardText(row));
  item.setData(kYear, kWarningRole, row.IsYearWrong);
  item.setData(kNote, kWarningRole, row.IsYearWrong || row.IsFailed);
  item.setCheckState(kName, row.IsTicked ? Qt::Checked : Qt::Unchecked);
}

bool IsDigit(const QKeyEvent& key) {
  const QString text = key.text();
  const auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return text.size() == 1 && text[0] >= '0' && text[0] <= '9' && !(key.modifiers() & others);
}

}  // namespace

ImportTable::ImportTable(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("ImportTable");
  setAccessibleName(tr("Earlier years"));
  setItemDelegate(new RowPainter(this));
  setRootIsDecorated(false);
  setWordWrap(true);
  setAllColumnsShowFocus(true);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  SetUpHeader();
  connect(this, &QTreeWidget::itemChanged, this, &ImportTable::TakeChange);
}

void ImportTable::SetUpHeader() {
  setHeaderLabels({tr("Found"), tr("Year"), tr("Year from"), tr("Reports"), tr("Note")});
  headerItem()->setToolTip(kName, tr("Ticked years are read"));
  headerItem()->setToolTip(kYear, tr("Click a year twice, or type, to correct it"));
  QHeaderView& columns = *header();
  columns.setSectionsMovable(false);
  columns.setStretchLastSection(false);
  columns.setSectionResizeMode(QHeaderView::Fixed);
  headerItem()->setTextAlignment(kYear, Qt::AlignCenter);
}

// The notes have what the others leave, and break into lines; for them a long name is cut.
void ImportTable::SettleColumns() {
  int room = viewport()->width() - kLeastNote;
  for (int column = kYear; column < kNote; ++column) {
    resizeColumnToContents(column);
    room -= columnWidth(column);
  }
  const int name = std::min({sizeHintForColumn(kName), kWidestName, std::max(room, kLeastName)});
  setColumnWidth(kName, name);
  setColumnWidth(kNote, kLeastNote + std::max(room - name, 0));
  scheduleDelayedItemsLayout();
}

void ImportTable::SetFlags(QTreeWidgetItem& item, bool canBeTicked) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  flags.setFlag(Qt::ItemIsEditable, !isFixed_);
  flags.setFlag(Qt::ItemIsUserCheckable, canBeTicked && !isFixed_);
  item.setFlags(flags);
}

void ImportTable::ShowRows(const ImportPlan& plan) {
  const QSignalBlocker blocker(this);  // only what the user changes is told
  const int count = static_cast<int>(plan.Count());
  while (topLevelItemCount() > count) delete takeTopLevelItem(topLevelItemCount() - 1);
  while (topLevelItemCount() < count) new QTreeWidgetItem(this);
  shown_.clear();
  shown_.reserve(plan.Count());
  for (int row = 0; row < count; ++row) {
    shown_.push_back(plan.Describe(static_cast<std::size_t>(row)));
    Fill(*topLevelItem(row), shown_.back());
    SetFlags(*topLevelItem(row), shown_.back().CanBeTicked);
  }
  SettleColumns();
}

void ImportTable::SetFixed(bool isFixed) {
  const QSignalBlocker blocker(this);
  isFixed_ = isFixed;
  for (int row = 0; row < topLevelItemCount(); ++row) {
    SetFlags(*topLevelItem(row), shown_.at(static_cast<std::size_t>(row)).CanBeTicked);
  }
}

void ImportTable::TakeChange(QTreeWidgetItem* item, int column) {
  const int row = indexOfTopLevelItem(item);
  if (column == kName) {
    emit Ticked(row, item->checkState(kName) == Qt::Checked);
  } else if (column == kYear) {
    emit YearTyped(row, item->text(kYear));
  }
}

// Opens the year of the current row. What was typed to open it begins the new year.
void ImportTable::EditYear(QKeyEvent* typed) {
  setCurrentItem(currentItem(), kYear);
  editItem(currentItem(), kYear);
  QWidget* const year = indexWidget(currentIndex());
  if (year != nullptr && typed != nullptr) QCoreApplication::sendEvent(year, typed);
}

void ImportTable::focusInEvent(QFocusEvent* event) {
  if (currentItem() == nullptr && topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
  QTreeWidget::focusInEvent(event);
}

void ImportTable::keyPressEvent(QKeyEvent* event) {
  // A key that the box for a year has no use for comes here, too.
  const bool isOurs = currentItem() != nullptr && state() != EditingState && !isFixed_;
  const bool isDigit = IsDigit(*event);
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isOurs && (isDigit || isEnter)) {
    EditYear(isDigit ? event : nullptr);
  } else if (isOurs && event->key() == Qt::Key_Space) {
    if (!currentItem()->flags().testFlag(Qt::ItemIsUserCheckable)) return;
    const bool isTicked = currentItem()->checkState(kName) == Qt::Checked;
    currentItem()->setCheckState(kName, isTicked ? Qt::Unchecked : Qt::Checked);
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

void ImportTable::resizeEvent(QResizeEvent* event) {
  QTreeWidget::resizeEvent(event);
  SettleColumns();
}

}  // namespace quorvane
