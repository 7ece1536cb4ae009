#pragma once

#include <QStyledItemDelegate>
#include <QTableView>

namespace quorvane {

/// Gives a table of planets its look: black, in small letters, with low rows of one height. It has
/// its headings by then.
void GiveGridLook(QTableView& table);

/// Paints cells as ever, and tells the texts of those alone that are cut.
class CellTips : public QStyledItemDelegate {
 public:
  /// @param spared  by how many pixels cells may be narrower than they want to be without being cut
  CellTips(int spared, QObject* parent) : QStyledItemDelegate(parent), spared_(spared) {}

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  int spared_;
};

/// The first width of a column in pixels.
/// @param twips  as the planet grid's columns have it; `kDefaultColumnWidth`: the grid's own
int FirstColumnWidth(int twips);

}  // namespace quorvane
