#include "ui/theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include "ui/menu_style.h"

// Resources in a static library are linked only when somebody asks for them by name.
static void LoadIcons() { Q_INIT_RESOURCE(icons); }

namespace quorvane {
namespace {

constexpr const char* kStyleSheet = R"(
QToolTip { color: #e8ebf0; background: #3a4150; border: 1px solid #5a6478; padding: 2px; }
QMenuBar { background: #20242c; }
QMenuBar::item { padding: 3px 9px; background: transparent; }
QMenuBar::item:selected { background: #3d6ea5; }
QMenuBar::item:disabled { color: #6d7686; }
QToolButton[overlay="true"] {
  background: #333a47; border: 1px solid #454e5f; border-radius: 4px; padding: 1px; }
QToolButton[overlay="true"]:hover { background: #404959; border-color: #5f6b80; }
QToolButton[overlay="true"]:checked { background: #3d6ea5; border-color: #6fa0d8; }
QToolButton[overlay="true"]:focus { border-color: #8fb8e8; }
QToolButton[overlay="true"]:disabled {
  background: #2b303a; border-color: #353c48; color: #7a8495; }
QPushButton {
  background: #3a4250; border: 1px solid #505b6f; border-radius: 4px; padding: 4px 12px; }
QPushButton:hover { background: #455064; }
QPushButton:pressed { background: #2f3643; }
QPushButton:default { background: #3d6ea5; border-color: #6fa0d8; color: #ffffff; }
QPushButton:focus { border: 2px solid #ffffff; padding: 3px 11px; }
QPushButton[attention="true"] { background: #8a5a14; border-color: #d89a3c; color: #ffffff; }
QPushButton[attention="true"]:hover { background: #9c6819; }
QPushButton::menu-indicator {
  subcontrol-origin: padding; subcontrol-position: center right; right: 5px; bottom: 0px; }
QPushButton#RecentFolders { padding-right: 20px; }
QPushButton#RecentFolders:focus { padding-right: 19px; }
QPushButton:disabled { background: #2f3541; border-color: #3a4250; color: #7a8495; }
QTabWidget::pane { border: 1px solid #454e5f; top: -1px; background: #2b303b; }
QTabBar::tab {
  padding: 4px 12px; border: 1px solid #3a4250; border-bottom: none;
  border-top-left-radius: 3px; border-top-right-radius: 3px; background: #252a33; }
QTabBar::tab:selected { background: #3a4250; border-color: #55617a; }
QTabBar::tab:selected:focus { border-color: #ffffff; }
QTabWidget#Detail > QTabBar::tab { padding: 3px 5px; min-width: 20px; }
QListWidget#ShowHideList::item { padding: 2px; }
QRadioButton::indicator, QCheckBox::indicator, QListView::indicator, QTreeView::indicator {
  width: 13px; height: 13px; border: 1px solid #77829a; background: #1f232b; }
QRadioButton::indicator { border-radius: 7px; }
QCheckBox::indicator, QListView::indicator, QTreeView::indicator { border-radius: 3px; }
QRadioButton::indicator:checked { border-color: #8fb8e8; background: qradialgradient(
  cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
  stop: 0 #ffffff, stop: 0.5 #ffffff, stop: 0.62 #3d6ea5, stop: 1 #3d6ea5); }
QCheckBox::indicator:checked, QListView::indicator:checked, QTreeView::indicator:checked {
  border-color: #8fb8e8; background: #3d6ea5; image: url(:/icons/check.svg); }
QRadioButton::indicator:focus, QCheckBox::indicator:focus { border-color: #ffffff; }
QRadioButton::indicator:disabled, QCheckBox::indicator:disabled { border-color: #4a5366; }
QTreeView::indicator:disabled { border-color: #4a5366; background: #3a4250; }
QLabel[value="true"] { color: #ffffff; }
QPushButton[range="true"] {
  color: #ffffff; background: #1f232b; border: 1px solid #505b6f; border-radius: 3px;
  padding: 2px 6px 2px 9px; text-align: left; }
QPushButton[range="true"]:hover { border-color: #8fb8e8; }
QPushButton[range="true"]:focus { border-color: #ffffff; }
QPushButton[range="true"]:disabled { color: #7a8495; border-color: #3a4250; }
QLabel[title="true"] { color: #ffffff; font-size: 15pt; }
QLabel[heading="true"] { color: #9fb4d0; }
QLabel[fault="true"] { color: #ffb4a8; }
QLabel[note="true"] { color: #b9c4d6; background: rgba(16, 19, 25, 190); padding: 2px 6px; }
QListView#ChangesList::item { padding: 2px 3px; }
QFrame#YearBand { background: #54431c; border: none; border-bottom: 1px solid #e0b040; }
QLabel#BandYear { color: #ffe9b0; font-weight: bold; }
QFrame#ReloadBar { background: #2f3f55; border: none; border-bottom: 1px solid #6fa0d8; }
QLabel#MarkerNumber { color: #ffffff; font-weight: bold; padding: 1px 4px; }
QDockWidget {
  border: 1px solid #454e5f;
  titlebar-close-icon: url(:/icons/close.svg); titlebar-normal-icon: url(:/icons/float.svg); }
QDockWidget::title { background: #20242c; padding: 5px 8px; }
QScrollArea#KeyList { border: 1px solid transparent; }
QScrollArea#KeyList:focus { border-color: #ffffff; }
QDockWidget QTreeWidget, QTreeWidget#ImportTable { background: #1f232b; border: 1px solid #454e5f; }
QDockWidget QHeaderView::section, QTreeWidget#ImportTable QHeaderView::section {
  background: #333a47; border: none; padding: 2px 5px; }
QProgressBar {
  border: 1px solid #454e5f; border-radius: 3px; background: #1f232b; text-align: center; }
QProgressBar::chunk { background: #3d6ea5; border-radius: 2px; }
)";

QPalette DarkPalette() {
  const QColor window(0x2b, 0x30, 0x3b);
  const QColor base(0x1f, 0x23, 0x2b);
  const QColor button(0x37, 0x3e, 0x4c);
  const QColor text(0xdf, 0xe3, 0xea);
  const QColor faint(0x7a, 0x84, 0x95);
  const QColor accent(0x3d, 0x6e, 0xa5);
  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::Button, button);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x8f, 0xb8, 0xe8));
  palette.setColor(QPalette::ToolTipBase, button);
  palette.setColor(QPalette::ToolTipText, text);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  return palette;
}

}  // namespace

void ApplyTheme(QApplication& application) {
  LoadIcons();
  QApplication::setStyle(new MenuStyle("Fusion"));
  QApplication::setPalette(DarkPalette());
  QApplication::setFont(QFont("Arial", 9));
  application.setStyleSheet(kStyleSheet);
}

}  // namespace quorvane
