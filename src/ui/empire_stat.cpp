#include "ui/empire_stat.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "formats/empire_data_file.h"
#include "model/text.h"
#include "rules/race_ranges.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kSelectorText = "Select an Empire";

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

}  // namespace

EmpireStat::EmpireStat(GameSession& session, Prompts& prompts, QWidget* parent)
    : QDialog(parent), session_(session), prompts_(prompts) {
  setObjectName("EmpireStat");
  setWindowTitle("Empire Statistics");
  BuildSelector();
  BuildTabs();
  BuildButtons();
  LayOut();
  EnableEditing(false);
  ConnectControls();
  FillSelector();
}

void EmpireStat::BuildSelector() {
  Combo1 = new QComboBox(this);
  Combo1->setObjectName("Combo1");
  Combo1->setEditable(true);
  NameBox(*Combo1, tr("Empire"));
  Combo1->setInsertPolicy(QComboBox::NoInsert);
  Combo1->setCompleter(nullptr);
  Combo1->lineEdit()->setPlaceholderText(kSelectorText);
  // The window does not grow with the longest name.
  Combo1->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  Combo1->installEventFilter(this);
}

void EmpireStat::BuildTabs() {
  SSTab1 = new QTabWidget(this);
  SSTab1->setObjectName("SSTab1");
  SSTab1->setAccessibleName(tr("What is known of the empire"));
  Totals = new EmpireTotals(SSTab1);
  Race = new RaceInformation(SSTab1);
  RaceNotes = new TextBox(SSTab1);
  RaceNotes->setObjectName("RaceNotes");
  RaceNotes->setAccessibleName(tr("Notes on the race"));
  RaceNotes->setTabChangesFocus(true);
  SSTab1->addTab(Totals, "Empire Infomation");
  SSTab1->addTab(Race, "Race Information");
  SSTab1->addTab(RaceNotes, "Notes");
}

void EmpireStat::BuildButtons() {
  SaveInfo = NewButton("SaveInfo", "Save", this);
  SaveInfo->setToolTip("Save information for all Empires to file");
  OK = NewButton("OK", "Close", this);
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
}

void EmpireStat::LayOut() {
  QLabel* caption = NewCaption("Select an Empire:", this);
  caption->setBuddy(Combo1);
  auto* selector = new QHBoxLayout();
  selector->addWidget(caption);
  selector->addWidget(Combo1, 1);
  auto* buttons = new QHBoxLayout();
  buttons->addStretch(1);
  buttons->addWidget(SaveInfo);
  buttons->addWidget(OK);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(10);
  column->addLayout(selector);
  column->addWidget(SSTab1, 1);
  column->addLayout(buttons);
}

void EmpireStat::ConnectControls() {
  for (std::size_t i = 0; i < Race->ShowData.size(); ++i) {
    if (Race->ShowData[i] == nullptr) continue;
    connect(Race->ShowData[i], &RangeButton::clicked, this, [this, i] { ShowData_Click(i); });
  }
  for (std::size_t i = 0; i < Race->ImmuneMark.size(); ++i) {
    connect(Race->ImmuneMark[i], &QCheckBox::toggled, this, [this, i] { ImmuneMark_Click(i); });
  }
  for (std::size_t i = 0; i < Race->LRT.size(); ++i) {
    connect(Race->LRT[i], &QCheckBox::toggled, this, [this, i] { LRT_Click(i); });
  }
  connect(Race->RacePRT, &QComboBox::currentIndexChanged, this, &EmpireStat::RacePRT_Click);
  connect(Race->ReCalcHab, &QPushButton::clicked, this, &EmpireStat::ReCalcHab_Click);
  connect(RaceNotes, &TextBox::textChanged, this, &EmpireStat::RaceNotes_Change);
  connect(SaveInfo, &QPushButton::clicked, this, &EmpireStat::SaveInfo_Click);
  connect(OK, &QPushButton::clicked, this, &EmpireStat::OK_Click);
}

// The box would choose its first entry when it is filled; only then is it listened to.
void EmpireStat::FillSelector() {
  for (const PlayerRecord& player : session_.Players()) {
    Combo1->addItem(ToQString(player.Name()));
  }
  Combo1->setCurrentIndex(-1);
  Combo1->setEditText(kSelectorText);
  connect(Combo1, &QComboBox::editTextChanged, this, &EmpireStat::Combo1_Change);
  Combo1->setEditText(ToQString(session_.MyRaceName));
}

