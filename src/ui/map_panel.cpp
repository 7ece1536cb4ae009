#include "ui/map_panel.h"

#include <QFocusEvent>
#include <QPainter>
#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <utility>

#include "map/map_state.h"
#include "map/selection_marker.h"

namespace quorvane {
namespace {

constexpr Colour kZoomBoxColour = {150, 150, 150};
constexpr double kFoundRadius = 11;  // pixels, around the rings of what changed
constexpr std::chrono::milliseconds kMarkerPeriod(250);

// The map, with a frame above its picture from when the keyboard brings the focus here until the
// mouse is used.
class MapPicture : public PictureBox {
 public:
  using PictureBox::PictureBox;

 protected:
  void paintEvent(QPaintEvent* event) override {
    PictureBox::paintEvent(event);
    if (!hasFocus() || !isReachedByKeyboard_) return;
    // White between black lines can be seen on every territory.
    QPainter painter(this);
    constexpr std::array kLines = {Qt::black, Qt::white, Qt::white, Qt::black};
    QRect frame = rect();
    for (const Qt::GlobalColor line : kLines) {
      const QRect inside = frame.adjusted(1, 1, -1, -1);
      for (const QRect& side : QRegion(frame) - inside) painter.fillRect(side, line);
      frame = inside;
    }
  }

  void focusInEvent(QFocusEvent* event) override {
    PictureBox::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (comesBack) return;
    isReachedByKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                           reason == Qt::ShortcutFocusReason;
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (std::exchange(isReachedByKeyboard_, false)) update();
    PictureBox::mousePressEvent(event);
  }

