#pragma once

#include <QTableView>

namespace quorvane {

/// Gives a table of planets its look: black, in small letters, with low rows of one height. It has
/// its headings by then.
void GiveGridLook(QTableView& table);

/// The first width of a column in pixels.
/// @param twips  as the planet grid's columns have it; `kDefaultColumnWidth`: the grid's own
int FirstColumnWidth(int twips);

}  // namespace quorvane
