#include "ui/planets_dock.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <utility>

#include "screens/table_text.h"
#include "ui/column_menu.h"
#include "ui/controls.h"
#include "ui/planet_list.h"
#include "ui/search_help.h"
#include "ui/search_line.h"
#include "ui/search_menu.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(460, 420);
constexpr int kGap = 4;

// The dock's content; the table alone would ask for more or less room, as its columns go.
class Content : public QWidget {
 public:
  using QWidget::QWidget;
  QSize sizeHint() const override { return kFirstSize; }
};

QString SummaryOf(std::size_t found, int all) {
  const QString planets = all == 1 ? QObject::tr("planet") : QObject::tr("planets");
  return QObject::tr("%1 of %2 %3").arg(found).arg(all).arg(planets);
}

}  // namespace

PlanetsDock::PlanetsDock(const GameSession& session, Changes changed, QWidget* parent)
    : QDockWidget(tr("Planets"), parent), session_(session), changed_(std::move(changed)) {
  setObjectName("PlanetsDock");
  setWidget(NewContent());
  ConnectParts();
  ShowSearches();
}

QWidget* PlanetsDock::NewContent() {
  auto* content = new Content(this);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(6, kGap, 6, kGap);
  column->setSpacing(kGap);
  column->addLayout(NewSearchRows(content));
  fault_ = NewCaption("", content);
  fault_->setObjectName("SearchFault");
  fault_->setWordWrap(true);
  fault_->setProperty("fault", true);
  fault_->hide();
  column->addWidget(fault_);
  List = new PlanetList(content);
  column->addWidget(List, 1);
  column->addLayout(NewButtonRows(content));
  return content;
}

QLayout* PlanetsDock::NewSearchRows(QWidget* content) {
  line_ =
      new SearchLine([this](std::string_view text,
                            std::size_t cursor) { return CompleteQuery(text, cursor, session_); },
                     content);
  line_->setAccessibleName(tr("Search"));
  line_->setPlaceholderText(tr("Search, for example  owner:none near<=150 terra>0"));
  searches_ = new SearchMenu(content);
  help_ = NewButton("SearchHelpButton", tr("?"), content);
  help_->setAccessibleName(tr("How to search"));
  help_->setToolTip(tr("How to search"));
  summary_ = NewValue("PlanetsSummary", content);
  auto* search = new QHBoxLayout();
  search->addWidget(line_, 1);
  search->addWidget(help_);
  auto* choice = new QHBoxLayout();
  choice->addWidget(searches_);
  choice->addStretch(1);
  choice->addWidget(summary_);
  auto* rows = new QVBoxLayout();
  rows->addLayout(search);
  rows->addLayout(choice);
  return rows;
}

QLayout* PlanetsDock::NewButtonRows(QWidget* content) {
  mark_ = new QCheckBox(tr("&Mark Found Planets"), content);
  mark_->setObjectName("PlanetsMark");
  mark_->setToolTip(tr("Ring the found planets on the map"));
  columns_ = NewButton("PlanetsColumns", tr("Col&umns"), content);
  columns_->setMenu(new ColumnMenu(columns_));
  copy_ = NewButton("PlanetsCopy", tr("Cop&y"), content);
  copy_->setToolTip(tr("Copy the selected rows (Ctrl+C), without any all of them"));
  export_ = NewButton("PlanetsExport", tr("&Export ..."), content);
  export_->setToolTip(tr("Save the rows and columns as they are shown, as CSV or TSV"));
  auto* buttons = new QHBoxLayout();
  for (QPushButton* button : {columns_, copy_, export_}) buttons->addWidget(button);
  buttons->addStretch(1);
  auto* rows = new QVBoxLayout();
  rows->addWidget(mark_);
  rows->addLayout(buttons);
  return rows;
}

void PlanetsDock::ConnectParts() {
  connect(line_, &QLineEdit::textChanged, this, &PlanetsDock::Line_Changed);
  connect(line_, &SearchLine::ListAsked, this, [this] {
    List->setFocus(Qt::TabFocusReason);
    List->ChooseFirst();
  });
  connect(searches_, &SearchMenu::Chosen, this, &PlanetsDock::Searches_Chosen);
  connect(searches_, &SearchMenu::SaveAsked, this, &PlanetsDock::SaveSearchAsked);
  // The menu is filled anew when one is removed, and is on its way up until then.
  connect(searches_, &SearchMenu::RemoveAsked, this, &PlanetsDock::RemoveSearchAsked,
          Qt::QueuedConnection);
  connect(help_, &QPushButton::clicked, this, &PlanetsDock::Help_Click);
  connect(mark_, &QCheckBox::toggled, this, &PlanetsDock::MarksChanged);
  connect(columns_->menu(), &QMenu::aboutToShow, this,
          [this] { List->FillColumnMenu(*columns_->menu()); });
  connect(copy_, &QPushButton::clicked, this, &PlanetsDock::Copy_Click);
  connect(export_, &QPushButton::clicked, this, &PlanetsDock::ExportAsked);
  connect(List, &PlanetList::PlanetChosen, this, &PlanetsDock::List_PlanetChosen);
  connect(List, &PlanetList::ZoomAsked, this, &PlanetsDock::ZoomAsked);
  connect(List, &PlanetList::MenuAsked, this, &PlanetsDock::MenuAsked);
  connect(List, &PlanetList::CopyAsked, this, &PlanetsDock::Copy_Click);
}

