#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace quorvane {

/// The window "Special Thanks to": who made this program possible.
class Thanksto : public QDialog {
  Q_OBJECT

 public:
  explicit Thanksto(QWidget* parent);

  QLabel* Label1 = nullptr;
  QLabel* Label2 = nullptr;
  QLabel* Label3 = nullptr;
  QLabel* Label5 = nullptr;
  QLabel* Label4 = nullptr;
  QPushButton* cmdOK = nullptr;

 private:
  void cmdOK_Click();
};

}  // namespace quorvane
