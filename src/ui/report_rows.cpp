#include "ui/report_rows.h"

#include <QButtonGroup>
#include <QGridLayout>

#include "formats/game_files.h"
#include "model/field_value.h"
#include "screens/open_checks.h"
#include "screens/reload_plan.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kRowsPerColumn = 8;
constexpr int kYearWidth = 52;     // pixels: four digits with room
constexpr int kColumnsPerRow = 4;  // three controls and the gap to the next column of rows

std::size_t Index(int row) { return static_cast<std::size_t>(row); }

}  // namespace

ReportRows::ReportRows(GameChoice& choice, QWidget* parent) : QWidget(parent), choice_(choice) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  grid->setColumnMinimumWidth(kColumnsPerRow - 1, 16);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(1 + kColumnsPerRow, 1);
  auto* races = new QButtonGroup(this);
  for (int row = 0; row <= kMaxPlayers; ++row) {
    AddRow(row);
    races->addButton(Player[Index(row)]);
    if (row > 0) setTabOrder(Player[Index(row - 1)], Player[Index(row)]);
  }
  HideAll();
}

void ReportRows::AddRow(int row) {
  auto* player = new QRadioButton(this);
  auto* check = new QCheckBox(this);
  auto* year = new QLineEdit(this);
  player->setObjectName(IndexedName("Player", row));
  check->setObjectName(IndexedName("Check1", row));
  year->setObjectName(IndexedName("TxtPxYear", row));
  player->setAccessibleName(tr("Report %1 is my race").arg(row));
  player->setToolTip(tr("This report is my own race's"));
  year->setAccessibleName(tr("Year of report %1").arg(row));
  year->setToolTip(tr("Year of this report; left empty, it is the current game year"));
  year->setFixedWidth(kYearWidth);
  Player[Index(row)] = player;
  Check1[Index(row)] = check;
  TxtPxYear[Index(row)] = year;
  if (row > 0) {
    auto* grid = static_cast<QGridLayout*>(layout());
    const int column = (row - 1) / kRowsPerColumn * kColumnsPerRow;
    const int line = (row - 1) % kRowsPerColumn;
    grid->addWidget(player, line, column);
    grid->addWidget(check, line, column + 1);
    grid->addWidget(year, line, column + 2);
  }
  connect(player, &QRadioButton::toggled, this, [this, row](bool isChosen) {
    if (isChosen) Player_Click(row);
  });
  connect(check, &QCheckBox::toggled, this, [this, row] { Check1_Click(row); });
}

void ReportRows::Clear() {
  HideAll();
  for (int row = 1; row <= kMaxPlayers; ++row) {
    QRadioButton& player = *Player[Index(row)];
    player.group()->setExclusive(false);
    player.setChecked(false);
    player.group()->setExclusive(true);
    TxtPxYear[Index(row)]->clear();
  }
}

void ReportRows::HideAll() {
  for (int row = 0; row <= kMaxPlayers; ++row) SetRowVisible(row, false);
}

void ReportRows::ShowReports() {
  isFillingRows_ = true;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    if (choice_.ReportFiles[Index(row)].Path.empty()) continue;
    Check1[Index(row)]->setText(WithoutAccessKeys(PathText(ReportFileName(choice_, row))));
    Check1[Index(row)]->setChecked(true);
    SetRowVisible(row, true);
  }
  isFillingRows_ = false;
  if (choice_.MyRaceRow > 0) Player[Index(choice_.MyRaceRow)]->setChecked(true);
}

void ReportRows::SetOldReport(const QString& caption) {
  isFillingRows_ = true;
  Check1[0]->setText(WithoutAccessKeys(caption));
  Check1[0]->setChecked(true);
  isFillingRows_ = false;
}

void ReportRows::ShowAccepted(const GameChoice& accepted) {
  RowYears years = TypedYears(accepted);
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const ReportFileSlot& report = accepted.ReportFiles[Index(row)];
    const bool isKnown =
        IsShown(row) && accepted.ReportStyle == choice_.ReportStyle && !report.Path.empty();
    if (!isKnown) {
      years[Index(row)].clear();
      continue;
    }
    Check1[Index(row)]->setChecked(FieldValue(report.Included).ReadsAs(1));
    if (row == accepted.MyRaceRow) Player[Index(row)]->setChecked(true);
  }
  SetYears(years);
}

RowYears ReportRows::Years() const {
  RowYears years;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    years[Index(row)] = ToText(TxtPxYear[Index(row)]->text());
  }
  return years;
}

void ReportRows::SetYears(const RowYears& years) {
  for (int row = 1; row <= kMaxPlayers; ++row) {
    TxtPxYear[Index(row)]->setText(ToQString(years[Index(row)]));
  }
}

bool ReportRows::IsShown(int row) const { return !Player[Index(row)]->isHidden(); }

void ReportRows::SetRowVisible(int row, bool isVisible) {
  Player[Index(row)]->setVisible(isVisible);
  Check1[Index(row)]->setVisible(isVisible);
  TxtPxYear[Index(row)]->setVisible(isVisible);
}

// The Tab key goes to the chosen button, and from there the arrow keys to the others.
void ReportRows::Player_Click(int row) {
  choice_.MyRaceRow = row;
  for (QRadioButton* player : Player) player->setFocusPolicy(Qt::ClickFocus);
  Player[Index(row)]->setFocusPolicy(Qt::StrongFocus);
  emit RaceChosen();
}

void ReportRows::Check1_Click(int row) {
  if (isFillingRows_) return;
  std::string& included = choice_.ReportFiles[Index(row)].Included;
  included = ToggledIncluded(included);
}

}  // namespace quorvane
