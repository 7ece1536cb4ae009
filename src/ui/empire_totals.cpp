#include "ui/empire_totals.h"

#include <QGridLayout>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

struct Row {
  const char* Caption;
  PlayerField Field;
  const char* Tip = "";
  bool HasAverage = true;
};
constexpr Row kRows[] = {
    {"Total Planets:", PlayerField::PlanetsOwned, "", false},
    {"Major Planets:", PlayerField::LargePlanets, "Planets with a population more then 245000",
     false},
    {"Territory:", PlayerField::Territory, "Total Territory in ly", false},
    {"Population:", PlayerField::TotalPopulation},
    {"Mines:", PlayerField::TotalMines},
    {"Factories:", PlayerField::TotalFactories},
    {"Resources:", PlayerField::TotalResources},
    {"Ironium (k):", PlayerField::TotalIron},
    {"Boranium (k):", PlayerField::TotalBora},
    {"Germanium (k):", PlayerField::TotalGerm},
};
constexpr int kCaptionColumn = 0;
constexpr int kTotalColumn = 1;
constexpr int kAverageColumn = 2;

ElidedLabel* NewNumber(const char* array, std::size_t index, QWidget* page) {
  auto* label = new ElidedLabel(IndexedName(array, static_cast<int>(index)), page);
  label->setProperty("value", true);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* NewNumberHeading(const char* text, QWidget* page) {
  QLabel* heading = NewHeading(text, page);
  heading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return heading;
}

}  // namespace

EmpireTotals::EmpireTotals(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 12, 16, 12);
  grid->setHorizontalSpacing(24);
  grid->setVerticalSpacing(14);
  grid->addWidget(NewNumberHeading("Total:", this), 0, kTotalColumn);
  grid->addWidget(NewNumberHeading("Average:", this), 0, kAverageColumn);
  std::size_t average = 0;
  for (const Row& row : kRows) {
    const int line = grid->rowCount();
    const auto field = static_cast<std::size_t>(row.Field);
    grid->addWidget(NewCaption(row.Caption, this), line, kCaptionColumn);  // read before its value
    ShowData[field] = NewNumber("ShowData", field, this);
    ShowData[field]->SetTip(row.Tip);
    grid->addWidget(ShowData[field], line, kTotalColumn);
    if (!row.HasAverage) continue;
    AvgData[average] = NewNumber("AvgData", average, this);
    grid->addWidget(AvgData[average], line, kAverageColumn);
    ++average;
  }
  grid->setColumnStretch(kTotalColumn, 1);
  grid->setColumnStretch(kAverageColumn, 1);
  grid->setRowStretch(grid->rowCount(), 1);
}

void EmpireTotals::ShowTotals(const PlayerRecord& player) {
  for (const Row& row : kRows) {
    ShowData[static_cast<std::size_t>(row.Field)]->ShowValue(
        ToQString(FieldText(player[row.Field])));
  }
}

void EmpireTotals::ShowAverages(const PlayerRecord& player) {
  const auto texts = AverageTexts(player);
  for (std::size_t i = 0; i < texts.size(); ++i) AvgData[i]->ShowValue(ToQString(texts[i]));
}

}  // namespace quorvane
