#include "ui/overlay_bar.h"

#include <QActionGroup>
#include <QMenu>
#include <QSignalBlocker>

#include "screens/main_layout.h"
#include "ui/icons.h"
#include "ui/pixel_rect.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kIconSide = 26;
constexpr int kCaptionedIconSide = 18;
constexpr int kQvlButton = 10;
constexpr std::array kNames = {OverlayKind::NamesColoured, OverlayKind::NamesWhite};

bool HasButton(OverlayKind kind) { return static_cast<std::size_t>(kind) < kOverlayButtonCount; }

}  // namespace

OverlayBar::OverlayBar(QWidget& area, QMenu& menu) : QObject(&area) {
  AddItems(menu);
  for (int button = 0; button < static_cast<int>(kOverlayButtonCount); ++button) {
    AddButton(area, button);
  }
}

OverlaySwitches OverlayBar::Switches() const {
  OverlaySwitches switches;
  for (const OverlayTexts& overlay : kOverlayTable) {
    const auto index = static_cast<std::size_t>(overlay.Kind);
    switches.Set(overlay.Kind,
                 HasButton(overlay.Kind) ? OvButt[index]->isChecked() : items_[index]->isChecked());
  }
  return switches;
}

void OverlayBar::Show(const OverlaySwitches& switches) {
  for (const OverlayTexts& overlay : kOverlayTable) {
    const auto index = static_cast<std::size_t>(overlay.Kind);
    const bool isOn = switches.IsOn(overlay.Kind);
    if (HasButton(overlay.Kind)) {
      OvButt[index]->setChecked(isOn);
    } else {
      items_[index]->setChecked(isOn);
    }
  }
}

void OverlayBar::ShowZoom(bool isZoomed) {
  const auto zoom = static_cast<std::size_t>(OverlayKind::ZoomIn);
  const QSignalBlocker notSwitched(OvButt[zoom]);
  OvButt[zoom]->setChecked(isZoomed);
  items_[zoom]->setChecked(isZoomed);
}

void OverlayBar::EnableButtons(int end, bool isEnabled) {
  for (int button = 0; button < end; ++button) {
    OvButt[static_cast<std::size_t>(button)]->setEnabled(isEnabled);
  }
}

void OverlayBar::EnableNewReportItems(bool isEnabled) {
  Item(OverlayKind::ValueAfterTerraforming).setEnabled(isEnabled);
  Item(OverlayKind::CompleteStargateNetwork).setEnabled(isEnabled);
}

void OverlayBar::AddButton(QWidget& area, int index) {
  const OverlayTexts& texts = kOverlayTable[static_cast<std::size_t>(index)];
  auto* button = new QToolButton(&area);
  button->setObjectName(IndexedName("OvButt", index));
  button->setProperty("overlay", true);
  button->setCheckable(true);
  button->setEnabled(false);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setToolTip(ToQString(texts.ButtonToolTip));
  button->setGeometry(PixelRect(OverlayButtonRect(index)));
  const int iconSide = texts.ButtonCaption.empty() ? kIconSide : kCaptionedIconSide;
  button->setIcon(OverlayIcon(index, iconSide));
  button->setIconSize({iconSide, iconSide});
  if (texts.ButtonCaption.empty()) {
    button->setAccessibleName(ToQString(texts.ButtonToolTip));
  } else {
    button->setText(ToQString(texts.ButtonCaption));
    button->setToolButtonStyle(index == kQvlButton ? Qt::ToolButtonTextUnderIcon
                                                   : Qt::ToolButtonTextBesideIcon);
  }
  connect(button, &QToolButton::toggled, this, [this, index] { OvButt_Click(index); });
  OvButt[static_cast<std::size_t>(index)] = button;
}

void OverlayBar::AddItems(QMenu& menu) {
  QAction* clear = AddItem(menu, OverlayKind::ClearMap);
  QAction* zoom = AddItem(menu, OverlayKind::ZoomIn);
  clear->setShortcut(Qt::CTRL | Qt::Key_X);
  zoom->setShortcut(Qt::CTRL | Qt::Key_Z);
  connect(clear, &QAction::triggered, this, &OverlayBar::mnuToolBarButClear_Click);
  connect(zoom, &QAction::triggered, this, &OverlayBar::mnuToolBarButZoom_Click);
  QMenu& toolbar = *menu.addMenu("Toolbar Overlays");
  for (int button = 2; button < static_cast<int>(kOverlayButtonCount); ++button) {
    QAction* item = AddItem(toolbar, static_cast<OverlayKind>(button));
    item->setIcon(OverlayIcon(button, kCaptionedIconSide));
    connect(item, &QAction::triggered, this, [this, button] { mnuToolBarBut_Click(button); });
  }
  QMenu& others = *menu.addMenu("Other Overlays");
  for (std::size_t other = kOverlayButtonCount; other < kOverlayCount; ++other) {
    AddItem(others, static_cast<OverlayKind>(other));
  }
  EnableNewReportItems(false);
  // At most one kind of names is shown.
  auto* names = new QActionGroup(this);
  names->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
  for (const OverlayKind kind : kNames) {
    names->addAction(&Item(kind));
    connect(&Item(kind), &QAction::triggered, this, &OverlayBar::mnuNames_Click);
  }
  for (std::size_t other = kOverlayButtonCount + kNames.size(); other < kOverlayCount; ++other) {
    connect(items_[other], &QAction::triggered, this, &OverlayBar::mnuOther_Click);
  }
}

QAction* OverlayBar::AddItem(QMenu& menu, OverlayKind kind) {
  const OverlayTexts& texts = kOverlayTable[static_cast<std::size_t>(kind)];
  QAction* item = menu.addAction(ToQString(texts.MenuCaption));
  item->setObjectName(ToQString(texts.MenuName));
  item->setCheckable(true);
  items_[static_cast<std::size_t>(kind)] = item;
  return item;
}

void OverlayBar::OvButt_Click(int index) {
  const auto button = static_cast<std::size_t>(index);
  items_[button]->setChecked(OvButt[button]->isChecked());
  emit Switched(true);
}

void OverlayBar::mnuToolBarBut_Click(int index) {
  const auto button = static_cast<std::size_t>(index);
  OvButt[button]->setChecked(!OvButt[button]->isChecked());
}

}  // namespace quorvane
