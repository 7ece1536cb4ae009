#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <filesystem>
#include <vector>

namespace quorvane {

/// A list whose entries are chosen with one click, the arrow keys or the space bar.
class ChoiceList : public QListWidget {
  Q_OBJECT

 public:
  explicit ChoiceList(QWidget* parent = nullptr);

 signals:
  /// The user chose the current entry, again or anew.
  void Chosen();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool isPressed_ = false;
};

/// The folders on the way to the shown folder, and those inside it. A double click or Enter opens
/// one.
class FolderList : public QListWidget {
  Q_OBJECT

 public:
  explicit FolderList(QWidget* parent = nullptr);

  /// The folder shown; empty until one was.
  const std::filesystem::path& Folder() const { return folder_; }
  /// Shows a folder. @return false, changing nothing, for one that is missing or cannot be read
  bool ShowFolder(const std::filesystem::path& folder);

 signals:
  void FolderChanged();
  /// The user asked for a folder that cannot be shown.
  void FolderRefused(const QString& folder);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Open(const QListWidgetItem& item);
  void AddFolder(const QString& name, const QString& path, int depth, bool isOnTheWay);

  std::filesystem::path folder_;
};

/// The path of the folder on show. Another one can be typed or pasted, and is gone to with Enter;
/// who leaves the box without that finds the folder's path again.
class FolderBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit FolderBox(QWidget* parent = nullptr);

  void ShowFolder(const std::filesystem::path& folder);

 signals:
  void PathEntered(const QString& typed);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString folder_;
};

/// A button whose menu has the folders in which games were lately.
class RecentFoldersButton : public QPushButton {
  Q_OBJECT

 public:
  explicit RecentFoldersButton(const QString& caption, QWidget* parent = nullptr);

  /// Lists these folders, the first one on top. Without any, the button is disabled.
  void ShowFolders(const std::vector<std::filesystem::path>& folders);

 signals:
  void FolderChosen(const std::filesystem::path& folder);

 private:
  void FillMenu();

  std::vector<std::filesystem::path> folders_;
};

/// The drives of the system, or the places where a search for games can start.
class DriveList : public QComboBox {
  Q_OBJECT

 public:
  explicit DriveList(QWidget* parent = nullptr);

  /// Selects the drive that a folder lies on.
  void SelectDriveOf(const std::filesystem::path& folder);
  std::filesystem::path Drive() const;
};

}  // namespace quorvane
