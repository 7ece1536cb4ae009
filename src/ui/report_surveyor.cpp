#include "ui/report_surveyor.h"

#include <utility>

namespace quorvane {

ReportSurveyor::ReportSurveyor() { thread_.setMaxThreadCount(1); }

ReportSurveyor::~ReportSurveyor() {
  ++asked_;
  thread_.waitForDone();
}

void ReportSurveyor::Ask(SurveyInput input) {
  const int number = ++asked_;
  thread_.clear();
  thread_.start([this, number, input = std::move(input)] {
    const auto isStopped = [this, number] { return asked_ != number; };
    const ReportSurveys surveys = SurveyReports(input, isStopped);
    if (isStopped()) return;
    QMetaObject::invokeMethod(
        this,
        [this, number, surveys] {
          if (number == asked_) emit Found(surveys);
        },
        Qt::QueuedConnection);
  });
}

}  // namespace quorvane
