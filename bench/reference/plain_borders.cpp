#include "reference/plain_borders.h"

#include <QPainter>
#include <QPen>
#include <cmath>

namespace quorvane::reference {

void PlainInfluenceBorders(const GameSession& session, const MapView& view, QImage& picture,
                           int penWidth) {
  QPainter painter(&picture);
  const double pixelsPerUnit = static_cast<double>(picture.width()) / kSurfaceUnits;
  for (int gx = 0; gx <= session.GridSize; ++gx) {
    for (int gy = 0; gy <= session.GridSize; ++gy) {
      const int px = static_cast<int>(std::nearbyint(gx * session.GridCellSize));
      const int py = static_cast<int>(std::nearbyint(gy * session.GridCellSize));
      if (!view.Contains(px, py)) continue;
      const InfluencePoint& point = session.InfluenceGrid.At(gx, gy);
      const Colour* colour = session.ColourOf(point.Holder);
      if (colour == nullptr) continue;
      const auto dimmed = [&](int component) {
        return static_cast<int>(std::nearbyint(point.Strength / 100.0 * component));
      };
      painter.setPen(QPen(QColor(dimmed(colour->Red), dimmed(colour->Green), dimmed(colour->Blue)),
                          penWidth, Qt::SolidLine, Qt::RoundCap));
      const double x = (px - view.ViewXMin) * view.MapScale * pixelsPerUnit;
      const double y = (py - view.ViewYMin) * view.MapScale * pixelsPerUnit;
      painter.drawPoint(QPointF(x, y));
    }
  }
}

}  // namespace quorvane::reference
