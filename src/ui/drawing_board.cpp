#include "ui/drawing_board.h"

#include <QPushButton>
#include <optional>
#include <string>
#include <utility>

#include "files/files.h"
#include "formats/drawing_file.h"
#include "ui/drawing_tools.h"
#include "ui/map_panel.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr double kSmallestFont = 8;

Colour ColourOf(const DrawingTools& tools) {
  return DrawColours.at(static_cast<std::size_t>(tools.DrawColourIndex) - 1);
}

}  // namespace

DrawingBoard::DrawingBoard(const GameSession& session, MapPanel& map, DrawingTools& tools,
                           Prompts& prompts)
    : QObject(&map),
      DrawLine(new LineShape(*map.Universe, "DrawLine")),
      session_(session),
      map_(map),
      tools_(tools),
      prompts_(prompts) {
  connect(&tools, &DrawingTools::ColourChanged, this,
          [this] { DrawLine->SetLineColour(ColourOf(tools_)); });
  connect(tools.SaveQVL, &QPushButton::clicked, this, &DrawingBoard::SaveQVL_Click);
  connect(tools.ClearQVL, &QPushButton::clicked, this, &DrawingBoard::ClearQVL_Click);
}

void DrawingBoard::ShowLoadedGame() {
  DrawLine->hide();
  ForgetShapes();
  tools_.StopDrawing();
  const std::vector<DrawingRecord>& layer = session_.DrawingLayer;
  tools_.Layer->Show(layer);
  // Drawing goes on in the colour that was used last.
  if (!layer.empty()) tools_.SelectColour(layer.back().ColourNumber);
  if (FindFile(session_.DrawingFilePath)) map_.TakeDrawingPen();
}

bool DrawingBoard::Universe_MouseDown(SurfacePoint at) {
  const DrawingTool tool = tools_.Tool();
  if (tool == DrawingTool::StopDrawing) return false;
  if (!session_.IsLoaded()) return true;  // no universe to draw in yet
  if (tool == DrawingTool::Text) {
    AddText(at);
  } else {
    StretchBand(at);
  }
  return true;
}

void DrawingBoard::Universe_MouseMove(SurfacePoint at) {
  if (DrawLine->isVisible()) DrawLine->Place(DrawLine->From(), at);
}

// The first click begins a shape, the second ends it with the tool that is selected then.
void DrawingBoard::StretchBand(SurfacePoint at) {
  if (!DrawLine->isVisible()) {
    bandStart_ = at;
    bandView_ = map_.State().View;
    DrawLine->Place(at, at);
    DrawLine->SetLineColour(ColourOf(tools_));
    DrawLine->show();
    return;
  }
  DrawLine->hide();
  const auto finish = tools_.Tool() == DrawingTool::Circle ? CircleThrough : LineBetween;
  AddShape(finish(DrawLine->From(), at, tools_.DrawColourIndex));
}

void DrawingBoard::AddText(SurfacePoint at) {
  const std::string text =
      prompts_.AskText("Enter Text", "Enter text to add here", "").value_or("");
  const std::string answer =
      prompts_.AskText("Enter size", "Enter size of font (minimum 8)", "8").value_or("");
  const double size = NumericValue(answer);
  if (text.empty() || size < kSmallestFont) return;
  if (const std::optional<std::string> fault = DrawnTextFault(text)) {
    prompts_.Inform(*fault);
    return;
  }
  AddShape({.Kind = DrawingKind::Text,
            .At = at,
            .Text = text,
            .Size = size,
            .ColourNumber = tools_.DrawColourIndex});
}

void DrawingBoard::AddShape(MapShape shape) {
  tools_.Layer->Append(RecordOf(shape, map_.State().View));
  DrawShape(shape, map_.Universe->Surface());
  shapes_.push_back({std::move(shape), map_.State().View});
  map_.Universe->update();
}

bool DrawingBoard::ReadLayer() {
  if (!FindFile(session_.DrawingFilePath)) {
    tools_.Layer->Show({});
    prompts_.Inform("No file found for this map");
    return false;
  }
  const Result<void> read = tools_.Layer->Read(session_);
  if (!read) prompts_.Inform(read.Message());
  return static_cast<bool>(read);
}

void DrawingBoard::DrawShapes() {
  for (const auto& [shape, view] : shapes_) {
    DrawShape(MovedTo(map_.State().View, shape, view), map_.Universe->Surface());
  }
}

void DrawingBoard::FollowView() {
  if (DrawLine->isHidden()) return;
  DrawLine->Place(MovedTo(map_.State().View, bandStart_, bandView_), DrawLine->To());
}

void DrawingBoard::SaveQVL_Click() {
  if (!session_.IsLoaded()) return prompts_.Inform(kNothingToSave);
  const Result<void> saved = tools_.Layer->Save(session_);
  prompts_.Inform(saved ? "Saved to " + TextFromPath(session_.DrawingFilePath) : saved.Message());
}

void DrawingBoard::ClearQVL_Click() {
  tools_.Layer->Clear();
  emit Cleared();
}

}  // namespace quorvane
