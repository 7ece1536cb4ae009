#include "ui/race_colour.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "map/discs.h"
#include "map/palette.h"
#include "paint/twips.h"
#include "rules/colour_slots.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kPreviewWidth = 1995;
constexpr int kPreviewHeight = 1905;
constexpr int kSliderWidth = 220;

QLabel* NewHiddenNumber(const char* name, int number, QWidget* parent) {
  QLabel* label = NewValue(name, parent);
  label->setText(QString::number(number));
  label->hide();
  return label;
}

}  // namespace

RaceColour::RaceColour(GameSession& session, int position, int slot, const QString& raceName,
                       QWidget* parent)
    : QDialog(parent), session_(session), slot_(slot) {
  setObjectName("RaceColour");
  setWindowTitle("Edit Race Colour for: " + PlainTitle(raceName));
  PN = NewHiddenNumber("PN", position, this);
  PN2 = NewHiddenNumber("PN2", slot, this);
  auto* row = new QHBoxLayout(this);
  auto* column = new QVBoxLayout();
  auto* sliders = new QGridLayout();
  const Colour colour = Slot();
  RedSlide = AddSlider(*sliders, "RedSlide", "Red", colour.Red);
  GreenSlide = AddSlider(*sliders, "GreenSlide", "Green", colour.Green);
  BlueSlide = AddSlider(*sliders, "BlueSlide", "Blue", colour.Blue);
  butOK = NewButton("butOK", "OK", this);
  butOK->setDefault(true);
  column->addLayout(sliders);
  column->addStretch(1);
  column->addWidget(butOK, 0, Qt::AlignRight);
  Picture1 = new PictureBox(this, QSizeF(kPreviewWidth, kPreviewHeight));
  Picture1->setObjectName("Picture1");
  Picture1->setAccessibleName(tr("Preview"));
  Picture1->setFocusPolicy(Qt::NoFocus);
  Picture1->setFixedSize(PixelsFromTwips(kPreviewWidth), PixelsFromTwips(kPreviewHeight));
  row->addLayout(column);
  row->addWidget(Picture1);
  row->setSizeConstraint(QLayout::SetFixedSize);
  connect(Picture1, &PictureBox::Resized, this, &RaceColour::ShowPreview);
  connect(butOK, &QPushButton::clicked, this, &RaceColour::butOK_Click);
  ShowPreview();
}

// One row: the component's name, its slider and its number.
QSlider* RaceColour::AddSlider(QGridLayout& rows, const char* name, const QString& component,
                               int value) {
  constexpr int kFullComponent = 255;
  auto* slider = new QSlider(Qt::Horizontal, this);
  slider->setObjectName(name);
  slider->setAccessibleName(component);
  slider->setRange(0, kFullComponent);
  slider->setValue(value);
  slider->setMinimumWidth(kSliderWidth);
  QLabel* number = NewCaption(QString::number(value), this);
  number->setMinimumWidth(number->fontMetrics().horizontalAdvance("255"));
  number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(slider, &QSlider::valueChanged, number, qOverload<int>(&QLabel::setNum));
  connect(slider, &QSlider::valueChanged, this, &RaceColour::ShowPreview);
  const int row = rows.rowCount();
  rows.addWidget(NewCaption(component, this), row, 0);
  rows.addWidget(slider, row, 1);
  rows.addWidget(number, row, 2);
  return slider;
}

Colour& RaceColour::Slot() const {
  return session_.RaceColours.at(static_cast<std::size_t>(slot_) - 1);
}

Colour RaceColour::Mixed() const {
  return {RedSlide->value(), GreenSlide->value(), BlueSlide->value()};
}

void RaceColour::ShowPreview() {
  constexpr double kRadiusStep = kPreviewWidth / 15.0;
  PaintColourDiscs(Mixed(), Picture1->Surface(), {kPreviewWidth / 2.0, kPreviewHeight / 2.0},
                   kRadiusStep, kBlack);
  Picture1->update();
  butOK->setEnabled(IsRaceColour(Mixed()));
}

void RaceColour::butOK_Click() {
  Slot() = Mixed();
  accept();
}

}  // namespace quorvane
