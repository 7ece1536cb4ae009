#include "ui/drawing_tools.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "model/drawing_record.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kWhyToSave = "You need to save for the lines to redraw";
constexpr std::array<const char*, 4> kTools = {"Stop Drawing", "Draw a Circle", "Draw a Line",
                                               "Add text"};

// What those hear who do not see them; the buttons show numbers.
constexpr std::array<const char*, DrawColours.size()> kColourNames = {
    "White", "Red", "Green", "Blue", "Yellow", "Cyan", "Magenta"};

// The number stays readable on its own colour.
QString ColourButtonStyle(const Colour& colour) {
  const bool isDark = 299 * colour.Red + 587 * colour.Green + 114 * colour.Blue < 128000;
  return QString("QRadioButton { background: rgb(%1, %2, %3); color: %4; padding: 1px 3px; }")
      .arg(colour.Red)
      .arg(colour.Green)
      .arg(colour.Blue)
      .arg(isDark ? "white" : "black");
}

}  // namespace

DrawingTools::DrawingTools(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(8, 6, 8, 6);
  grid->setSpacing(4);
  grid->addWidget(NewToolList(), 0, 0);
  grid->addWidget(NewColourFrame(), 0, 1);
  PlotBox = new TextBox(this);
  PlotBox->setObjectName("PlotBox");
  PlotBox->setAccessibleName(tr("Drawing records"));
  PlotBox->setLineWrapMode(TextBox::NoWrap);
  PlotBox->setTabChangesFocus(true);
  AddButtons();
  grid->addWidget(PlotBox, 1, 0, 1, 2);
  grid->addWidget(SaveQVL, 2, 0);
  grid->addWidget(ClearQVL, 2, 1);
  grid->setRowStretch(1, 1);
  Layer = new DrawingLayer(*PlotBox);
  connect(Layer, &DrawingLayer::Changed, this, &DrawingTools::Layer_Changed);
  for (QRadioButton* tool : Draw) tool->installEventFilter(this);
  for (QRadioButton* colour : DColour) colour->installEventFilter(this);
}

bool DrawingTools::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) emit ChosenByMouse();
  return QWidget::eventFilter(target, event);
}

DrawingTool DrawingTools::Tool() const {
  const auto chosen = std::ranges::find_if(Draw, &QRadioButton::isChecked);
  return static_cast<DrawingTool>(chosen - Draw.begin());
}

void DrawingTools::StopDrawing() { Draw[0]->setChecked(true); }

void DrawingTools::EnableEditing(bool isEnabled, const QString& reason) {
  setEnabled(isEnabled);
  setToolTip(reason);
  SaveQVL->setToolTip(isEnabled ? kWhyToSave : reason);
}

void DrawingTools::SelectColour(int number) {
  const auto index = static_cast<std::size_t>(number) - 1;
  if (index < DColour.size()) DColour[index]->setChecked(true);
}

void DrawingTools::AddButtons() {
  SaveQVL = NewButton("SaveQVL", tr("Save QVL"), this);
  SaveQVL->setToolTip(kWhyToSave);
  ClearQVL = NewButton("ClearQVL", tr("Clear QVL"), this);
}

void DrawingTools::DColour_Click(int index) {
  DrawColourIndex = index + 1;
  emit ColourChanged();
}

// The button stands out while there is something to save.
void DrawingTools::Layer_Changed() {
  SaveQVL->setProperty("attention", !Layer->IsSaved());
  SaveQVL->style()->polish(SaveQVL);
}

QWidget* DrawingTools::NewToolList() {
  auto* list = new QWidget(this);
  auto* column = new QVBoxLayout(list);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  for (std::size_t tool = 0; tool < kTools.size(); ++tool) {
    Draw[tool] = new QRadioButton(kTools[tool], list);
    Draw[tool]->setObjectName(IndexedName("Draw", static_cast<int>(tool)));
    column->addWidget(Draw[tool]);
  }
  Draw[0]->setChecked(true);
  return list;
}

QWidget* DrawingTools::NewColourFrame() {
  constexpr int kColoursPerRow = 4;
  auto* frame = new QGroupBox("Draw Colour", this);
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(4, 2, 4, 4);
  grid->setSpacing(3);
  for (int colour = 0; colour < static_cast<int>(DrawColours.size()); ++colour) {
    const auto index = static_cast<std::size_t>(colour);
    DColour[index] = new QRadioButton(QString::number(colour + 1), frame);
    DColour[index]->setObjectName(IndexedName("DColour", colour));
    DColour[index]->setAccessibleName(kColourNames[index]);
    DColour[index]->setStyleSheet(ColourButtonStyle(DrawColours[index]));
    connect(DColour[index], &QRadioButton::toggled, this, [this, colour](bool isChosen) {
      if (isChosen) DColour_Click(colour);
    });
    grid->addWidget(DColour[index], colour / kColoursPerRow, colour % kColoursPerRow);
  }
  DColour[0]->setChecked(true);
  return frame;
}

}  // namespace quorvane