// Several players may bear the name that the selector shows; the last of them counts.
void EmpireStat::Combo1_Change() {
  const QScopedValueRollback filling(FillingControls, true);
  const std::string name = ToText(Combo1->currentText());
  SetPlainToolTip(*Combo1, Combo1->currentText());  // a long name does not fit
  for (int player = Combo1->count(); player > 0; --player) {
    if (session_.Player(player).Name() != name) continue;
    Combo1->setCurrentIndex(player - 1);  // so that the arrow keys go on from a typed name
    ShowPlayer(player);
    break;
  }
  Totals->ShowAverages(Current());
}

void EmpireStat::ShowPlayer(int player) {
  CurrentPlayer = player;
  Totals->ShowTotals(Current());
  Race->ShowPlayer(Current());
  RaceNotes->ShowText(ToQString(FieldText(Current()[PlayerField::NotesText])));
  EnableEditing(true);
}

void EmpireStat::EnableEditing(bool isEnabled) {
  Race->EnableEditing(isEnabled && !isShownOnly_);
  RaceNotes->setEnabled(isEnabled && !isShownOnly_);
}

void EmpireStat::ShowOnly(const QString& reason) {
  isShownOnly_ = true;
  EnableEditing(false);
  SaveInfo->setEnabled(false);
  for (QWidget* control : std::initializer_list<QWidget*>{SaveInfo, Race, RaceNotes}) {
    control->setToolTip(reason);
  }
}

// Enter in the selector ends the typing of a name.
bool EmpireStat::eventFilter(QObject* target, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(target, event);
  if (!IsEnter(*static_cast<QKeyEvent*>(event))) return QDialog::eventFilter(target, event);
  Combo1->lineEdit()->selectAll();
  return true;
}

// Enter presses the button that has the focus. Anywhere else, on a trait say, nobody means to close
// the window by it.
void EmpireStat::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event)) return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

void EmpireStat::ShowData_Click(std::size_t index) {
  const auto limit = static_cast<PlayerField>(index);
  if (RangeCaption(Current(), limit) == kImmuneCaption) {
    prompts_.Inform("This race is Immune to this hab type");
    return;
  }
  const std::string value = FieldText(Current()[limit]);
  const auto answer = prompts_.AskText("Enter New Value", RangePrompt(Current(), limit),
                                       std::string(Trimmed(value)));
  if (!answer) return;
  if (SetRangeLimit(Current(), limit, *answer)) {
    Race->ShowData[index]->ShowValue(ToQString(FieldText(Current()[limit])));
  } else {
    prompts_.Inform("New Value either exceeds minimum or maximum allowed");
  }
}

void EmpireStat::ImmuneMark_Click(std::size_t index) {
  if (FillingControls) return;  // the range labels follow when all boxes are set
  Current().Immunity(index) = Race->ImmuneMark[index]->isChecked() ? 1 : 0;
  Race->ShowRanges(Current());
}

void EmpireStat::RacePRT_Click() {
  if (FillingControls) return;
  Current()[PlayerField::PrimaryTrait] = ToText(Race->RacePRT->currentText());
}

void EmpireStat::LRT_Click(std::size_t index) {
  if (FillingControls) return;
  Current().Trait(index) = Race->LRT[index]->isChecked() ? 1 : 0;
}

void EmpireStat::RaceNotes_Change() {
  if (FillingControls) return;
  Current()[PlayerField::NotesText] = ToText(RaceNotes->Text());
}

void EmpireStat::ReCalcHab_Click() {
  const std::string name = ToText(Combo1->currentText());
  const int player = session_.FindPlayerByName(name);
  if (player == 0) {
    prompts_.Inform("There is no empire named \"" + name + "\". Nothing was changed.");
    return;
  }
  EstimateHabRanges(session_, player);
  Combo1_Change();
  for (QCheckBox* immune : Race->ImmuneMark) immune->setChecked(false);
}

void EmpireStat::SaveInfo_Click() {
  const Result<void> saved = WriteEmpireDataFile(session_);
  if (saved) emit Saved();
  prompts_.Inform(saved ? SavedRacesMessage("Information Saved", session_) : saved.Message());
}

void EmpireStat::OK_Click() { accept(); }

}  // namespace quorvane
