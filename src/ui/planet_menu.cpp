#include "ui/planet_menu.h"

#include "screens/distance_texts.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// "Distance from Kestrel: 123.4 l.y., 2 years at warp 9".
QString WayText(const GameSession& session, int planet, int selected) {
  const DistanceTexts way = DescribeWay(session, selected, planet);
  const std::string& years = way.Years.at(kListedWarp - kSlowestWarp);
  return QObject::tr("Distance from %1: %2, %3 at warp %4")
      .arg(ToQString(session.Planet(selected).Name()), ToQString(way.LightYears), ToQString(years),
           QString::number(kListedWarp));
}

}  // namespace

PlanetMenu::PlanetMenu(const QString& title, QWidget* parent) : QMenu(title, parent) {
  Add("PlanetShow", tr("&Show"), PlanetCommand::Show);
  Add("PlanetZoom", tr("&Zoom to It"), PlanetCommand::Zoom);
  centre_ = Add("PlanetCentre", tr("C&entre the Map on It"), PlanetCommand::Centre);
  Add("PlanetCopy", tr("&Copy Its Details"), PlanetCommand::Copy);
  addSeparator();
  distance_ = Add("PlanetDistance", tr("&Distance from Selected"), PlanetCommand::Distance);
}

QAction* PlanetMenu::Add(const char* name, const QString& caption, PlanetCommand command) {
  QAction* item = addAction(caption, this, [this, command] { emit Asked(command, planet_); });
  item->setObjectName(name);
  item->setEnabled(false);
  return item;
}

void PlanetMenu::ShowPlanet(const GameSession& session, int planet, int selected, bool isZoomed) {
  planet_ = planet;
  for (QAction* item : actions()) item->setEnabled(planet > 0);
  centre_->setEnabled(planet > 0 && isZoomed);
  const bool hasWay = planet > 0 && selected > 0 && planet != selected;
  distance_->setEnabled(hasWay);
  distance_->setText(hasWay ? WithoutAccessKeys(WayText(session, planet, selected))
                            : tr("&Distance from Selected"));
}

}  // namespace quorvane
