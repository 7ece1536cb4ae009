#pragma once

#include <QDialog>
#include <QTableWidget>

namespace quorvane {

/// Explains how planets are searched for, by examples. One that is chosen is typed for the user.
class SearchHelp : public QDialog {
  Q_OBJECT

 public:
  explicit SearchHelp(QWidget* parent);

 signals:
  void Chosen(const QString& query);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FillExamples();
  void Choose(int row);

  QTableWidget* examples_ = nullptr;
};

}  // namespace quorvane
