#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QScrollArea>
#include <QSize>
#include <utility>

#include "map/map_key.h"

namespace quorvane {

/// A line as long as so many light years are on the map.
class ScaleBar : public QWidget {
  Q_OBJECT

 public:
  explicit ScaleBar(QWidget* parent);

  /// @param pixelsPerLightYear 0: there is no map to measure
  void ShowScale(double pixelsPerLightYear);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int LightYears() const;
  double pixelsPerLightYear_ = 0;
};

/// What the colours and sizes on the map mean: a sample and a line of words for everything that the
/// overlays on it show, how wide the view is, and a scale bar.
class KeyDock : public QDockWidget {
  Q_OBJECT

 public:
  explicit KeyDock(QWidget* parent);

  /// Shows the key for what the map shows. Cheap where only the window of the view has moved.
  /// @param map  the size of the map picture in pixels of an ordinary screen
  void ShowKey(const GameSession& session, const OverlaySwitches& switches, const MapView& view,
               const MapOptions& options, QSize map);

  QScrollArea* KeyList = nullptr;
  QLabel* KeyAcross = nullptr;
  ScaleBar* KeyScaleBar = nullptr;

 private:
  // What the samples depend on.
  struct Shown {
    OverlaySwitches Switches;
    MapOptions Options;
    int UniverseExtent = 0;
    int ZoomFactor = 0;
    bool IsFullView = false;
    QSize Map;
    double PixelRatio = 0;
    std::pair<Colour, Colour> RaceColours;
    bool HasRanges = false;
    bool IsRaceKnown = false;

    bool operator==(const Shown&) const = default;
  };

  void ShowSections(const std::vector<KeySection>& sections, QSize map);
  QWidget* NewSample(const KeyLine& line, QSize map);

  QWidget* content_ = nullptr;
  QWidget* rows_ = nullptr;  // all that it shows
  Shown shown_;
};

}  // namespace quorvane
