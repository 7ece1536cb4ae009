// What the main window does about new files of its game: the news, reloads, and the reports dock.
#include <QAction>
#include <QApplication>
#include <QDateTime>

#include "formats/dialog_files.h"
#include "ui/details_panel.h"
#include "ui/grid.h"
#include "ui/long_step.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"
#include "ui/reload_bar.h"
#include "ui/reports_dock.h"
#include "ui/texts.h"

namespace quorvane {

// Network folders do not tell of changes.
void Main::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) watcher_.LookAgain();
}

void Main::Watcher_Began(const std::filesystem::path& map, const GameWatcher::Stamps& files) {
  if (map != session_.MapFilePath) return;  // another game was loaded since
  loadedFiles_ = files;
  files_ = files;
  dismissed_.clear();
  ShowNews();
  SurveyReports();
  if (const GameMemory* known = memories_.Find(session_.MapFilePath)) {
    GameMemory game = *known;
    game.Files = files;
    memories_.Keep(game);
  }
}

void Main::Watcher_Changed(const std::filesystem::path& map, const GameWatcher::Stamps& files) {
  if (map != session_.MapFilePath) return;
  files_ = files;
  ShowNews();
  SurveyReports();
  if (preferences_.Values().ReloadByItself) ReloadByItself();
}

void Main::ShowNews() {
  const std::vector<FileChange> changes = FindChanges(loadedFiles_, files_);
  if (changes.empty() || changes == dismissed_) {
    Bar->hide();
    return ShowBand();
  }
  const std::string news = DescribeChanges(changes, Loaded(), QDateTime::currentMSecsSinceEpoch());
  Bar->ShowNews(ToQString(news), PlanReload(next_, loadedFiles_, files_));
  ShowBand();
}

void Main::Bar_Dismissed() {
  dismissed_ = FindChanges(loadedFiles_, files_);
  ShowNews();
  Map->Universe->setFocus();
}

// Nobody is asked anything by this; what would have to be asked stays in the bar.
void Main::ReloadByItself() {
  const ReloadPlan plan = PlanReload(next_, loadedFiles_, files_);
  const bool isBusy =
      redraw_ != nullptr || lookBack_ || QApplication::activeModalWidget() != nullptr;
  const bool isNew = BringReports(FindChanges(loadedFiles_, files_));
  if (isNew && !isBusy && !plan.IsOwnYearAsked && !Unsaved().Any()) GameReload_Click();
}

void Main::GameReload_Click() {
  if (!session_.IsLoaded() || redraw_ != nullptr) return;
  ShowLoadedYear();
  files_ = watcher_.LookBeforeLoad(session_.MapFilePath).value_or(files_);
  ReloadPlan plan = PlanReload(next_, loadedFiles_, files_);
  const bool isToAsk = plan.IsOwnYearAsked && Bar->isHidden();
  if (isToAsk) {
    dismissed_.clear();
    ShowNews();
  }
  if (!Bar->isHidden()) Bar->TakeYears(plan);
  if (isToAsk || (plan.IsOwnYearAsked && plan.GameYear.empty())) {
    return Bar->AskForYear(session_.MyRaceRow);
  }
  if (const std::string problem = AcceptReload(plan); !problem.empty()) {
    return prompts_.Inform(problem);
  }
  if (MayLeaveGame()) Reload(plan.Choice);
}

// All that is on screen stays, but for what the reports say.
void Main::Reload(const GameChoice& choice) {
  const ShownState shown = Shown();
  const int destination = state_.Destination;
  const bool hadFocus = Bar->isAncestorOf(QApplication::focusWidget());
  if (!Load(choice, files_)) return;
  offered_ = session_;
  if (destination <= session_.PlanetCount) state_.Destination = destination;
  ShowAgain(shown);
  if (Detail->Planet() > 0) Detail->ShowPlanet(session_, Detail->Planet());
  if (grid_ != nullptr && grid_->isVisible()) grid_->Refresh(session_);
  if (hadFocus) Map->Universe->setFocus();
  RememberGame();
}

void Main::SurveyReports() {
  if (!ReportsDock->isHidden()) surveyor_.Ask(SurveyOf(Loaded(), next_));
  ShowReports();
}

void Main::ShowReports() {
  if (ReportsDock->isHidden()) return;
  ReportsDock->ShowRows(DescribeReports(Loaded(), next_, surveys_, files_));
}

void Main::ReportsDock_Ticked(int row, bool isIn) {
  next_.ReportFiles.at(static_cast<std::size_t>(row)).Included = isIn ? "1" : "0";
  SurveyReports();
}

// The year is kept for the open dialog, too, with those of the other reports.
void Main::ReportsDock_YearTyped(int row, const QString& year) {
  RowYears years = LoadYearsFile(next_.YearsFilePath).value_or(TypedYears(next_));
  years.at(static_cast<std::size_t>(row)) = ToText(year);
  if (const Result<void> saved = SaveYearsFile(next_.YearsFilePath, years); !saved) {
    prompts_.Inform(saved.Message());
  }
  next_.ReportFiles.at(static_cast<std::size_t>(row)).Year = ToText(year);
  SurveyReports();
}

}  // namespace quorvane
