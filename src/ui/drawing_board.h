#pragma once

#include <QObject>
#include <vector>

#include "map/map_shapes.h"
#include "model/game_session.h"
#include "paint/picture_shapes.h"
#include "ui/prompts.h"

namespace quorvane {

class DrawingTools;
class MapPanel;

/// Drawing on the map: clicks become shapes on the picture and records of the drawing layer, which
/// is saved, cleared and read back for its overlay here.
class DrawingBoard : public QObject {
  Q_OBJECT

 public:
  /// @param session  the game on screen, which may be another one after each load
  DrawingBoard(const GameSession& session, MapPanel& map, DrawingTools& tools, Prompts& prompts);

  /// Shows the drawing layer of a newly loaded game.
  void ShowLoadedGame();
  /// Uses the selected tool where the map was clicked.
  /// @return false when there is none, and the click is somebody else's
  bool Universe_MouseDown(SurfacePoint at);
  /// Lets the rubber band of a shape in progress follow the pointer.
  void Universe_MouseMove(SurfacePoint at);

  /// Reads the layer anew from its file, for the overlay.
  /// @return false, and the user knows why, when there is nothing to show
  bool ReadLayer();
  /// The map was drawn anew: shapes that no overlay brings back are gone from it.
  void ForgetShapes() { shapes_.clear(); }
  /// Draws the shapes again that were drawn since the map was, where the view now has them.
  void DrawShapes();
  /// Another view is shown: a shape in progress begins where it began in the universe.
  void FollowView();

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

  const GameSession& session_;
  MapPanel& map_;
  DrawingTools& tools_;
  Prompts& prompts_;
  // What was drawn, and the view in which it was.
  struct Drawn {
    MapShape Shape;
    MapView View;
  };
  std::vector<Drawn> shapes_;
  // Where the rubber band begins, and the view in which it was begun.
  SurfacePoint bandStart_;
  MapView bandView_;
};

}  // namespace quorvane