 private:
  bool isReachedByKeyboard_ = false;
};

// A text above the picture, as little in the way as the shapes.
QLabel* NewNote(const char* name, QWidget& map) {
  auto* note = new QLabel(&map);
  note->setObjectName(name);
  note->setTextFormat(Qt::PlainText);
  note->setAttribute(Qt::WA_TransparentForMouseEvents);
  note->setProperty("note", true);
  note->hide();
  return note;
}

PictureBox* NewMap(const char* name, QWidget& area) {
  auto* map = new MapPicture(&area);
  map->setObjectName(name);
  return map;
}

}  // namespace

MapPanel::MapPanel(QWidget& area, const MapState& state)
    : QObject(&area),
      Universe(NewMap("Universe", area)),
      Universe2(NewMap("Universe2", area)),
      state_(state) {
  Universe->setAccessibleName(tr("Map of the universe"));
  Universe2->hide();
  MapHint = NewNote("MapHint", *Universe);
  MapHint->setText("Choose what the map shows with the buttons above");
  WayLine = new LineShape(*Universe, "WayLine");
  WayLine->AddDarkSides();
  WayLength = NewNote("WayLength", *Universe);
  FoundRings = new RingsShape(*Universe, "FoundRings");
  FoundRings->SetRadius(kFoundRadius);
  FoundRings->SetLineWidth(2);
  FoundRings->AddDarkSides();
  Rings = new RingsShape(*Universe, "Rings");
  MarkerNumber = NewNote("MarkerNumber", *Universe);
  CurrentSelected = new SquareShape(*Universe, "CurrentSelected");
  CurrentSelected->AddDarkSides();
  ZoomBox = new SquareShape(*Universe, "ZoomBox");
  ZoomBox->SetLineColour(kZoomBoxColour);
  Timer1 = new QTimer(this);
  Timer1->setObjectName("Timer1");
  Timer1->start(kMarkerPeriod);
  connect(Universe, &PictureBox::Resized, this, &MapPanel::Universe_Resize);
  connect(Timer1, &QTimer::timeout, this, &MapPanel::Timer1_Timer);
}

void MapPanel::Place(const QRect& place) {
  Universe->setGeometry(place);
  Universe2->setGeometry(place);
}

void MapPanel::Blank() {
  for (PictureBox* map : {Universe, Universe2}) {
    map->Surface().SetBackground(nullptr);
    map->Surface().Clear();
    map->update();
  }
}

void MapPanel::TakeDrawingPen() {
  constexpr int kDrawingWidth = 2;
  Universe->Surface().SetPen(
      {.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Width = kDrawingWidth});
}

void MapPanel::ShowZoomBox() {
  const bool isOpen = state_.ClickMode == kEndZoomBox;
  if (isOpen) ZoomBox->Place(state_.BoxCorner, state_.BoxSide);
  ZoomBox->setVisible(isOpen);
}

void MapPanel::ShowWay(const std::optional<std::pair<StoredPoint, StoredPoint>>& ends,
                       const QString& length) {
  WayLine->setVisible(ends.has_value());
  WayLength->setVisible(ends.has_value());
  if (!ends) return;
  const SurfacePoint from = state_.View.ToSurface(ends->first);
  const SurfacePoint to = state_.View.ToSurface(ends->second);
  WayLine->Place(from, to);
  WayLength->setText(length);
  WayLength->adjustSize();
  // Beside the middle of the way, and inside the map even where that is outside.
  constexpr QPoint kBeside(6, 6);
  const QPoint middle = Universe->WidgetPoint({(from.X + to.X) / 2, (from.Y + to.Y) / 2}).toPoint();
  const QPoint last(Universe->width() - WayLength->width(),
                    Universe->height() - WayLength->height());
  WayLength->move(std::clamp(middle.x() + kBeside.x(), 0, std::max(last.x(), 0)),
                  std::clamp(middle.y() + kBeside.y(), 0, std::max(last.y(), 0)));
}

void MapPanel::ShowRings(const std::vector<StoredPoint>& planets) { PlaceRings(*Rings, planets); }

void MapPanel::ShowFound(const std::vector<StoredPoint>& planets) {
  PlaceRings(*FoundRings, planets);
}

void MapPanel::PlaceRings(RingsShape& rings, const std::vector<StoredPoint>& planets) {
  std::vector<SurfacePoint> centres;
  centres.reserve(planets.size());
  for (const StoredPoint& planet : planets) centres.push_back(state_.View.ToSurface(planet));
  rings.Place(std::move(centres));
  rings.setVisible(!planets.empty());
}

void MapPanel::ShowHint(bool isShown) {
  MapHint->setVisible(isShown);
  PlaceHint();
}

void MapPanel::PlaceHint() {
  MapHint->adjustSize();
  MapHint->move((Universe->width() - MapHint->width()) / 2,
                (Universe->height() - MapHint->height()) / 2);
}

void MapPanel::PlaceSelector() {
  const std::optional<MarkerSquare> marker =
      MarkerAround(state_.View, state_.SelectedX, state_.SelectedY);
  CurrentSelected->setVisible(marker.has_value());
  if (marker) CurrentSelected->Place({marker->Left, marker->Top}, marker->Side);
  PlaceMarkerNumber();
}

void MapPanel::ShowMarkerNumber(int race) {
  MarkerNumber->setText(race > 0 ? QString::number(race) : QString());
  PlaceMarkerNumber();
}

// Right of the marker, or left of it where the map ends there, or within one that is wider than the
// map. A marker outside the map leaves no number at the edge.
void MapPanel::PlaceMarkerNumber() {
  const QRect marker = CurrentSelected->geometry();
  const bool isSeen = !CurrentSelected->isHidden() && marker.intersects(Universe->rect());
  MarkerNumber->setVisible(isSeen && !MarkerNumber->text().isEmpty());
  MarkerNumber->adjustSize();
  const QPoint last(Universe->width() - MarkerNumber->width(),
                    Universe->height() - MarkerNumber->height());
  const int right = marker.right() + 1;
  const int left = marker.left() - MarkerNumber->width();
  const int beside = right <= last.x() ? right : left >= 0 ? left : last.x();
  MarkerNumber->move(beside, std::clamp(marker.center().y() - MarkerNumber->height() / 2, 0,
                                        std::max(last.y(), 0)));
}

void MapPanel::Timer1_Timer() {
  if (!CurrentSelected->isVisible()) return;
  QRandomGenerator& random = *QRandomGenerator::global();
  CurrentSelected->SetLineColour(
      MarkerColour(random.generateDouble(), random.generateDouble(), random.generateDouble()));
}

// A hidden widget learns its size late; the twin's picture follows at once.
void MapPanel::Universe_Resize() {
  Universe2->Surface().Resize(Universe->size(), Universe->devicePixelRatioF());
  PlaceHint();
  PlaceMarkerNumber();
  emit Resized();
}

}  // namespace quorvane
