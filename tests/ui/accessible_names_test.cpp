#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <utility>

#include "ui/empire_stat.h"
#include "ui/find_planet.h"
#include "ui/grid.h"
#include "ui/legend.h"
#include "ui/main_window_fixture.h"
#include "ui/manual.h"
#include "ui/open_file.h"
#include "ui/race_colour.h"

namespace quorvane {
namespace {

// Who cannot see a control has to be told what it is.
void Check(const QWidget& top) {
  for (const QWidget* control : top.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    // The text box inside a list box, too, is stopped at.
    const bool isText = qobject_cast<const QLineEdit*>(control) != nullptr;
    const bool isOwn =
        isText || (!name.isEmpty() && !name.startsWith("qt_") && !control->isHidden());
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const bool showsText = button != nullptr && !button->text().isEmpty();
    if (!isOwn || control->focusPolicy() == Qt::NoFocus || showsText) continue;
    EXPECT_FALSE(control->accessibleName().isEmpty())
        << top.objectName().toStdString() << ": " << name.toStdString();
  }
}

TEST_F(LoadedGameTest, EveryControlWithoutATextHasAnAccessibleName) {
  GameSession session = window.Session();
  OpenState open;
  Check(window);
  Check(OpenFile(open, prompts, nullptr));
  Check(FindPlanet(session, prompts, nullptr));
  Check(EmpireStat(session, prompts, nullptr));
  Check(RaceColour(session, 0, 1, "Humanoid", nullptr));
  Check(Grid());
  Check(Manual());
}

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
