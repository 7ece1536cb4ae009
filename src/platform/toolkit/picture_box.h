#pragma once

#include <QWidget>
#include <deque>

#include "platform/toolkit/picture_surface.h"

namespace quorvane {

/// An outlined rectangle above a picture, in the picture's logical units.
struct OutlineShape {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  Colour OutlineColour = {255, 255, 255};
  bool Visible = false;
};

/// A line above a picture, in the picture's logical units.
struct LineShape {
  SurfacePoint From;
  SurfacePoint To;
  Colour LineColour = {255, 255, 255};
  bool Visible = false;
};

/// Shows a picture that always has the widget's own size, with shapes above it that are no part of
/// it. Whoever draws on the surface or changes a shape calls `update()` afterwards.
class PictureBox : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr, QSizeF units = {kSurfaceUnits, kSurfaceUnits});

  PictureSurface& Surface() { return surface_; }
  const PictureSurface& Surface() const { return surface_; }
  /// A new, hidden shape above the earlier ones; it lives as long as the box.
  OutlineShape& AddOutline();
  LineShape& AddLine();

 signals:
  /// The surface is blank because it has a new size.
  void Resized();
  /// A press of a mouse button, in logical units.
  /// @param button 1 left, 2 right, 4 middle
  /// @param shift  1 Shift, 2 Ctrl, 4 Alt, added together
  void MouseDown(int button, int shift, double x, double y);
  /// A move of the pointer, with the buttons that are held down.
  void MouseMove(int buttons, int shift, double x, double y);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void FitSurface();
  SurfacePoint LogicalPoint(QPointF position) const;
  QPointF WidgetPoint(SurfacePoint point) const;

  PictureSurface surface_;
  // Deques, so that the shapes given out stay where they are.
  std::deque<OutlineShape> outlines_;
  std::deque<LineShape> lines_;
};

}  // namespace quorvane
