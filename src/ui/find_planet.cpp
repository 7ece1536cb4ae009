#include "ui/find_planet.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShowEvent>

#include "screens/planet_search.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kListWidth = 260;
constexpr int kWidestList = 400;

// Completing a name only helps with typing. A text that was typed must stay one, even where it
// equals an entry, so the box may not choose that entry when the typing ends.
void OfferCompletions(QComboBox& list) {
  auto* completer = new QCompleter(list.model(), &list);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setCompletionMode(QCompleter::PopupCompletion);
  list.setCompleter(completer);
  QObject::disconnect(list.lineEdit(), &QLineEdit::editingFinished, &list, nullptr);
  QObject::disconnect(list.lineEdit(), &QLineEdit::returnPressed, &list, nullptr);
}

QStringList EntriesOf(const QComboBox& list) {
  QStringList entries;
  for (int row = 0; row < list.count(); ++row) entries << list.itemText(row);
  return entries;
}

}  // namespace

FindPlanet::FindPlanet(const GameSession& session, MapState& state, Prompts& prompts,
                       QWidget* parent)
    : QDialog(parent), session_(session), state_(state), prompts_(prompts) {
  setObjectName("FindPlanet");
  setWindowTitle("Find Planet");
  Label1 = NewCaption("Choose a planet from the List, then click Goto", this);
  Label1->setObjectName("Label1");
  PlanetList = new QComboBox(this);
  PlanetList->setObjectName("PlanetList");
  PlanetList->setEditable(true);
  NameBox(*PlanetList, tr("Planet"));
  PlanetList->setInsertPolicy(QComboBox::NoInsert);
  PlanetList->setMinimumWidth(kListWidth);
  PlanetList->setMaximumWidth(kWidestList);
  OfferCompletions(*PlanetList);
  PlanetList->completer()->popup()->installEventFilter(this);
  Check1 = new QCheckBox("Show Planet Details?", this);
  Check1->setObjectName("Check1");
  Command1 = NewButton("Command1", "Goto", this);
  Command1->setDefault(true);
  Command2 = NewButton("Command2", "Cancel", this);

  LayOut();
  connect(Check1, &QCheckBox::toggled, this, &FindPlanet::Check1_Click);
  connect(Command1, &QPushButton::clicked, this, &FindPlanet::Command1_Click);
  connect(Command2, &QPushButton::clicked, this, &FindPlanet::Command2_Click);
}

// The completions open below the list, where they may cover nothing.
void FindPlanet::LayOut() {
  auto* grid = new QGridLayout(this);
  grid->addWidget(Label1, 0, 0);
  grid->addWidget(PlanetList, 1, 0);
  grid->addWidget(Command1, 0, 1);
  grid->addWidget(Command2, 1, 1);
  grid->addWidget(Check1, 2, 1);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void FindPlanet::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) FillPlanetList();
  QDialog::showEvent(event);
}

// What was typed or chosen last stays, unless another game has been loaded since.
void FindPlanet::FillPlanetList() {
  QStringList entries;
  for (const std::string& entry : PlanetEntries(session_)) entries << ToQString(entry);
  if (entries != EntriesOf(*PlanetList)) {
    PlanetList->clear();
    PlanetList->addItems(entries);
    PlanetList->setCurrentIndex(-1);
    PlanetList->clearEditText();
  }
  PlanetList->setFocus();
  PlanetList->lineEdit()->selectAll();
}

// The entry that was chosen, from 0; -1 when a name was typed instead.
int FindPlanet::ChosenRow() const {
  const int row = PlanetList->currentIndex();
  return row >= 0 && PlanetList->itemText(row) == PlanetList->currentText() ? row : -1;
}

// The completions would keep Enter and Tab to themselves even where none of them is chosen. What
// was typed is complete then, and the key means what it means in the dialog.
bool FindPlanet::eventFilter(QObject* target, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(target, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool endsTyping = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab;
  QAbstractItemView& completions = *PlanetList->completer()->popup();
  if (!endsTyping || completions.currentIndex().isValid()) {
    return QDialog::eventFilter(target, event);
  }
  completions.hide();
  QApplication::sendEvent(PlanetList->lineEdit(), event);
  return true;
}

void FindPlanet::Check1_Click() { ShowFoundDetails = Check1->isChecked() ? 1 : 0; }

void FindPlanet::Command1_Click() {
  const std::string name = ToText(PlanetList->currentText());
  const int chosen = ChosenRow() + 1;
  SelectPlanet(state_, session_, chosen > 0 ? chosen : FindPlanetNamed(session_, name));
  if (state_.SelectedX == 0) prompts_.Inform("Planet " + name + " not found!");
  hide();
}

void FindPlanet::Command2_Click() { hide(); }

}  // namespace quorvane
