#pragma once

#include <QObject>
#include <vector>

#include "map/drawing_layer.h"
#include "model/drawing_record.h"
#include "model/game_session.h"
#include "paint/picture_shapes.h"
#include "ui/prompts.h"

namespace quorvane {

class DrawingTools;
class MapPanel;

/// Drawing on the map: clicks become shapes on the picture and records of the drawing layer, which
/// is saved, cleared and read back for its overlay.
class DrawingBoard : public QObject {
  Q_OBJECT

 public:
  DrawingBoard(GameSession& session, MapPanel& map, DrawingTools& tools, Prompts& prompts);

  /// Shows the drawing layer of a newly loaded game.
  void ShowLoadedGame();
  /// Uses the selected tool where the map was clicked.
  /// @return false when there is none, and the click is somebody else's
  bool Universe_MouseDown(SurfacePoint at);
  /// Lets the rubber band of a shape in progress follow the pointer.
  void Universe_MouseMove(SurfacePoint at);

  /// Reads the drawing file into the layer, for the overlay.
  /// @return false, and the user knows why, when there is nothing to show
  bool ReadLayer();
  /// What the overlay shows: the layer as it was last read from its file.
  const std::vector<DrawingRecord>& Layer() const { return layer_; }
  /// The map was drawn anew: shapes that no overlay brings back are gone from it.
  void ForgetShapes() { shapes_.clear(); }
  /// Draws the shapes again that were drawn since the map was; its picture has a new size.
  void DrawShapes();

  /// The rubber band.
  LineShape* DrawLine = nullptr;

 signals:
  /// The layer is empty now.
  void Cleared();

 private:
  void StretchBand(SurfacePoint at);
  void AddText(SurfacePoint at);
  void AddShape(MapShape shape);
  void SaveQVL_Click();
  void ClearQVL_Click();

  GameSession& session_;
  MapPanel& map_;
  DrawingTools& tools_;
  Prompts& prompts_;
  std::vector<DrawingRecord> layer_;
  std::vector<MapShape> shapes_;
};

}  // namespace quorvane
