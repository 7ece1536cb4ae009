#pragma once

#include <QObject>
#include <QThreadPool>
#include <atomic>

#include "loading/report_survey.h"

namespace quorvane {

/// Has the reports surveyed in a thread of its own, so that no window waits for the disk.
class ReportSurveyor : public QObject {
  Q_OBJECT

 public:
  ReportSurveyor();
  ~ReportSurveyor() override;

  /// Begins a survey; one that is under way is given up.
  void Ask(SurveyInput input);

 signals:
  void Found(const quorvane::ReportSurveys& surveys);

 private:
  std::atomic<int> asked_ = 0;
  QThreadPool thread_;
};

}  // namespace quorvane
