#include "ui/reports_dock.h"

#include <QVBoxLayout>

#include "ui/controls.h"

namespace quorvane {
namespace {

constexpr int kMargin = 6;
constexpr int kGap = 4;

}  // namespace

ReportsDock::ReportsDock(QWidget* parent) : QDockWidget(tr("Reports"), parent) {
  setObjectName("ReportsDock");
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(kMargin, kGap, kMargin, kGap);
  column->setSpacing(kGap);
  list_ = new ReportList(page);
  note_ = NewCaption(tr("No game is loaded"), page);
  note_->setObjectName("ReportsNote");
  note_->setWordWrap(true);
  column->addWidget(list_, 1);
  column->addWidget(note_);
  setWidget(page);
  connect(list_, &ReportList::Ticked, this, &ReportsDock::Ticked);
  connect(list_, &ReportList::YearTyped, this, &ReportsDock::YearTyped);
}

void ReportsDock::ShowRows(const std::vector<ReportRow>& rows) {
  list_->ShowRows(rows);
  note_->setText(rows.empty() ? tr("No game is loaded")
                              : tr("Ticks and years count from the next reload (F5)"));
}

}  // namespace quorvane
