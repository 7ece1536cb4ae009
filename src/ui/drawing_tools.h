#pragma once

#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>

namespace quorvane {

/// The "QVL" tab: tools and colours for drawing on the map, and the drawing layer as text. The
/// layer is shown; drawing, saving and clearing are disabled.
class DrawingTools : public QWidget {
  Q_OBJECT

 public:
  explicit DrawingTools(QWidget* parent);

  /// Selects "Stop Drawing": clicks on the map show details again.
  void StopDrawing();

  std::array<QRadioButton*, 4> Draw = {};
  std::array<QRadioButton*, 7> DColour = {};
  QPlainTextEdit* PlotBox = nullptr;
  QPushButton* SaveQVL = nullptr;
  QPushButton* ClearQVL = nullptr;

 private:
  QWidget* NewToolList();
  QWidget* NewColourFrame();
};

}  // namespace quorvane
