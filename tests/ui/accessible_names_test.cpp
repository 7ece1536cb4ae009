#include <QAbstractButton>

#include "ui/empire_stat.h"
#include "ui/find_planet.h"
#include "ui/grid.h"
#include "ui/main_window_fixture.h"
#include "ui/open_file.h"
#include "ui/race_colour.h"

namespace quorvane {
namespace {

// Who cannot see a control has to be told what it is.
void Check(const QWidget& top) {
  for (const QWidget* control : top.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    const bool isOwn = !name.isEmpty() && !name.startsWith("qt_") && !control->isHidden();
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
}

}  // namespace
}  // namespace quorvane
