#include "ui/report_delegate.h"

#include <QLineEdit>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <algorithm>

#include "ui/icons.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kPadding = 4;  // above and below the lines of a row
constexpr int kMargin = 4;   // at both ends of a line
constexpr int kSign = 15;    // as wide as a box for a tick
constexpr QRgb kWarningColour = 0xFFF2B84B;
constexpr QRgb kQuietColour = 0xFF9FB4D0;  // as that of headings
constexpr QRgb kRulerColour = 0xFF333A47;

void DrawText(QPainter& painter, const QRect& place, Qt::Alignment side, const QString& text) {
  const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width());
  painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

QColor TextColour(const QWidget& list, bool isSelected) {
  return list.palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text);
}

// The box looks fixed, the name beside it does not.
void FixBox(QStyleOptionViewItem& option) {
  option.state &= ~QStyle::State_Enabled;
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::HighlightedText}) {
    option.palette.setColor(QPalette::Disabled, role, option.palette.color(QPalette::Active, role));
  }
}

}  // namespace

ReportDelegate::ReportDelegate(const std::vector<ReportRow>& rows, QWidget& list)
    : QStyledItemDelegate(&list), rows_(rows), list_(list) {}

void ReportDelegate::SetColumns(bool hasDetails, bool hasWarnings) {
  hasDetails_ = hasDetails;
  hasWarnings_ = hasWarnings;
}

const ReportRow& ReportDelegate::RowAt(const QModelIndex& index) const {
  return rows_.at(static_cast<std::size_t>(index.row()));
}

// That of a player without a report stands in the place of the file.
bool ReportDelegate::HasWarningLine(const ReportRow& row) const {
  return !hasWarnings_ && HasFile(row) && !row.Warning.empty();
}

bool ReportDelegate::IsWarning(const QModelIndex& index) const {
  const ReportRow& row = RowAt(index);
  if (row.Warning.empty()) return false;
  if (index.column() == NumberOf(ReportColumn::Warning)) return true;
  return index.column() == NumberOf(ReportColumn::File) && !HasFile(row) && !hasWarnings_;
}

int ReportDelegate::LineHeight() const { return std::max(list_.fontMetrics().height(), kSign) + 2; }

QRect ReportDelegate::FirstLine(const QRect& row) const {
  return {row.left(), row.top() + kPadding, row.width(), LineHeight()};
}

QSize ReportDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int lines =
      1 + static_cast<int>(!hasDetails_) + static_cast<int>(HasWarningLine(RowAt(index)));
  int width = QStyledItemDelegate::sizeHint(option, index).width();
  if (index.column() == NumberOf(ReportColumn::Year)) {
    width = std::max(width, option.fontMetrics.horizontalAdvance("00000") + 5 * kMargin);
  }
  return {width, lines * LineHeight() + 2 * kPadding};
}

void ReportDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  const ReportRow& row = RowAt(index);
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  QStyleOptionViewItem line = option;
  line.rect = FirstLine(option.rect);
  const bool isYear = index.column() == NumberOf(ReportColumn::Year) && HasFile(row);
  const QRect box = line.rect.adjusted(2, 0, -kMargin, -1);
  if (isYear) line.rect.adjust(0, 0, -kMargin, 0);
  QStyledItemDelegate::paint(painter, line, index);
  painter->save();
  if (isYear) {
    painter->setPen(isSelected ? option.palette.color(QPalette::HighlightedText)
                               : option.palette.color(QPalette::PlaceholderText));
    painter->drawRect(box);
  }
  const bool hasWholeLine = !HasFile(row) && !hasDetails_;
  if (IsWarning(index) && !hasWholeLine) {
    DrawWarning(*painter, line.rect.adjusted(kMargin, 0, 0, 0), row, isSelected);
  }
  painter->restore();
}

void ReportDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state &= ~QStyle::State_MouseOver;  // it would light up the first line alone
  if (IsWarning(index)) option->text.clear();
  if (index.column() != NumberOf(ReportColumn::File)) return;
  option->textElideMode = Qt::ElideMiddle;  // the files of a game differ at their ends
  option->font.setBold(RowAt(index).IsOwn);
  if (RowAt(index).IsOwn) FixBox(*option);
}

void ReportDelegate::DrawFurtherLines(QPainter& painter, const QRect& whole,
                                      const QModelIndex& index, bool isSelected) const {
  const ReportRow& row = RowAt(index);
  QRect line = FirstLine(whole).adjusted(kSign + 2 * kMargin, 0, -kMargin, 0);
  painter.save();
  if (!HasFile(row) && !hasDetails_) {  // the row's columns are empty
    DrawWarning(painter, FirstLine(whole).adjusted(kMargin, 0, -kMargin, 0), row, isSelected);
  }
  if (!hasDetails_) {
    line.translate(0, line.height());
    DrawDetails(painter, line, row, isSelected);
  }
  if (HasWarningLine(row)) {
    line.translate(0, line.height());
    DrawWarning(painter, line, row, isSelected);
  }
  painter.setPen(QColor(kRulerColour));
  painter.drawLine(whole.bottomLeft(), whole.bottomRight());
  painter.restore();
}

void ReportDelegate::DrawDetails(QPainter& painter, const QRect& line, const ReportRow& row,
                                 bool isSelected) const {
  const QColor colour = TextColour(list_, isSelected);
  const QString date = ToQString(row.Date);
  const int dateWidth = painter.fontMetrics().horizontalAdvance(date);
  painter.setPen(isSelected ? colour : QColor(kQuietColour));
  DrawText(painter, line, Qt::AlignRight, date);
  painter.setPen(colour);
  DrawText(painter, line.adjusted(0, 0, -dateWidth - 2 * kMargin, 0), Qt::AlignLeft,
           ToQString(row.Race));
}

void ReportDelegate::DrawWarning(QPainter& painter, const QRect& line, const ReportRow& row,
                                 bool isSelected) const {
  const QRect sign(line.left(), line.top() + (line.height() - kSign) / 2, kSign, kSign);
  ThemedIcon("warning").paint(&painter, sign);
  painter.setPen(isSelected ? TextColour(list_, true) : QColor(kWarningColour));
  DrawText(painter, line.adjusted(kSign + kMargin, 0, 0, 0), Qt::AlignLeft, ToQString(row.Warning));
}

bool ReportDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                 const QStyleOptionViewItem& option, const QModelIndex& index) {
  QStyleOptionViewItem line = option;  // the box for the tick stands in the first line
  line.rect = FirstLine(option.rect);
  return QStyledItemDelegate::editorEvent(event, model, line, index);
}

QWidget* ReportDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& index) const {
  if (index.column() != NumberOf(ReportColumn::Year)) return nullptr;
  auto* year = new QLineEdit(parent);
  year->setObjectName("ReportsYear");
  year->setAccessibleName(tr("Year of %1").arg(ToQString(RowAt(index).File)));
  year->setAlignment(Qt::AlignRight);
  year->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,5}"), year));
  return year;
}

void ReportDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                          const QModelIndex& /*index*/) const {
  editor->setGeometry(FirstLine(option.rect).adjusted(0, -2, 0, 2));
}

// A year that stands there from elsewhere may be no number: only what was typed counts.
void ReportDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
  const auto* const year = static_cast<QLineEdit*>(editor);
  if (year->isModified() && year->hasAcceptableInput()) model->setData(index, year->text());
}

}  // namespace quorvane
