#pragma once

#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {

/// What an overlay draws for a game, with the options that it takes behind the surface.
template <typename Draw, typename... Options>
Texts Drawn(const Draw& draw, const GameSession& session, const MapView& view = FullView(),
            const Options&... options) {
  RecordingSurface surface;
  draw(session, view, surface, options...);
  return surface.Lines();
}

/// A filled disc in the middle of the full view, as a `RecordingSurface` keeps it.
inline std::string Disc(const std::string& radius, const std::string& colour,
                        const std::string& pen = "copy solid w1") {
  return "circle 5000,5000 r" + radius + " " + colour + " fill " + colour + " " + pen;
}

}  // namespace quorvane
