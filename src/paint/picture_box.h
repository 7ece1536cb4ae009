#pragma once

#include <QWidget>

#include "paint/picture_surface.h"

namespace quorvane {

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
  /// The place of the picture at a pixel of the widget.
  SurfacePoint LogicalPoint(QPointF position) const;

 signals:
  /// The surface is blank because it has a new size.
  void Resized();
  /// A mouse button was pressed, whichever.
  void MouseDown(SurfacePoint at);
  /// The pointer has moved, whether or not a button is held down.
  void MouseMove(SurfacePoint at);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void FitSurface();

  PictureSurface surface_;
};

}  // namespace quorvane
