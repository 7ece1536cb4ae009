#pragma once

#include <QLabel>
#include <QObject>
#include <QTimer>
#include <optional>
#include <utility>
#include <vector>

#include "map/map_state.h"
#include "paint/picture_box.h"
#include "paint/picture_shapes.h"

namespace quorvane {

/// The map picture `Universe` with the shapes above it, and its twin that keeps the borders.
class MapPanel : public QObject {
  Q_OBJECT

 public:
  /// @param state  what the map shows; it changes outside as well, and the panel is told
  MapPanel(QWidget& area, const MapState& state);

  const MapState& State() const { return state_; }
  void Place(const QRect& place);
  /// Blanks the map for a new game.
  void Blank();
  /// Gives the map the pen of the drawing layer, as a drawing file that is loaded does. Overlays
  /// that keep the pen's mode draw in this one next.
  void TakeDrawingPen();
  /// Shows the zoom box as it stands, or hides it while none is open.
  void ShowZoomBox();
  /// Shows the way between two planets above the map, or hides it.
  /// @param ends  their stored positions; nothing: there is no way to show
  /// @param length  what is told of its length
  void ShowWay(const std::optional<std::pair<StoredPoint, StoredPoint>>& ends,
               const QString& length);
  /// Shows a race's number beside the selection marker; 0: none.
  void ShowMarkerNumber(int race);
  /// Rings planets above the map, by their stored positions.
  void ShowRings(const std::vector<StoredPoint>& planets);
  /// Rings the planets that a search found, with larger rings.
  void ShowFound(const std::vector<StoredPoint>& planets);
  void ShowHint(bool isShown);
  /// Places the selection marker around the selected planet, or hides it where there is nothing to
  /// mark.
  void PlaceSelector();

  PictureBox* Universe = nullptr;
  PictureBox* Universe2 = nullptr;
  /// The planets that the docks speak of.
  RingsShape* Rings = nullptr;
  RingsShape* FoundRings = nullptr;
  /// The area that is about to be shown, above the map while it is dragged.
  SquareShape* ZoomBox = nullptr;
  /// The way from the selected planet to the kept destination, and its length beside its middle.
  LineShape* WayLine = nullptr;
  QLabel* WayLength = nullptr;
  /// What to do while nothing is shown of a loaded game.
  QLabel* MapHint = nullptr;
  /// The selection marker.
  SquareShape* CurrentSelected = nullptr;
  /// Whose planet the marker is around.
  QLabel* MarkerNumber = nullptr;
  /// Animates the marker.
  QTimer* Timer1 = nullptr;

 signals:
  /// The picture is blank because it has a new size; kept borders are of the old one.
  void Resized();

 private:
  void Universe_Resize();
  void Timer1_Timer();
  void PlaceHint();
  void PlaceMarkerNumber();
  void PlaceRings(RingsShape& rings, const std::vector<StoredPoint>& planets);

  const MapState& state_;
};

}  // namespace quorvane
