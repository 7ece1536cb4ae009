#include "ui/import_years.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "formats/game_files.h"
#include "loading/load_game.h"
#include "screens/typed_path.h"
#include "ui/controls.h"
#include "ui/file_chooser.h"
#include "ui/import_table.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(780, 460);
constexpr QSize kSmallestSize(580, 260);
constexpr int kStepsOfYear = 100;  // of the progress bar
constexpr qint64 kPatience = 50;   // milliseconds

std::string GameName(const GameChoice& game) {
  return TextFromPath(GameFile(game.MapFilePath, "").filename());
}

void KeepRoomWhenHidden(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
  widget.hide();
}

}  // namespace

ImportYears::ImportYears(const GameChoice& game, std::string myRaceName, std::vector<int> kept,
                         StoreYear store, Prompts& prompts, QWidget* parent)
    : QDialog(parent),
      game_(game),
      myRaceName_(std::move(myRaceName)),
      store_(std::move(store)),
      prompts_(prompts),
      folder_(game.MapFilePath.parent_path()),
      plan_(GameName(game), std::move(kept)) {
  setObjectName("ImportYears");
  setWindowTitle(tr("Import Earlier Years"));
  if (folder_.empty()) folder_ = ".";
  Build();
  ConnectControls();
}

// The table gives up a year that is just typed, and nobody is left to take it.
ImportYears::~ImportYears() { Table->disconnect(this); }

void ImportYears::Build() {
  auto* column = new QVBoxLayout(this);
  column->setSpacing(8);
  AddFolder(*column);
  Table = new ImportTable(this);
  ImportHint = NewCaption("", this);
  ImportHint->setObjectName("ImportHint");
  ImportHint->setWordWrap(true);
  column->addWidget(Table, 1);
  column->addWidget(ImportHint);
  AddButtons(*column);
  setMinimumSize(kSmallestSize);
  resize(kFirstSize.boundedTo(RoomOnScreen(*this)));
}

void ImportYears::AddFolder(QBoxLayout& column) {
  auto* row = new QHBoxLayout();
  QLabel* caption = NewCaption(tr("&Folder:"), this);
  ImportFolder = new FolderBox(this);
  ImportFolder->setObjectName("ImportFolder");
  ImportFolder->setAccessibleName(tr("Folder of the old files"));
  ImportFolder->setToolTip(
      tr("Type or paste the path of a folder, and press Enter.\n"
         "Its folders Backup, Backup1 ... and those named by year count, too"));
  ImportFolder->ShowFolder(folder_);
  caption->setBuddy(ImportFolder);
  ImportBrowse = NewButton("ImportBrowse", tr("&Browse ..."), this);
  row->addWidget(caption);
  row->addWidget(ImportFolder, 1);
  row->addWidget(ImportBrowse);
  column.addLayout(row);
}

void ImportYears::AddButtons(QBoxLayout& column) {
  auto* row = new QHBoxLayout();
  ImportProgress = new QProgressBar(this);
  ImportProgress->setObjectName("ImportProgress");
  ImportProgress->setAccessibleName(tr("Progress"));
  ImportCancel = NewButton("ImportCancel", tr("Cancel"), this);
  ImportStart = NewButton("ImportStart", tr("&Import"), this);
  ImportClose = NewButton("ImportClose", tr("Close"), this);
  row->addWidget(ImportProgress, 1);
  for (QPushButton* button : {ImportCancel, ImportStart, ImportClose}) row->addWidget(button);
  ImportStart->setDefault(true);
  ImportStart->setEnabled(false);
  KeepRoomWhenHidden(*ImportProgress);
  KeepRoomWhenHidden(*ImportCancel);
  column.addLayout(row);
}

void ImportYears::ConnectControls() {
  connect(ImportFolder, &FolderBox::PathEntered, this, &ImportYears::ImportFolder_Enter);
  connect(ImportBrowse, &QPushButton::clicked, this, &ImportYears::ImportBrowse_Click);
  connect(ImportStart, &QPushButton::clicked, this, &ImportYears::ImportStart_Click);
  connect(ImportCancel, &QPushButton::clicked, this, [this] { isStopped_ = true; });
  connect(ImportClose, &QPushButton::clicked, this, &ImportYears::reject);
  connect(Table, &ImportTable::Ticked, this, [this](int row, bool isIn) {
    plan_.Tick(static_cast<std::size_t>(row), isIn);
    ShowPlan();
  });
  connect(Table, &ImportTable::YearTyped, this, [this](int row, const QString& year) {
    plan_.TypeYear(static_cast<std::size_t>(row), ToText(year));
    ShowPlan();
  });
}

void ImportYears::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  Table->setFocus();
  QMetaObject::invokeMethod(this, &ImportYears::LookThrough, Qt::QueuedConnection);
}

void ImportYears::ImportFolder_Enter(const QString& typed) {
  if (ShowFolder(TypedPath(ToText(typed), folder_, ToPath(QDir::homePath())))) return;
  prompts_.Inform(ToText(tr("The folder %1 cannot be opened.").arg(typed)));
  ImportFolder->setText(typed);  // whatever became of it while the message was read
  ImportFolder->setFocus();
  ImportFolder->selectAll();
}

