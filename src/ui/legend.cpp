#include "ui/legend.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "map/discs.h"
#include "paint/twips.h"
#include "ui/controls.h"
#include "ui/pixel_rect.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// The names of the second column would touch the swatches of the first.
constexpr int kNameIndent = 4;
constexpr const char* kChangeColour = "Click to Change Colour";

}  // namespace

RaceSwatch::RaceSwatch(QWidget* parent) : PictureBox(parent, QSizeF(kSwatchWidth, kSwatchHeight)) {
  setToolTip(kChangeColour);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);  // the frame of the focus would stay behind after a click
  connect(this, &PictureBox::MouseDown, this, &RaceSwatch::Chosen);
}

void RaceSwatch::keyPressEvent(QKeyEvent* event) {
  const bool isChoice = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                        event->key() == Qt::Key_Enter;
  if (isChoice) {
    emit Chosen();
  } else {
    PictureBox::keyPressEvent(event);
  }
}

void RaceSwatch::paintEvent(QPaintEvent* event) {
  PictureBox::paintEvent(event);
  QPainter painter(this);
  if (number_ > 0) PaintNumber(painter);
  if (!hasFocus()) return;
  // Black within white can be seen on every colour.
  const QRect frame = SeenPart().adjusted(0, 0, -1, -1);
  painter.setPen(Qt::white);
  painter.drawRect(frame);
  painter.setPen(Qt::black);
  painter.drawRect(frame.adjusted(1, 1, -1, -1));
}

// The swatch of the next row covers the lower edge of this one.
QRect RaceSwatch::SeenPart() const {
  return rect().adjusted(0, 0, 0, -PixelsFromTwips(kSwatchHeight - kLegendRowHeight));
}

void RaceSwatch::ShowNumber(int number) {
  number_ = number;
  update();
}

// White within black can be read on every colour, at the dim end of the swatch most easily.
void RaceSwatch::PaintNumber(QPainter& painter) const {
  constexpr int kFromEdge = 3;
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const QString text = QString::number(number_);
  const QRect room = SeenPart().adjusted(0, 0, -kFromEdge, 0);
  const int baseline = room.top() + (room.height() + metrics.capHeight()) / 2;
  QPainterPath letters;
  letters.addText(room.right() - metrics.horizontalAdvance(text), baseline, bold, text);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(letters, QPen(Qt::black, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(letters, Qt::white);
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void RaceSwatch::focusInEvent(QFocusEvent* event) {
  PictureBox::focusInEvent(event);
  update();
}

void RaceSwatch::focusOutEvent(QFocusEvent* event) {
  PictureBox::focusOutEvent(event);
  update();
}

Legend::Legend(QWidget& area) : QObject(&area) {
  for (int row = 0; row < kLegendRows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    Race[index] = NewValue(IndexedName("Race", row), &area);
    Race[index]->setIndent(kNameIndent);
    RaceC[index] = new RaceSwatch(&area);
    RaceC[index]->setObjectName(IndexedName("RaceC", row));
    RaceC[index]->hide();
    connect(RaceC[index], &PictureBox::Resized, this, [this, index] { PaintRow(index); });
    connect(RaceC[index], &RaceSwatch::Chosen, this, [this, row] { emit Chosen(row); });
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
    SetPlainToolTip(*Race[index], name);  // a long name does not fit
    RaceC[index]->setAccessibleName(tr("Colour of %1").arg(name));
    RaceC[index]->setVisible(!name.isEmpty());
  }
  outlines_ = {};
  TakeColours(session);
  for (std::size_t row = 0; row < colours_.size(); ++row) PaintRow(row);
}

void Legend::ShowChangedColour(const GameSession& session, int row) {
  TakeColours(session);
  outlines_.at(static_cast<std::size_t>(row)) = Colour();
  for (std::size_t shown = 0; shown < colours_.size(); ++shown) PaintRow(shown);
}

void Legend::EnableChoosing(bool isEnabled, const QString& reason) {
  for (RaceSwatch* swatch : RaceC) {
    swatch->setEnabled(isEnabled);
    swatch->setToolTip(isEnabled ? kChangeColour : reason);
  }
}

void Legend::ShowNumbers(bool areShown) {
  for (int row = 0; row < kLegendRows; ++row) {
    RaceC[static_cast<std::size_t>(row)]->ShowNumber(areShown ? row + 1 : 0);
  }
}

void Legend::TakeColours(const GameSession& session) {
  for (std::size_t row = 0; row < colours_.size(); ++row) {
    const int player = static_cast<int>(row) + 1;
    const Colour* colour = player <= session.PlayerCount ? session.ColourOf(player) : nullptr;
    colours_[row] = colour != nullptr ? *colour : Colour();
  }
}

void Legend::PaintRow(std::size_t row) {
  PaintSwatch(colours_[row], RaceC[row]->Surface(), outlines_[row]);
  RaceC[row]->update();
}

}  // namespace quorvane
