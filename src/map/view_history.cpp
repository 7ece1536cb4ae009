#include "map/view_history.h"

namespace quorvane {

void ViewHistory::Begin(const MapView& view) {
  views_ = {view};
  shown_ = 0;
}

void ViewHistory::Visit(const MapView& view, bool continues) {
  if (view == views_[shown_]) return;
  views_.resize(shown_ + 1);
  if (continues && shown_ > 0) {
    views_.back() = view;
  } else {
    views_.push_back(view);
  }
  // The view on show is none of those to go back to.
  if (views_.size() > kMostViews + 1) views_.pop_front();
  shown_ = views_.size() - 1;
}

}  // namespace quorvane
