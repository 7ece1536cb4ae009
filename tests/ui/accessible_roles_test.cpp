#include <QAccessible>
#include <utility>

#include "ui/empire_stat.h"
#include "ui/legend.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

TEST_F(LoadedGameTest, PicturesAndWhatIsPressedSayWhatTheyAre) {
  GameSession session = window.Session();
  const EmpireStat statistics(session, prompts, nullptr);
  const std::pair<QWidget*, QAccessible::Role> cases[] = {
      {window.Map->Universe, QAccessible::Graphic},
      {window.RaceLegend->RaceC[0], QAccessible::Button},
      {statistics.Race->ShowData[8], QAccessible::Button}};
  for (const auto& [control, role] : cases) {
    EXPECT_EQ(QAccessible::queryAccessibleInterface(control)->role(), role);
  }
  bool isOpen = false;
  InNextDialog([&isOpen](QWidget& dialog) { isOpen = dialog.close(); });
  QAccessible::queryAccessibleInterface(window.RaceLegend->RaceC[0])
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(isOpen);
}

}  // namespace
}  // namespace quorvane
