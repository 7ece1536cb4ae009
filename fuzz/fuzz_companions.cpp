// Any bytes as a companion file change nothing but what the file is for.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "analysis/empire_data.h"
#include "analysis/estimated_hab.h"
#include "loading/dialog_files.h"
#include "loading/drawing_file.h"
#include "loading/race_colour_file.h"
#include "model/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text =
      quorvane::DecodeText(std::string(reinterpret_cast<const char*>(data), size));
  quorvane::GameSession session;
  session.CreatePlanetTable(1);
  session.Planet(1)[quorvane::PlanetField::Radiation] = "50mR";
  session.PlayerCount = 2;
  session.Player(1)[quorvane::PlayerField::Name] = "A";
  session.Player(2)[quorvane::PlayerField::Name] = "B";
  quorvane::ApplyRaceColours(text, session);
  for (int player = 1; player <= 2; ++player) {
    if (session.ColourOf(player) == nullptr) std::abort();  // everybody has a colour
  }
  quorvane::ApplyEmpireData(text, session);
  quorvane::EstimatedHab(session, 1, 1);
  quorvane::ParseYears(text);
  const std::string layer = quorvane::DrawingLayerText(quorvane::ParseDrawing(text));
  if (quorvane::DrawingLayerText(quorvane::ParseDrawing(layer)) != layer) std::abort();
  return 0;
}
