#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QString>
#include <vector>

#include "screens/race_curves.h"

namespace quorvane {

/// The colours of a chart: nearly the map's black, for which the races' colours are made.
inline constexpr QRgb kChartBackground = qRgb(0x06, 0x07, 0x0a);
inline constexpr QRgb kChartText = qRgb(0xc4, 0xcb, 0xd6);

/// A drawn chart under a title and above the names of its races, as it is saved.
/// @param chart  the curves; its device pixel ratio is the picture's
QPixmap CurvePicture(const QPixmap& chart, const QString& title,
                     const std::vector<RaceCurve>& curves, const QFont& font);

}  // namespace quorvane
