#pragma once

#include <QWidget>

#include "paint/picture_surface.h"

namespace quorvane {

/// 1 Shift, 2 Ctrl, 4 Alt, added together.
int ShiftMaskOf(Qt::KeyboardModifiers modifiers);

/// Shows a picture that always has the widget's own size. Whoever draws on the surface calls
/// `update()` afterwards. Shapes above the picture are children of their own.
class PictureBox : public QWidget {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr, QSizeF units = {kSurfaceUnits, kSurfaceUnits});

  PictureSurface& Surface() { return surface_; }
  const PictureSurface& Surface() const { return surface_; }
  /// The pixel of the widget where a place of the picture is shown, with its fraction.
  QPointF WidgetPoint(SurfacePoint point) const;

 signals:
  /// The surface is blank because it has a new size.
  void Resized();
  /// A press of a mouse button, in logical units.
  /// @param button 1 left, 2 right, 4 middle
  /// @param shift  as `ShiftMaskOf` gives it
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

  PictureSurface surface_;
};

}  // namespace quorvane
