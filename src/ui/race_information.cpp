#include "ui/race_information.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "screens/empire_statistics.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr std::array kPrimaryTraits = {"HE", "SS", "WM", "CA", "IS",
                                       "SD", "PP", "IT", "AR", "JoaT"};

constexpr std::array<const char*, kLesserTraitCount> kLesserTraits = {
    "Improved Fuel Efficiency", "Total Terraforming",   "Advanced Remote Mining",
    "Improved Starbases",       "Generalized Research", "Ultimate Recycling",
    "Mineral Alchemy",          "No Ram Scoop Engines", "Cheap Engines",
    "Only Basic Remote Mining", "No Advanced Scanners", "Low Starting Population",
    "Bleeding Edge Technology", "Regenerating Shields"};

// One kind of habitability: its caption, and what its controls mean to somebody who hears them.
struct HabKind {
  const char* Caption;
  const char* Low;
  const char* High;
  const char* Immune;
};
constexpr std::array<HabKind, 3> kHabKinds = {
    {{"Gravity:", "Lowest gravity", "Highest gravity", "Immune to gravity"},
     {"Temperature:", "Lowest temperature", "Highest temperature", "Immune to temperature"},
     {"Radiation:", "Lowest radiation", "Highest radiation", "Immune to radiation"}}};

constexpr int kTraitLength = 10;  // leaves room for a trait that somebody else wrote
constexpr int kHelpWidth = 400;
constexpr int kRestOfWindow = 180;  // what stands above and below the fields, in pixels
constexpr const char* kHelp =
    "Hab ranges calculated from supplied data. Click on a value to change. This effects the "
    "estimated hab % display/calculations.";

// The fields of a kind lie side by side, and so do those of the kinds.
constexpr auto kFirstRange = static_cast<std::size_t>(PlayerField::GravMin);

}  // namespace

RaceInformation::RaceInformation(QWidget* parent) : QWidget(parent), fields_(new QWidget(this)) {
  auto* column = new QVBoxLayout(fields_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(10);
  column->addLayout(NewRangeGrid());
  QLabel* help = NewCaption(kHelp, fields_);
  help->setWordWrap(true);
  // Pages of a tab control do not pass on that a narrower text is higher.
  help->setMinimumSize(kHelpWidth, help->heightForWidth(kHelpWidth));
  column->addWidget(help);
  column->addWidget(NewHeading("PRT / LRTs", fields_));
  column->addWidget(NewTraitChooser());
  column->addLayout(NewTraitGrid());

  ReCalcHab = NewButton("ReCalcHab", "Re-Calc Hab Ranges", this);
  const QSize whole = fields_->minimumSizeHint();
  const int room = RoomOnScreen(*this).height() - kRestOfWindow;
  QScrollArea* scroll = NewScrollArea(fields_);
  const int bar = whole.height() > room ? scroll->verticalScrollBar()->sizeHint().width() : 0;
  scroll->setMinimumSize(whole.width() + bar, std::min(whole.height(), room));
  auto* page = new QVBoxLayout(this);
  page->setContentsMargins(16, 12, 16, 12);
  page->setSpacing(10);
  page->addWidget(scroll);
  page->addStretch(1);
  page->addWidget(ReCalcHab, 0, Qt::AlignLeft);
}

QGridLayout* RaceInformation::NewRangeGrid() {
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(12);
  int column = 1;
  for (const char* heading : {"Low:", "High:", "Immune?"}) {
    grid->addWidget(NewHeading(heading, fields_), 0, column++);
  }
  for (std::size_t kind = 0; kind < kHabKinds.size(); ++kind) {
    const HabKind& texts = kHabKinds[kind];
    const int line = grid->rowCount();
    grid->addWidget(NewCaption(texts.Caption, fields_), line, 0);
    std::size_t field = kFirstRange + 2 * kind;
    column = 1;
    for (const char* meaning : {texts.Low, texts.High}) {
      const QString name = IndexedName("ShowData", static_cast<int>(field));
      ShowData[field] = new RangeButton(name, meaning, fields_);
      grid->addWidget(ShowData[field++], line, column++);
    }
    ImmuneMark[kind] = new QCheckBox(fields_);
    ImmuneMark[kind]->setObjectName(IndexedName("ImmuneMark", static_cast<int>(kind)));
    ImmuneMark[kind]->setAccessibleName(texts.Immune);
    grid->addWidget(ImmuneMark[kind], line, column);
  }
  for (const int stretched : {1, 2}) grid->setColumnStretch(stretched, 1);
  return grid;
}

QWidget* RaceInformation::NewTraitChooser() {
  auto* chooser = new QWidget(fields_);
  auto* row = new QHBoxLayout(chooser);
  row->setContentsMargins(0, 0, 0, 0);
  RacePRT = new QComboBox(chooser);
  RacePRT->setObjectName("RacePRT");
  for (const char* trait : kPrimaryTraits) RacePRT->addItem(trait);
  // A box that can be edited shows a stored text that is none of its entries, too. Only a trait
  // that was chosen is stored, so nothing can be typed.
  RacePRT->setEditable(true);
  NameBox(*RacePRT, tr("Primary racial trait"));
  RacePRT->setMinimumContentsLength(kTraitLength);
  RacePRT->setCompleter(nullptr);
  RacePRT->setCurrentIndex(-1);
  RacePRT->lineEdit()->setReadOnly(true);
  RacePRT->lineEdit()->installEventFilter(this);
  QLabel* caption = NewCaption("PRT:", chooser);
  caption->setBuddy(RacePRT);
  row->addWidget(caption);
  row->addWidget(RacePRT);
  row->addStretch(1);
  return chooser;
}

QGridLayout* RaceInformation::NewTraitGrid() {
  constexpr int kRowsPerColumn = kLesserTraitCount / 2;
  auto* grid = new QGridLayout();
  grid->setHorizontalSpacing(24);
  for (std::size_t i = 0; i < kLesserTraits.size(); ++i) {
    const int index = static_cast<int>(i);
    LRT[i] = new QCheckBox(kLesserTraits[i], fields_);
    LRT[i]->setObjectName(IndexedName("LRT", index));
    grid->addWidget(LRT[i], index % kRowsPerColumn, index / kRowsPerColumn);
  }
  return grid;
}

void RaceInformation::ShowPlayer(const PlayerRecord& player) {
  for (std::size_t kind = 0; kind < ImmuneMark.size(); ++kind) {
    ImmuneMark[kind]->setChecked(player.Immunity(kind).ReadsAs(1));
  }
  ShowRanges(player);
  const QString trait = ToQString(FieldText(player[PlayerField::PrimaryTrait]));
  RacePRT->setCurrentIndex(RacePRT->findText(trait));
  RacePRT->setEditText(trait);
  for (std::size_t i = 0; i < LRT.size(); ++i) {
    LRT[i]->setChecked(player.Trait(i).ReadsAs(1));
  }
}

void RaceInformation::ShowRanges(const PlayerRecord& player) {
  for (std::size_t field = kFirstRange; field < ShowData.size(); ++field) {
    ShowData[field]->ShowValue(ToQString(RangeCaption(player, static_cast<PlayerField>(field))));
  }
}

// A click on the text opens the list, as it does in a box that cannot be edited.
bool RaceInformation::eventFilter(QObject* target, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress) return QWidget::eventFilter(target, event);
  RacePRT->showPopup();
  return true;
}

}  // namespace quorvane
