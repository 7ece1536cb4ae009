#pragma once

#include <QAction>
#include <QToolButton>
#include <array>

#include "map/overlay_kind.h"

class QMenu;

namespace quorvane {

/// The overlay switches: the twelve toggle buttons above the map, and the check marks of the
/// overlay menu. A button and its menu item always agree; the state of the switches is theirs
/// alone.
class OverlayBar : public QObject {
  Q_OBJECT

 public:
  /// Creates the buttons in a window's client area and the items in the overlay menu.
  OverlayBar(QWidget& area, QMenu& menu);

  /// Which overlays the buttons and menu items show as on.
  OverlaySwitches Switches() const;
  /// Sets every button and menu item; each that changes acts as when it is clicked.
  void Show(const OverlaySwitches& switches);
  /// Shows whether the map is zoomed, when something else than the button has zoomed it.
  void ShowZoom(bool isZoomed);
  /// Enables buttons 0 up to, without, `end`; the menu items that mirror them stay as they are.
  void EnableButtons(int end, bool isEnabled = true);
  /// Enables the overlays that only new-style reports know: values after terraforming and the
  /// complete stargate network.
  void EnableNewReportItems(bool isEnabled);
  QAction& Item(OverlayKind kind) const { return *items_[static_cast<std::size_t>(kind)]; }

  std::array<QToolButton*, kOverlayButtonCount> OvButt = {};

 signals:
  /// A button or menu item changed; `isButton` when the map takes the focus.
  void Switched(bool isButton);

 private:
  void AddButton(QWidget& area, int index);
  void AddItems(QMenu& menu);
  QAction* AddItem(QMenu& menu, OverlayKind kind);
  void OvButt_Click(int index);
  void mnuToolBarBut_Click(int index);
  void mnuToolBarButClear_Click() { mnuToolBarBut_Click(0); }
  void mnuToolBarButZoom_Click() { mnuToolBarBut_Click(1); }
  void mnuNames_Click() { emit Switched(false); }
  void mnuOther_Click() { emit Switched(false); }

  std::array<QAction*, kOverlayCount> items_ = {};
};

}  // namespace quorvane
