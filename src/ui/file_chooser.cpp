#include "ui/file_chooser.h"

#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QStyle>

#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// A list entry that keeps the folder it stands for.
constexpr int kPathRole = Qt::UserRole;
constexpr int kLeastDriveWidth = 80;  // whatever the length of its paths
constexpr int kLongestEntry = 480;    // pixels: so much of a path stands in a menu

QString NativePath(const std::filesystem::path& path) {
  return QDir::toNativeSeparators(PathText(path));
}

}  // namespace

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent) {
  connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* current) {
    if (current != nullptr && !isPressed_) emit Chosen();
  });
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
  isPressed_ = true;
  QListWidget::mousePressEvent(event);
}

// With the mouse an entry is chosen when the button comes up, so that a message box may follow.
void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (!isPressed_) return;
  isPressed_ = false;
  if (currentItem() != nullptr && itemAt(event->position().toPoint()) != nullptr) emit Chosen();
}

// The list makes its first entry the current one when it gets the focus. That is no choice yet; the
// space bar makes it one.
void ChoiceList::focusInEvent(QFocusEvent* event) {
  const QSignalBlocker noChoice(this);
  QListWidget::focusInEvent(event);
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  QListWidget::keyPressEvent(event);
  if (event->key() == Qt::Key_Space && currentItem() != nullptr) emit Chosen();
}

FolderList::FolderList(QWidget* parent) : QListWidget(parent) {
  setIconSize({16, 16});  // whatever size the desktop gives to lists
  connect(this, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* item) { Open(*item); });
}

bool FolderList::ShowFolder(const std::filesystem::path& folder) {
  const QDir dir(PathText(folder));
  if (folder.empty() || !dir.exists() || !dir.isReadable()) return false;
  folder_ = ToPath(QDir::cleanPath(dir.absolutePath()));
  clear();
  std::filesystem::path way;
  int depth = 0;
  for (const std::filesystem::path& step : folder_) {
    way /= step;
    if (way.has_root_name() && !way.has_root_directory()) continue;  // the drive's letter alone
    AddFolder(depth == 0 ? PathText(way) : PathText(step), PathText(way), depth, true);
    ++depth;
  }
  setCurrentRow(depth - 1);
  for (const QString& name :
       dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase)) {
    AddFolder(name, dir.absoluteFilePath(name), depth, false);
  }
  scrollToItem(currentItem());
  emit FolderChanged();
  return true;
}

// Enter is the list's own even where it opens nothing: the dialog would take it for its button.
void FolderList::keyPressEvent(QKeyEvent* event) {
  QListWidget::keyPressEvent(event);
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
}

void FolderList::Open(const QListWidgetItem& item) {
  const QString path = item.data(kPathRole).toString();
  if (!ShowFolder(ToPath(path))) emit FolderRefused(path);
}

void FolderList::AddFolder(const QString& name, const QString& path, int depth, bool isOnTheWay) {
  const QStyle::StandardPixmap icon =
      isOnTheWay ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon;
  auto* item = new QListWidgetItem(style()->standardIcon(icon),
                                   QString(qsizetype{2} * depth, ' ') + name, this);
  item->setData(kPathRole, path);
  item->setToolTip(PlainToolTip(QDir::toNativeSeparators(path)));
}

FolderBox::FolderBox(QWidget* parent) : QLineEdit(parent) {}

void FolderBox::ShowFolder(const std::filesystem::path& folder) {
  folder_ = NativePath(folder);
  setText(folder_);
}

// Enter is the box's own, as it is the list's.
void FolderBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  event->accept();
  emit PathEntered(text());
}

// A look at another window, from which a path may be copied, or the box's own menu is no leaving.
void FolderBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  if (!comesBack) setText(folder_);
}

RecentFoldersButton::RecentFoldersButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setMenu(new QMenu(this));
  menu()->setToolTipsVisible(true);  // of paths that are cut
  connect(menu(), &QMenu::aboutToShow, this, &RecentFoldersButton::FillMenu);
  setDisabled(true);
}

void RecentFoldersButton::ShowFolders(const std::vector<std::filesystem::path>& folders) {
  folders_ = folders;
  setDisabled(folders.empty());
}

void RecentFoldersButton::FillMenu() {
  menu()->clear();
  for (const std::filesystem::path& folder : folders_) {
    const QString path = NativePath(folder);
    const QString entry = menu()->fontMetrics().elidedText(path, Qt::ElideMiddle, kLongestEntry);
    QAction* action = menu()->addAction(WithoutAccessKeys(entry));
    action->setToolTip(PlainToolTip(path));
    connect(action, &QAction::triggered, this, [this, folder] { emit FolderChosen(folder); });
  }
}

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  setMinimumWidth(kLeastDriveWidth);
#if defined(Q_OS_WIN)
  for (const QFileInfo& drive : QDir::drives()) addItem(drive.path(), drive.path());
#else
  addItem("/", "/");
  addItem("Home (" + QDir::homePath() + ")", QDir::homePath());
  const QString wine = QDir::homePath() + "/.wine/drive_c";
  if (QDir(wine).exists()) addItem("C: (Wine)", wine);
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString root = volume.rootPath();
    if (root.startsWith("/media/") || root.startsWith("/mnt/") || root.startsWith("/run/media/")) {
      addItem(root, root);
    }
  }
#endif
}

void DriveList::SelectDriveOf(const std::filesystem::path& folder) {
  const QString path = QDir::fromNativeSeparators(PathText(folder));
  int best = -1;
  qsizetype bestLength = -1;
  for (int i = 0; i < count(); ++i) {
    const QString root = itemData(i).toString();
    const bool isAbove =
        path.compare(root, Qt::CaseInsensitive) == 0 ||
        path.startsWith(root.endsWith('/') ? root : root + '/', Qt::CaseInsensitive);
    if (isAbove && root.size() > bestLength) {
      best = i;
      bestLength = root.size();
    }
  }
  const QSignalBlocker noChoice(this);  // the folder stays
  if (best >= 0) setCurrentIndex(best);
}

std::filesystem::path DriveList::Drive() const { return ToPath(currentData().toString()); }

}  // namespace quorvane
