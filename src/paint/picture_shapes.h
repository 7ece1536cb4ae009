#pragma once

#include <QPen>
#include <QPixmap>
#include <QWidget>
#include <vector>

#include "map/map_view.h"
#include "model/race_colours.h"

namespace quorvane {

class PictureBox;

/// A shape above a picture, no part of it: hidden at first, placed in the picture's logical units,
/// and keeping its place when the picture changes its size. The mouse goes through it.
class PictureShape : public QWidget {
  Q_OBJECT

 public:
  PictureShape(PictureBox& picture, const char* name);

  Colour LineColour() const { return colour_; }
  void SetLineColour(Colour colour);
  /// @param width  in pixels; 1 at first
  void SetLineWidth(double width) { width_ = width; }
  /// Gives the line a dark one on either side, which makes it stand out from bright pictures.
  void AddDarkSides();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// Follows the shape's points; whoever changes them calls it.
  void Fit();
  /// The two points that the shape lies between, in logical units.
  virtual SurfacePoint First() const = 0;
  virtual SurfacePoint Last() const = 0;
  /// Draws the shape between its two points, given in pixels.
  virtual void Paint(QPainter& painter, QPointF first, QPointF last) const = 0;
  const PictureBox& Picture() const { return picture_; }

 private:
  PictureBox& picture_;
  Colour colour_ = {255, 255, 255};
  double width_ = 1;
  bool hasDarkSides_ = false;
};

/// The outline of a square.
class SquareShape : public PictureShape {
 public:
  using PictureShape::PictureShape;

  void Place(SurfacePoint topLeft, double side);
  SurfacePoint TopLeft() const { return topLeft_; }
  double Side() const { return side_; }

 protected:
  SurfacePoint First() const override { return topLeft_; }
  SurfacePoint Last() const override { return {topLeft_.X + side_, topLeft_.Y + side_}; }
  void Paint(QPainter& painter, QPointF first, QPointF last) const override;

 private:
  SurfacePoint topLeft_;
  double side_ = 0;
};

/// A straight line.
class LineShape : public PictureShape {
 public:
  using PictureShape::PictureShape;

  void Place(SurfacePoint from, SurfacePoint to);
  SurfacePoint From() const { return from_; }
  SurfacePoint To() const { return to_; }

 protected:
  SurfacePoint First() const override { return from_; }
  SurfacePoint Last() const override { return to_; }
  void Paint(QPainter& painter, QPointF first, QPointF last) const override;

 private:
  SurfacePoint from_;
  SurfacePoint to_;
};

/// Rings around places of the picture, as large at every size of it.
class RingsShape : public PictureShape {
 public:
  using PictureShape::PictureShape;

  void Place(std::vector<SurfacePoint> centres);
  /// @param radius  in pixels
  void SetRadius(double radius) { radius_ = radius; }
  const std::vector<SurfacePoint>& Centres() const { return centres_; }

 protected:
  SurfacePoint First() const override { return {}; }
  SurfacePoint Last() const override;
  void Paint(QPainter& painter, QPointF first, QPointF last) const override;

 private:
  QPixmap RingOf(const QPen& pen) const;

  std::vector<SurfacePoint> centres_;
  double radius_ = 8;
};

}  // namespace quorvane
