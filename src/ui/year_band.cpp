#include "ui/year_band.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>

#include "ui/controls.h"

namespace quorvane {

YearBand::YearBand(QWidget* map) : QFrame(map), map_(map) {
  constexpr int kGap = 6;
  setObjectName("YearBand");
  setAttribute(Qt::WA_NoMousePropagation);  // the map below it is not meant
  BandYear = NewHeading("", this);
  BandYear->setObjectName("BandYear");
  BandBack = NewButton("BandBack", tr("Back"), this);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(kGap + 2, kGap - 2, kGap, kGap - 2);
  line->addWidget(BandYear, 1);
  line->addWidget(BandBack);
  connect(BandBack, &QPushButton::clicked, this, &YearBand::BackAsked);
  map->installEventFilter(this);
  hide();
}

void YearBand::ShowYear(int year, int loaded, int below) {
  BandYear->setText(tr("Year %1 (shown: %2)").arg(year).arg(loaded));
  BandBack->setText(tr("Back to %1").arg(loaded));
  year_ = year;
  loaded_ = loaded;
  below_ = below;
  Place();
  const bool isNew = isHidden();
  show();
  raise();
  if (!isNew) return;
  QAccessibleEvent told(BandYear, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

QString YearBand::Reason() const {
  return tr("Year %1 is shown: only %2 can be edited and saved").arg(year_).arg(loaded_);
}

void YearBand::Place() {
  ensurePolished();
  layout()->activate();
  setGeometry(0, below_, map_->width(), sizeHint().height());
}

bool YearBand::eventFilter(QObject* target, QEvent* event) {
  if (target == map_ && event->type() == QEvent::Resize) Place();
  return QFrame::eventFilter(target, event);
}

}  // namespace quorvane
