#pragma once

#include <QWidget>
#include <vector>

#include "screens/mineral_charts.h"

namespace quorvane {

/// A pie of coloured slices with black outlines, as wide as the widget; blank without slices.
class PieChart : public QWidget {
  Q_OBJECT

 public:
  explicit PieChart(QWidget* parent = nullptr) : QWidget(parent) {}

  void SetSlices(std::vector<PieSlice> slices);
  const std::vector<PieSlice>& Slices() const { return slices_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<PieSlice> slices_;
};

}  // namespace quorvane
