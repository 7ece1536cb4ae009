#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace quorvane {

/// The window that shows the manual beside the others, so that one can read while one works.
class Manual : public QDialog {
  Q_OBJECT

 public:
  Manual();

  QTextBrowser* Text = nullptr;
};

}  // namespace quorvane
