#include "ui/legend.h"

#include "render/swatch.h"
#include "ui/labels.h"
#include "ui/pixel_rect.h"
#include "ui/texts.h"

namespace quorvane {

Legend::Legend(QWidget& area) : QObject(&area) {
  for (int row = 0; row < kLegendRows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    Race[index] = NewValue(IndexedName("Race", row), &area);
    RaceC[index] = new PictureBox(&area, QSizeF(kSwatchWidth, kSwatchHeight));
    RaceC[index]->setObjectName(IndexedName("RaceC", row));
    RaceC[index]->setToolTip("Click to Change Colour");
    RaceC[index]->setEnabled(false);
    RaceC[index]->hide();
    connect(RaceC[index], &PictureBox::Resized, this, [this, index] { PaintRow(index); });
  }
}

void Legend::Place(const MainLayout& layout) {
  for (std::size_t row = 0; row < Race.size(); ++row) {
    Race[row]->setGeometry(PixelRect(layout.Race[row]));
    RaceC[row]->setGeometry(PixelRect(layout.RaceC[row]));
  }
}

void Legend::ShowPlayers(const GameSession& session) {
  for (int row = 0; row < kLegendRows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    const int player = row + 1;
    const bool isPlayer = player <= session.PlayerCount;
    const QString name = isPlayer ? ToQString(session.Player(player).Name()) : QString();
    Race[index]->setText(name);
    Race[index]->setToolTip(name);  // a long name does not fit
    RaceC[index]->setAccessibleName(tr("Colour of %1").arg(name));
    RaceC[index]->setVisible(!name.isEmpty());
    const Colour* colour = isPlayer ? session.ColourOf(player) : nullptr;
    colours_[index] = colour != nullptr ? *colour : Colour();
    PaintRow(index);
  }
}

void Legend::PaintRow(std::size_t row) {
  PaintSwatch(colours_[row], RaceC[row]->Surface());
  RaceC[row]->update();
}

}  // namespace quorvane
