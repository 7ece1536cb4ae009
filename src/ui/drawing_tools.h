#pragma once

#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>

#include "ui/drawing_layer.h"
#include "ui/text_box.h"

namespace quorvane {

/// What a click on the map does while drawing.
enum class DrawingTool { StopDrawing, Circle, Line, Text };

/// The "QVL" tab: tools and colours for drawing on the map, and the drawing layer as text, which
/// the user may edit by hand.
class DrawingTools : public QWidget {
  Q_OBJECT

 public:
  explicit DrawingTools(QWidget* parent);

  DrawingTool Tool() const;
  /// Selects "Stop Drawing": clicks on the map show details again.
  void StopDrawing();
  /// Whether anything can be drawn, edited and saved.
  /// @param reason  what the user is told where it cannot
  void EnableEditing(bool isEnabled, const QString& reason);
  /// Selects a drawing colour, 1 … 7; other numbers change nothing.
  void SelectColour(int number);

  /// The drawing colour, 1 … 7.
  int DrawColourIndex = 1;

  std::array<QRadioButton*, 4> Draw = {};
  std::array<QRadioButton*, 7> DColour = {};
  TextBox* PlotBox = nullptr;
  DrawingLayer* Layer = nullptr;
  QPushButton* SaveQVL = nullptr;
  QPushButton* ClearQVL = nullptr;

 signals:
  /// The user chose another drawing colour.
  void ColourChanged();
  /// A tool or colour was chosen with the mouse, which goes on to the map.
  void ChosenByMouse();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  QWidget* NewToolList();
  QWidget* NewColourFrame();
  void AddButtons();
  void DColour_Click(int index);
  void Layer_Changed();
};

}  // namespace quorvane