void PlanetsDock::ShowGame(int selected) {
  facts_ = FactsOf(session_);
  facts_.Selected = selected;
  TakeSearch();
  found_ = FindPlanets(*filter_, session_, facts_);
  List->ShowTable(FillPlanetTable(session_, facts_), found_);
  ShowFound();
  ShowSearches();
}

void PlanetsDock::ShowSelected(int selected) {
  const bool isOther = facts_.Selected != selected;
  facts_.Selected = selected;
  if (isOther) List->ShowWays(session_, selected, !isChoosing_);
  if (isChoosing_) return;  // rows do not move under the hand that chooses among them
  if (isOther && filter_ && filter_->AsksForSelected()) return Find();
  List->SelectPlanet(selected);
}

void PlanetsDock::ShowChanges() {
  if (!filter_ || !filter_->AsksForChanged()) return;
  facts_.Changed = changed_();
  Find();
}

void PlanetsDock::ShowOwnSearches(std::vector<PlanetSearch> own) {
  own_ = std::move(own);
  ShowSearches();
}

void PlanetsDock::ShowSearches() {
  searches_->ShowSearches(ReadyMadeSearches(session_.ReportStyle == kNewReportStyle), own_);
}

void PlanetsDock::Line_Changed() {
  const std::string before = good_;
  TakeSearch();
  if (good_ != before) Find();
}

// Reads the search as it is typed. One that cannot be read is marked, and the last one that could
// be stays in force.
void PlanetsDock::TakeSearch() {
  const std::string text = ToText(line_->text());
  auto made = PlanetFilter::Make(text, session_);
  const auto* fault = std::get_if<QueryFault>(&made);
  line_->ShowFault(fault != nullptr ? std::optional(*fault) : std::nullopt);
  fault_->setText(fault != nullptr ? ToQString(fault->Sentence) : QString());
  fault_->setVisible(fault != nullptr);
  if (fault == nullptr) good_ = text;
  // In another game the last one may name a race that is not there.
  for (const std::string& last : {good_, std::string()}) {
    if (std::holds_alternative<PlanetFilter>(made)) break;
    good_ = last;
    made = PlanetFilter::Make(last, session_);
  }
  filter_ = std::move(std::get<PlanetFilter>(made));
  facts_.Changed = filter_->AsksForChanged() ? changed_() : std::vector<bool>();
}

void PlanetsDock::Find() {
  found_ = FindPlanets(*filter_, session_, facts_);
  List->ShowFound(found_);
  ShowFound();
}

void PlanetsDock::ShowFound() {
  List->SelectPlanet(facts_.Selected);
  summary_->setText(SummaryOf(found_.size(), session_.PlanetCount));
  copy_->setEnabled(!found_.empty());
  export_->setEnabled(!found_.empty());
  emit MarksChanged();
}

std::vector<int> PlanetsDock::Marked() const {
  const bool isWanted = mark_->isChecked() && filter_ && !filter_->IsEmpty();
  return isWanted && !isHidden() ? found_ : std::vector<int>();
}

PlanetSearch PlanetsDock::Search() const {
  return {.Query = ToText(line_->text()), .Sorting = List->Sorting()};
}

void PlanetsDock::Searches_Chosen(const PlanetSearch& search) {
  line_->setText(ToQString(search.Query));
  if (!search.Sorting.empty()) List->SortBy(search.Sorting);
  List->scrollToTop();
  List->setFocus(Qt::OtherFocusReason);
}

void PlanetsDock::List_PlanetChosen(int planet) {
  const QScopedValueRollback choosing(isChoosing_, true);
  emit PlanetChosen(planet);
}

void PlanetsDock::Help_Click() {
  if (helpWindow_ == nullptr) {
    helpWindow_ = new SearchHelp(this);
    connect(helpWindow_, &SearchHelp::Chosen, line_, &QLineEdit::setText);
  }
  helpWindow_->show();
  helpWindow_->raise();
  helpWindow_->activateWindow();
}

void PlanetsDock::Copy_Click() {
  TableText text('\t');
  for (const auto& row : List->Cells(List->selectionModel()->hasSelection())) text.Row(row);
  QApplication::clipboard()->setText(ToQString(text.Text()));
}

void PlanetsDock::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QDockWidget::keyPressEvent(event);
  emit BackAsked();
}

}  // namespace quorvane
