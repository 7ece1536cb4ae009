#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include "model/game_session.h"
#include "paint/picture_box.h"

class QGridLayout;

namespace quorvane {

/// The dialog that mixes a race's colour from three sliders. Only OK stores it.
class RaceColour : public QDialog {
  Q_OBJECT

 public:
  /// @param position the race's place in the legend, from 0
  /// @param slot     the colour slot to edit, from 1
  RaceColour(GameSession& session, int position, int slot, const QString& raceName,
             QWidget* parent);

  QSlider* RedSlide = nullptr;
  QSlider* GreenSlide = nullptr;
  QSlider* BlueSlide = nullptr;
  PictureBox* Picture1 = nullptr;
  QPushButton* butOK = nullptr;
  /// Hidden: position and slot.
  QLabel* PN = nullptr;
  QLabel* PN2 = nullptr;

 private:
  Colour& Slot() const;
  Colour Mixed() const;
  QSlider* AddSlider(QGridLayout& rows, const char* name, const QString& component, int value);
  void ShowPreview();
  void butOK_Click();

  GameSession& session_;
  int slot_;
};

}  // namespace quorvane
