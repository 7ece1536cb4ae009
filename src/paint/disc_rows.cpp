#include "paint/disc_rows.h"

namespace quorvane {

void DiscUnion::LookAt(int top, int last) {
  inAllRows_.clear();
  edges_.clear();
  for (const PixelDisc& disc : discs_) {
    const double y = disc.Centre.y();
    if (y + disc.Radius < top || y - disc.Radius > last + 1) continue;
    const int nearest = static_cast<int>(std::clamp<double>(y, top, last));
    const int farthest = 2 * y > top + last + 1 ? top : last;
    const PixelSpan widest = SpanWithin(disc.Centre, disc.Radius, nearest, width_);
    if (widest.IsEmpty()) continue;
    const PixelSpan narrowest = SpanWithin(disc.Centre, disc.Radius, farthest, width_);
    if (!narrowest.IsEmpty()) inAllRows_.push_back(narrowest);
    edges_.push_back({&disc, widest, narrowest});
  }
  Join();
  std::erase_if(edges_, [this](const Edge& edge) { return CoversAllOf(edge.Widest); });
}

// Joins the spans that overlap or touch.
void DiscUnion::Join() {
  std::ranges::sort(inAllRows_, {}, &PixelSpan::First);
  auto joined = inAllRows_.begin();
  for (const PixelSpan& span : inAllRows_) {
    if (span.First <= joined->Last + 1) {
      joined->Last = std::max(joined->Last, span.Last);
    } else {
      *++joined = span;
    }
  }
  if (!inAllRows_.empty()) inAllRows_.erase(joined + 1, inAllRows_.end());
}

bool DiscUnion::CoversAllOf(PixelSpan span) const {
  auto behind = std::ranges::upper_bound(inAllRows_, span.First, {}, &PixelSpan::First);
  return behind != inAllRows_.begin() && (--behind)->Last >= span.Last;
}

}  // namespace quorvane
