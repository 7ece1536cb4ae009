#include "ui/map_navigator.h"

#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QTouchEvent>
#include <QWheelEvent>
#include <cmath>
#include <cstdint>
#include <random>

#include "ui/drawing_board.h"
#include "ui/main_window_fixture.h"
#include "ui/overlay_bar.h"

namespace quorvane {
namespace {

class MapNavigatorTest : public LoadedGameTest {
 protected:
  const MapView& View() const { return window.Map->State().View; }
  PictureBox& Box() { return *window.Map->Universe; }

  void Wheel(QPoint at, QPoint angle, Qt::KeyboardModifiers modifiers = {}, QPoint pixels = {},
             Qt::ScrollPhase phase = Qt::NoScrollPhase) {
    QWheelEvent event(at, Box().mapToGlobal(at), pixels, angle, Qt::NoButton, modifiers, phase,
                      false);
    QApplication::sendEvent(&Box(), &event);
  }
  void Notch(QPoint at, int notches) { Wheel(at, {0, 120 * notches}); }
  void Settle() { QApplication::processEvents(); }
  StoredPoint PlaceAt(QPoint pixel) { return View().ToStored(Box().LogicalPoint(pixel)); }
  double PixelsPerLightYear() { return View().MapScale * Box().width() / kSurfaceUnits; }
};

TEST_F(MapNavigatorTest, WheelZoomsAtThePointerIntoTheStateOfAZoomBox) {
  driver.Click("OvButt(4)").Click("OvButt(6)");
  const QImage full = Map();
  const QPoint at = Box().rect().center();
  Notch(at, 1);
  EXPECT_TRUE(driver.IsDown("OvButt(1)") && driver.Action("mnuToolBarButZoom").isChecked());
  EXPECT_EQ(View().ViewXMax - View().ViewXMin, 320);
  EXPECT_EQ(View().MapScale, 10000.0 / 320);
  EXPECT_EQ(window.Map->State().ClickMode, kOrdinaryClick);
  EXPECT_EQ(window.Map->State().ZoomArmed, 1);
  EXPECT_FALSE(Map() == full) << "drawn at once";
  Settle();
  // The very picture that a redraw of this view gives.
  const QImage zoomed = Map();
  window.DrawOverlays();
  EXPECT_TRUE(Map() == zoomed);
  driver.Press("Universe", Qt::Key_Right);
  EXPECT_TRUE(driver.IsDown("OvButt(1)"));
  Notch(at, -5);
  Settle();
  EXPECT_FALSE(driver.IsDown("OvButt(1)"));
  EXPECT_EQ(window.Map->State().ZoomArmed, 0);
  EXPECT_TRUE(Map() == full) << "kept borders included";
  Notch(at, 99);
  EXPECT_EQ(View().ViewXMax - View().ViewXMin, kSmallestWindow);
}

TEST_F(MapNavigatorTest, FineWheelsGoByTheirPixelsAndSwipesPan) {
  const QPoint at = Box().rect().center();
  for (int step = 0; step < 8; ++step) Wheel(at, {0, 15});
  EXPECT_EQ(View().WidthShown(), 320);
  for (int step = 0; step < 12; ++step) Wheel(at, {0, 40}, {}, {0, 10});
  EXPECT_EQ(View().WidthShown(), 256);
  const MapView before = View();
  Wheel(at, {0, -120}, Qt::ShiftModifier);
  EXPECT_GT(View().ViewXMin, before.ViewXMin);
  EXPECT_EQ(View().ViewYMin, before.ViewYMin);
  Wheel(at, {}, {}, {0, 40}, Qt::ScrollUpdate);
  EXPECT_NEAR(before.ViewYMin - View().ViewYMin, 40 / PixelsPerLightYear(), 1)
      << "with the fingers";
  EXPECT_EQ(View().WidthShown(), 256);
  Wheel(at, {0, 99999}, Qt::ShiftModifier);
  EXPECT_EQ(View().ViewXMin, 0);
}

TEST_F(MapNavigatorTest, PinchesZoom) {
  const QPointF at = Box().rect().center();
  QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, at,
                            at, Box().mapToGlobal(at), 0.25, QPointF());
  QApplication::sendEvent(&Box(), &pinch);
  EXPECT_EQ(View().WidthShown(), 320);
  static QPointingDevice* const screen = QTest::createTouchDevice();
  const QPoint middle = at.toPoint();
  const auto fingers = [&](int apart) {
    return std::pair(middle - QPoint(apart, 0), middle + QPoint(apart, 0));
  };
  auto [left, right] = fingers(50);
  QTest::touchEvent(&Box(), screen).press(0, left, &Box()).press(1, right, &Box());
  for (const int apart : {60, 70, 80, 90, 100}) {
    std::tie(left, right) = fingers(apart);
    QTest::touchEvent(&Box(), screen).move(0, left, &Box()).move(1, right, &Box());
  }
  QTest::touchEvent(&Box(), screen).release(0, left, &Box()).release(1, right, &Box());
  EXPECT_LT(View().WidthShown(), 240);
}

TEST_F(MapNavigatorTest, SpaceHeldDragsTheMapWithThePointer) {
  Notch(Box().rect().center(), 4);
  Activate();
  Box().setFocus();
  driver.MoveTo("Universe", {300, 300});
  const StoredPoint held = PlaceAt({300, 300});
  QTest::keyPress(&Box(), Qt::Key_Space);
  driver.MoveTo("Universe", {260, 330});
  EXPECT_NEAR(PlaceAt({260, 330}).X, held.X, 0.5);
  EXPECT_NEAR(PlaceAt({260, 330}).Y, held.Y, 0.5);
  QTest::keyRelease(&Box(), Qt::Key_Space);
  const MapView dropped = View();
  driver.MoveTo("Universe", {200, 200});
  EXPECT_EQ(View(), dropped);
}

TEST_F(MapNavigatorTest, MenuAndKeysMoveTheMapAndGoBack) {
  EXPECT_FALSE(driver.Action("ViewZoomOut").isEnabled() || driver.Action("ViewBack").isEnabled());
  Activate();
  driver.ClickAt("Universe", At({1120, 1250})).Choose("ViewZoomToSelected");
  const MapView near = View();
  EXPECT_EQ(near.WidthShown(), 200);
  driver.Press("Universe", Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(View().WidthShown(), 160);
  driver.Press("Universe", Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(View(), near);
  driver.Choose("ViewBack");
  EXPECT_TRUE(View().IsFull() && !driver.IsDown("OvButt(1)"));
  driver.Choose("ViewForward");
  EXPECT_EQ(View(), near);
  driver.Press("Universe", Qt::Key_0, Qt::ControlModifier);
  EXPECT_TRUE(View().IsFull());

  for (int notch = 0; notch < 5; ++notch) Notch({200, 200}, 1);
  Settle();
  driver.Choose("ViewBack");
  EXPECT_TRUE(View().IsFull()) << "a burst is one view";
}

// As long as nothing else has moved the map, all arrow keys scroll a zoomed map with Alt as well.
TEST_F(MapNavigatorTest, AltScrollsAMapThatAZoomBoxZoomed) {
  driver.Click("OvButt(1)").ClickAt("Universe", At({1100, 1300}));
  driver.MoveTo("Universe", At({1200, 1200})).ClickAt("Universe", At({1200, 1200}));
  const int left = View().ViewXMin;
  Activate();
  driver.Press("Universe", Qt::Key_Right, Qt::AltModifier);
  EXPECT_NEAR(View().ViewXMin, left + 100, 2);
  driver.Press("Universe", Qt::Key_Right).Choose("ViewBack");
  EXPECT_EQ(View().ViewXMin, left) << "quick steps are one view";
  driver.Choose("ViewBack");
  EXPECT_TRUE(View().IsFull());
  driver.Press("Universe", Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(View().ViewXMin, left);
}

TEST_F(MapNavigatorTest, WhatLiesAboveTheMapFollowsTheZoom) {
  driver.ClickAt("Universe", At({1120, 1250}));
  OpenTools();
  driver.Click("Draw(2)").ClickAt("Universe", At({1100, 1300}));
  driver.MoveTo("Universe", At({1150, 1250}));
  Notch(At({1150, 1250}), 2);
  const SurfacePoint begin = window.Board->DrawLine->From();
  const StoredPoint begun = View().ToStored(begin);
  EXPECT_NEAR(begun.X, 100, 1);
  EXPECT_NEAR(begun.Y, 100, 1);
  EXPECT_NEAR(driver.Find("CurrentSelected").geometry().center().x(), At({1120, 1250}).x(), 2);
  EXPECT_EQ(driver.Text("XYCoord").left(5), " X:11");
  const QPoint end = At({1130, 1230});
  driver.MoveTo("Universe", end).ClickAt("Universe", end);
  const QImage drawn = Map();
  EXPECT_FALSE(IsBlank(drawn)) << "drawn on the zoomed map";
  Notch(end, 1);
  driver.Choose("ViewBack");
  Settle();
  EXPECT_TRUE(Map() == drawn) << "a line that is not saved yet is kept";
}

TEST_F(MapNavigatorTest, RandomMovementsKeepTheirPromises) {
  driver.Click("OvButt(4)").Click("OvButt(6)").Choose("mnuNames(0)");
  const QImage never = Map();
  std::mt19937 dice(7);
  const auto below = [&dice](int limit) { return static_cast<int>(dice() % std::uint32_t(limit)); };
  std::vector<std::pair<MapView, QImage>> seen = {{View(), Map()}};
  for (int step = 0; step < 1000; ++step) {
    const QPoint at(below(Box().width()), below(Box().height()));
    const StoredPoint place = PlaceAt(at);
    const MapView before = View();
    const bool isZoom = below(3) > 0;
    isZoom ? Notch(at, below(7) - 3) : Wheel(at, {0, 120 * (below(5) - 2)}, Qt::ShiftModifier);
    const MapView& view = View();
    const int universe = view.UniverseWidth();
    ASSERT_TRUE(view.IsFull() || (view.ViewXMin >= 0 && view.ViewYMin >= 0 &&
                                  view.ViewXMax <= universe && view.ViewYMax <= universe));
    const bool isFree = view.ViewXMin > 0 && view.ViewYMin > 0 && view.ViewXMax < universe &&
                        view.ViewYMax < universe;
    if (isZoom && isFree && view != before) {
      // Whole edges leave half a light year open.
      const double most = std::max(1.0, 0.5 * PixelsPerLightYear());
      ASSERT_LE(std::fabs(PlaceAt(at).X - place.X) * PixelsPerLightYear(), most + 1e-6);
      ASSERT_LE(std::fabs(PlaceAt(at).Y - place.Y) * PixelsPerLightYear(), most + 1e-6);
    }
    if (step % 50 != 0 || !driver.Action("ViewZoomOut").isEnabled()) continue;
    driver.Choose("ViewZoomOut");
    Settle();
    seen.emplace_back(View(), Map());
  }
  const auto check = [&](const char* direction) {
    std::size_t met = 0;
    while (driver.Action(direction).isEnabled()) {
      driver.Choose(direction);
      Settle();
      for (const auto& [view, picture] : seen) {
        if (view != View()) continue;
        EXPECT_TRUE(Map() == picture);
        ++met;
      }
    }
    EXPECT_GT(met, 10U);
  };
  check("ViewBack");
  check("ViewForward");
  if (!View().IsFull()) driver.Choose("ViewWholeUniverse");
  Settle();
  EXPECT_TRUE(Map() == never) << "kept borders included";
}

}  // namespace
}  // namespace quorvane
