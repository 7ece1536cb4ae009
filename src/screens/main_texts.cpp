#include "screens/main_texts.h"

#include <algorithm>
#include <cstddef>

#include "files/files.h"
#include "model/field_value.h"
#include "model/text.h"

namespace quorvane {

std::string MainCaption(std::string_view version, const GameChoice* choice) {
  std::string caption = "Quorvane for Stars!   Version " + std::string(version);
  if (choice == nullptr) return caption;
  caption += "  { " + TextFromPath(choice->MapFilePath.filename());
  if (choice->GameYear >= 1) caption += "  Year:" + NumberTextWithLeadingBlank(choice->GameYear);
  return caption + " }";
}

std::string LeftOutMessage(const std::vector<std::string>& owners) {
  // A damaged report may name thousands of races, more than a message box can show.
  constexpr std::size_t kMostNames = 30;
  std::string message =
      "The game has more than 16 races. These are left out of colours and counts:";
  const std::size_t shown = std::min(owners.size(), kMostNames);
  for (std::size_t i = 0; i < shown; ++i) message += "\n" + Excerpt(owners[i]);
  if (owners.size() > shown) message += "\nand " + std::to_string(owners.size() - shown) + " more";
  return message;
}

std::string PointerText(const MapView& view, SurfacePoint pointer) {
  const GamePoint at = view.ToGame(pointer);
  return " X:" + NumberText(at.X) + " Y:" + NumberText(at.Y);
}

HoverTexts DescribeHover(const GameSession& session, int planet) {
  if (planet == 0) return {.StatusLine = " Deep Space", .ToolTip = ""};
  const std::string& name = session.Planet(planet).Name();
  return {.StatusLine = " " + name, .ToolTip = "Click for more details on " + name};
}

}  // namespace quorvane
