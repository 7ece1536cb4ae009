#pragma once

#include <QImage>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane::reference {

/// The influence borders as a picture, every grid point drawn as one point of a round pen: what
/// `DrawInfluenceBorders` does, written without any thought of speed.
/// @param penWidth in pixels of the picture
void PlainInfluenceBorders(const GameSession& session, const MapView& view, QImage& picture,
                           int penWidth);

}  // namespace quorvane::reference
