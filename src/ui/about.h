#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace quorvane {

/// The window that says what Quorvane is, its version and its licence.
class About : public QDialog {
  Q_OBJECT

 public:
  explicit About(QWidget* parent);

  QLabel* Picture1 = nullptr;
  QLabel* lblTitle = nullptr;
  QLabel* lblVersion = nullptr;
  QLabel* lblDescription = nullptr;
  QLabel* lblDisclaimer = nullptr;
  QLabel* Label1 = nullptr;
  QPushButton* cmdOK = nullptr;

 private:
  void Form_Load();
  void LayOut();
  void cmdOK_Click();
};

}  // namespace quorvane
