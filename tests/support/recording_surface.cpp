#include "support/recording_surface.h"

#include <cstdio>

#include "model/field_value.h"

namespace quorvane {
namespace {

class RecordedImage : public SurfaceImage {
 public:
  explicit RecordedImage(Texts lines) : Lines(std::move(lines)) {}

  Texts Lines;
};

std::string PlaceText(SurfacePoint point) {
  return NumberText(point.X) + "," + NumberText(point.Y);
}

std::string ColourText(Colour colour) {
  char text[32];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(colour.Red),
                static_cast<unsigned>(colour.Green), static_cast<unsigned>(colour.Blue));
  return text;
}

std::string After(std::string_view mark, std::string_view text) {
  return std::string(mark).append(text);
}

// Points have no outline.
std::string PenText(const Pen& pen, bool hasStyle = true) {
  const char* style = pen.Style == DrawStyle::Solid ? " solid w" : " no-outline w";
  return After(pen.Mode == DrawMode::Copy ? "copy" : "merge", hasStyle ? style : " w") +
         std::to_string(pen.Width);
}

}  // namespace

void RecordingSurface::Clear() {
  lines_.push_back("clear");
  shown_.clear();
}

void RecordingSurface::SetBackground(std::shared_ptr<const SurfaceImage> image) {
  const auto* recorded = dynamic_cast<const RecordedImage*>(image.get());
  shown_ = recorded != nullptr ? recorded->Lines : Texts();
  const std::string count = "of " + std::to_string(shown_.size()) + " lines";
  lines_.push_back(After("background ", recorded != nullptr ? count : "none"));
}

std::shared_ptr<const SurfaceImage> RecordingSurface::Image() const {
  return std::make_shared<RecordedImage>(shown_);
}

void RecordingSurface::Point(SurfacePoint at, Colour colour) {
  Draw({"point", PlaceText(at), ColourText(colour), PenText(pen_, false)});
}

void RecordingSurface::Line(SurfacePoint from, SurfacePoint to, Colour colour) {
  Draw({"line", PlaceText(from), PlaceText(to), ColourText(colour), PenText(pen_)});
}

void RecordingSurface::Circle(SurfacePoint centre, double radius, Colour colour) {
  const std::string fill = pen_.Filled ? After("fill ", ColourText(fillColour_)) : "hollow";
  const std::string size = After("r", NumberText(radius));
  Draw({"circle", PlaceText(centre), size, ColourText(colour), fill, PenText(pen_)});
}

void RecordingSurface::Print(SurfacePoint topLeft, std::string_view text) {
  Draw({"text", PlaceText(topLeft), After("\"", text) + "\"", ColourText(foreColour_),
        NumberText(fontPoints_) + "pt"});
}

void RecordingSurface::PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) {
  Draw({"outline", PlaceText(topLeft), After("\"", text) + "\"", ColourText(colour),
        NumberText(fontPoints_) + "pt"});
}

double RecordingSurface::TextWidth(std::string_view text) const {
  return kCharacterWidth * static_cast<double>(text.size());
}

void RecordingSurface::Draw(const Texts& words) {
  std::string line;
  for (const std::string& word : words) line.append(line.empty() ? "" : " ").append(word);
  shown_.push_back(line);
  lines_.push_back(line);
}

}  // namespace quorvane
