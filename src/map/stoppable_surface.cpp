#include "map/stoppable_surface.h"

#include <utility>

namespace quorvane {

// Asking takes about as long as a small dot, the largest discs take a millisecond.
bool StoppableSurface::GoesOn() {
  constexpr int kDrawnBetweenQuestions = 16;
  if (++drawn_ % kDrawnBetweenQuestions == 0 && !isStopped_) isStopped_ = progress_.IsStopped();
  return !isStopped_;
}

void StoppableSurface::SetBackground(std::shared_ptr<const SurfaceImage> image) {
  surface_.SetBackground(std::move(image));
}

void StoppableSurface::Point(SurfacePoint at, Colour colour) {
  if (GoesOn()) surface_.Point(at, colour);
}

void StoppableSurface::Points(const PointGrid& grid) {
  if (GoesOn()) surface_.Points(grid);
}

void StoppableSurface::Line(SurfacePoint from, SurfacePoint to, Colour colour) {
  if (GoesOn()) surface_.Line(from, to, colour);
}

bool StoppableSurface::LineHidesItsReverse(SurfacePoint from, SurfacePoint to, Colour colour) {
  return !GoesOn() || surface_.LineHidesItsReverse(from, to, colour);
}

void StoppableSurface::Circle(SurfacePoint centre, double radius, Colour colour) {
  if (GoesOn()) surface_.Circle(centre, radius, colour);
}

void StoppableSurface::Discs(std::span<const DiscPlace> discs, Colour colour) {
  if (GoesOn()) surface_.Discs(discs, colour);
}

void StoppableSurface::Print(SurfacePoint topLeft, std::string_view text) {
  if (GoesOn()) surface_.Print(topLeft, text);
}

void StoppableSurface::PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) {
  if (GoesOn()) surface_.PrintOutline(topLeft, text, colour);
}

double StoppableSurface::TextWidth(std::string_view text) const {
  return isStopped_ ? 0 : surface_.TextWidth(text);
}

}  // namespace quorvane
