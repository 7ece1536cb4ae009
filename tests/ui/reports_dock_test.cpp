#include "ui/reports_dock.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QTest>

#include "support/window_driver.h"

namespace quorvane {
namespace {

class ReportsDockTest : public testing::Test {
 protected:
  ReportsDockTest() {
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.resize(320, 500);
    window.show();
    dock->ShowRows(rows);
    QObject::connect(dock, &ReportsDock::Ticked, [this](int row, bool isIn) {
      heard << QString("%1 %2").arg(row).arg(isIn ? "in" : "out");
    });
    QObject::connect(dock, &ReportsDock::YearTyped, [this](int row, const QString& year) {
      heard << QString("%1 of %2").arg(row).arg(year);
      for (ReportRow& shown : rows) {
        if (shown.Row == row) shown.Year = year.toStdString();
      }
      dock->ShowRows(rows);  // as the window does
    });
  }

  QString Text(int row, ReportColumn column) const {
    return list.topLevelItem(row)->text(NumberOf(column));
  }
  QRect Line(int row) const { return list.visualItemRect(list.topLevelItem(row)); }
  void ClickTick(int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Line(row).topLeft() + QPoint(10, 12));
  }
  QLineEdit* Editor() const { return list.findChild<QLineEdit*>("ReportsYear"); }
  static void SettleEditor() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  std::vector<ReportRow> rows = {
      {.Row = 1, .File = "a.P1", .Year = "2451", .IsTicked = true, .IsOwn = true},
      {.Row = 2, .File = "<b>&x.P2", .Year = "2451", .IsTicked = true},
      {.Row = 7, .File = "a.P7", .Race = "Drask", .Year = "old", .Warning = "Of 2449"},
      {.Race = "Orrin", .Warning = "No report"}};
  QMainWindow window;
  ReportsDock* dock = new ReportsDock(&window);
  WindowDriver driver{*dock};
  QTreeWidget& list = driver.Find<QTreeWidget>("ReportsList");
  QStringList heard;
};

TEST_F(ReportsDockTest, ClickOrSpaceTicksAllButTheOwnReport) {
  for (int row = 0; row < 4; ++row) ClickTick(row);
  EXPECT_EQ(heard, (QStringList{"2 out", "7 in"}));
  heard.clear();
  for (int row = 0; row < 4; ++row) {
    list.setCurrentItem(list.topLevelItem(row));
    driver.Press("ReportsList", Qt::Key_Space).Press("ReportsList", Qt::Key_Enter);
    if (Editor() != nullptr) driver.Press("ReportsYear", Qt::Key_Escape);
    SettleEditor();
  }
  EXPECT_EQ(heard, (QStringList{"2 in", "7 out"}))
      << "a year that is left alone stays, whatever it is";
  EXPECT_EQ(list.topLevelItem(0)->checkState(0), Qt::Checked);
  EXPECT_TRUE(list.topLevelItem(0)->toolTip(0).contains("always read"));
  EXPECT_FALSE(list.topLevelItem(3)->data(0, Qt::CheckStateRole).isValid());
}

TEST_F(ReportsDockTest, YearIsTypedInPeace) {
  list.setCurrentItem(list.topLevelItem(2));
  driver.Press("ReportsList", Qt::Key_2);
  ASSERT_NE(Editor(), nullptr);
  QTest::keyClicks(Editor(), "4 x4-8");
  rows.insert(rows.begin(), {.Race = "First", .Warning = "No report"});
  dock->ShowRows(rows);
  EXPECT_EQ(Editor()->text(), "2448");
  driver.Press("ReportsYear", Qt::Key_Return);
  SettleEditor();
  EXPECT_EQ(heard, QStringList{"7 of 2448"});
  EXPECT_EQ(Text(0, ReportColumn::Race), "First") << "the latest rows are shown";
  EXPECT_EQ(Text(3, ReportColumn::Year), "2448");
  EXPECT_EQ(list.currentItem(), list.topLevelItem(3));
  driver.Press("ReportsList", Qt::Key_Return).Press("ReportsYear", Qt::Key_Backspace);
  driver.Press("ReportsYear", Qt::Key_Return);
  SettleEditor();
  EXPECT_EQ(heard.last(), "7 of ");
}

TEST_F(ReportsDockTest, WhatHasNoColumnStandsInFurtherLines) {
  const int line = Line(1).height();
  EXPECT_GT(Line(2).height(), line) << "the warning";
  EXPECT_EQ(Line(3).height(), line) << "it stands in place of the file";
  for (const auto& [width, details, warnings] :
       {std::tuple{320, false, false}, {600, true, false}, {900, true, true}}) {
    window.resize(width, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(!list.isColumnHidden(NumberOf(ReportColumn::Date)), details) << width;
    EXPECT_EQ(!list.isColumnHidden(NumberOf(ReportColumn::Warning)), warnings) << width;
    EXPECT_EQ(Line(2).height() == Line(1).height(), warnings) << width;
  }
  EXPECT_TRUE(list.topLevelItem(1)->toolTip(0).contains("&lt;b&gt;&amp;x.P2"));
  dock->ShowRows({});
  EXPECT_EQ(driver.Text("ReportsNote"), "No game is loaded");
  EXPECT_EQ(list.topLevelItemCount(), 0);
}

}  // namespace
}  // namespace quorvane