void ImportYears::ImportBrowse_Click() {
  const QString chosen =
      QFileDialog::getExistingDirectory(this, tr("Folder of the old files"), PathText(folder_));
  if (!chosen.isEmpty()) ShowFolder(ToPath(chosen));
}

// False for a folder that cannot be read.
bool ImportYears::ShowFolder(const std::filesystem::path& folder) {
  const QDir dir(PathText(folder));
  if (folder.empty() || !dir.exists() || !dir.isReadable()) return false;
  folder_ = ToPath(QDir::cleanPath(dir.absolutePath()));
  ImportFolder->ShowFolder(folder_);
  LookThrough();
  return true;
}

void ImportYears::LookThrough() {
  BeginWork(tr("Looking through the folder ..."));
  ImportProgress->setRange(0, 0);
  plan_.Take(FindEarlierYears(game_, folder_, [this] { return Answer(); }));
  ShowPlan();
  if (isStopped_) ImportHint->setText(tr("The folder was not looked through to its end"));
  EndWork();
}

void ImportYears::ShowPlan() {
  Table->ShowRows(plan_);
  const PlanHint hint = plan_.Hint();
  ImportHint->setText(ToQString(hint.Sentence));
  ImportStart->setEnabled(hint.CanBegin);
}

void ImportYears::ImportStart_Click() {
  ImportStart->setFocus();  // a key that presses it may leave a year half typed: it counts, too
  if (!plan_.Hint().CanBegin) return;
  const std::vector<std::size_t> rows = plan_.Ticked();
  const int planned = static_cast<int>(rows.size());
  int imported = 0;
  int failed = 0;
  BeginWork("");
  ImportProgress->setRange(0, planned * kStepsOfYear);
  for (const std::size_t row : rows) {
    ShowStep(row, imported + failed, planned);
    const Result<void> outcome =
        isStopped_ ? Failure{kLoadingStopped} : Import(row, imported + failed);
    if (outcome.Message() == kLoadingStopped) break;
    plan_.TakeOutcome(row, outcome);
    ++(outcome ? imported : failed);
    Table->ShowRows(plan_);
  }
  ShowPlan();
  ImportHint->setText(ToQString(ImportedText(imported, failed, planned)));
  ShowFailure(rows);
  EndWork();
}

// Brings the first row in sight that could not be imported.
void ImportYears::ShowFailure(const std::vector<std::size_t>& rows) {
  const auto failed =
      std::ranges::find_if(rows, [this](std::size_t row) { return plan_.Describe(row).IsFailed; });
  if (failed != rows.end()) Table->setCurrentItem(Table->topLevelItem(static_cast<int>(*failed)));
}

void ImportYears::ShowStep(std::size_t row, int done, int planned) {
  const QString sentence = tr("Reading %1, year %2 of %3 ...");
  ImportHint->setText(sentence.arg(plan_.Reports(row).Year).arg(done + 1).arg(planned));
  ImportProgress->setValue(done * kStepsOfYear);
  Table->setCurrentItem(Table->topLevelItem(static_cast<int>(row)));
  QApplication::processEvents();
  sinceAnswer_.restart();
}

Result<void> ImportYears::Import(std::size_t row, int done) {
  const EarlierYear& reports = plan_.Reports(row);
  const Progress progress = {
      .ShowValue =
          [this, done](int value, int maximum) {
            const int step =
                maximum > 0 ? static_cast<int>(qint64{kStepsOfYear} * value / maximum) : 0;
            ImportProgress->setValue(done * kStepsOfYear + step);
          },
      .AskStopped = [this] { return Answer(); }};
  const auto loaded = LoadGame(reports.Choice, reports.HasOwnReport ? myRaceName_ : "", progress);
  return loaded ? store_(*loaded) : loaded.Error();
}

// Until the work ends, the user can only stop it.
void ImportYears::BeginWork(const QString& sentence) {
  isAtWork_ = true;
  isStopped_ = false;
  hadFocus_ = focusWidget();
  ImportHint->setText(sentence);
  ImportProgress->show();
  ImportCancel->show();
  ImportCancel->setFocus();
  ImportFolder->setEnabled(false);
  for (QPushButton* button : {ImportBrowse, ImportStart, ImportClose}) button->setEnabled(false);
  Table->SetFixed(true);
  sinceAnswer_.start();
}

void ImportYears::EndWork() {
  isAtWork_ = false;
  ImportFolder->setEnabled(true);
  for (QPushButton* button : {ImportBrowse, ImportClose}) button->setEnabled(true);
  Table->SetFixed(false);
  const bool canGoBack = hadFocus_ != nullptr && hadFocus_->isEnabled();
  (canGoBack ? hadFocus_.data() : ImportClose)->setFocus();
  ImportProgress->hide();
  ImportCancel->hide();
  if (closesBehind_) reject();
}

// Lets the windows answer, and tells whether the user has stopped the work.
bool ImportYears::Answer() {
  if (!isStopped_ && sinceAnswer_.elapsed() >= kPatience) {
    QApplication::processEvents();
    sinceAnswer_.restart();
  }
  return isStopped_;
}

void ImportYears::reject() {
  if (isAtWork_) {
    isStopped_ = true;
  } else {
    QDialog::reject();
  }
}

void ImportYears::closeEvent(QCloseEvent* event) {
  closesBehind_ = isAtWork_;
  QDialog::closeEvent(event);  // ends in reject
}

}  // namespace quorvane
