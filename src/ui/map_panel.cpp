#include "ui/map_panel.h"

#include <optional>

#include "render/draw_overlays.h"
#include "render/zoom_box.h"

namespace quorvane {
namespace {

constexpr Colour kZoomBoxColour = {150, 150, 150};

std::optional<ScrollKey> ScrollKeyOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return ScrollKey::Left;
    case Qt::Key_Up:
      return ScrollKey::Up;
    case Qt::Key_Right:
      return ScrollKey::Right;
    case Qt::Key_Down:
      return ScrollKey::Down;
    default:
      return std::nullopt;
  }
}

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

PictureBox* NewMap(const char* name, QWidget& area) {
  auto* map = new PictureBox(&area);
  map->setObjectName(name);
  return map;
}

}  // namespace

MapPanel::MapPanel(QWidget& area)
    : QObject(&area), Universe(NewMap("Universe", area)), Universe2(NewMap("Universe2", area)) {
  Universe->setAccessibleName(tr("Map of the universe"));
  Universe2->hide();
  ZoomBox = &Universe->AddOutline();
  ZoomBox->OutlineColour = kZoomBoxColour;
  connect(Universe, &PictureBox::Resized, this, &MapPanel::Universe_Resize);
  connect(Universe, &PictureBox::MouseDown, this,
          [this](int, int, double x, double y) { Universe_MouseDown(x, y); });
  connect(Universe, &PictureBox::MouseMove, this,
          [this](int, int, double x, double) { Universe_MouseMove(x); });
}

void MapPanel::Place(const QRect& place) {
  Universe->setGeometry(place);
  Universe2->setGeometry(place);
}

void MapPanel::ShowUniverse(int universeExtent) {
  state_ = MapState();
  state_.View.ShowAll(universeExtent);
  ZoomBox->Visible = false;
  for (PictureBox* map : {Universe, Universe2}) {
    map->Surface().SetBackground(nullptr);
    map->Surface().Clear();
    map->update();
  }
}

bool MapPanel::Scroll(int key, Qt::KeyboardModifiers modifiers) {
  const std::optional<ScrollKey> scrollKey = ScrollKeyOf(key);
  return scrollKey && ScrollView(state_, *scrollKey, ShiftMaskOf(modifiers));
}

void MapPanel::Draw(GameSession& session, const OverlaySwitches& switches,
                    const ShowProgress& progress) {
  DrawOverlays({.Session = session,
                .View = state_.View,
                .Switches = switches,
                .Universe = Universe->Surface(),
                .Universe2 = Universe2->Surface(),
                .Progress = progress});
  Universe->update();
}

void MapPanel::Universe_MouseDown(double x, double y) {
  if (state_.ClickMode == kStartZoomBox) {
    StartZoomBox(state_, {x, y});
    ZoomBox->Left = x;
    ZoomBox->Top = y;
    ZoomBox->Width = 1;
    ZoomBox->Height = 1;
    ZoomBox->Visible = true;
    emit ZoomBoxStarted();
  } else if (state_.ClickMode == kEndZoomBox && EndZoomBox(state_, ZoomBox->Width)) {
    ZoomBox->Visible = false;
    emit ZoomBoxEnded();
  }
  Universe->update();
}

void MapPanel::Universe_MouseMove(double x) {
  if (state_.ClickMode != kEndZoomBox) return;
  ZoomBox->Width = ZoomBoxSide(ZoomBox->Left, x);
  ZoomBox->Height = ZoomBox->Width;
  Universe->update();
}

// A hidden widget learns its size late; the twin's picture follows at once.
void MapPanel::Universe_Resize() {
  Universe2->Surface().Resize(Universe->size(), Universe->devicePixelRatioF());
  emit Resized();
}

}  // namespace quorvane
