#pragma once

#include <QStyledItemDelegate>
#include <vector>

#include "screens/report_texts.h"

namespace quorvane {

/// The columns of the list of reports.
enum class ReportColumn { File, Race, Date, Year, Planets, OnlyHere, Age, Warning };

inline constexpr int kReportColumns = 8;

constexpr int NumberOf(ReportColumn column) { return static_cast<int>(column); }

/// Whether there is a report, and not only a player without one.
inline bool HasFile(const ReportRow& row) { return row.Row > 0; }

/// Draws the rows of the list of reports, and lets years be typed. The columns stand in the first
/// line of a row; what has no room for a column of its own stands in further lines below them.
class ReportDelegate : public QStyledItemDelegate {
 public:
  /// @param rows  what is shown, as long as the list has items
  ReportDelegate(const std::vector<ReportRow>& rows, QWidget& list);

  /// Which of the wide columns there are.
  void SetColumns(bool hasDetails, bool hasWarnings);

  /// Draws what is not in the columns of a row.
  void DrawFurtherLines(QPainter& painter, const QRect& whole, const QModelIndex& index,
                        bool isSelected) const;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  const ReportRow& RowAt(const QModelIndex& index) const;
  bool HasWarningLine(const ReportRow& row) const;
  bool IsWarning(const QModelIndex& index) const;
  int LineHeight() const;
  QRect FirstLine(const QRect& row) const;
  void DrawDetails(QPainter& painter, const QRect& line, const ReportRow& row,
                   bool isSelected) const;
  void DrawWarning(QPainter& painter, const QRect& line, const ReportRow& row,
                   bool isSelected) const;

  const std::vector<ReportRow>& rows_;
  const QWidget& list_;
  bool hasDetails_ = true;   // columns of race and date
  bool hasWarnings_ = true;  // a column of warnings
};

}  // namespace quorvane
