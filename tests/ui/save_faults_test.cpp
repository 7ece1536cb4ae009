#include <memory>

#include "files/files.h"
#include "support/write_faults.h"
#include "ui/details_panel.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct Fault {
  const char* Reason;
  void (*Begin)(const fs::path& file);
  void (*End)(const fs::path& file);
};

std::unique_ptr<FullDisk> fullDisk;

const Fault kFaults[] = {
    {"Permission denied", [](const fs::path& file) { fs::permissions(file, fs::perms(0400)); },
     [](const fs::path& file) { fs::permissions(file, fs::perms(0600)); }},
    {"File too large", [](auto) { fullDisk = std::make_unique<FullDisk>(1); },
     [](auto) { fullDisk.reset(); }}};

struct SaveCommand {
  const char* Dialog;  // the menu item that opens it; empty: the main window saves
  const char* Control;
  const char* File;
  const char* Success;
  const char* Changed;  // the control where a key changes what is to be saved; empty: none
  Qt::Key Key;
};

const SaveCommand kCommands[] = {
    {"mnuMap", "RemRace", "Demo.QVR", "Your Race number has been remembered", "Player(3)",
     Qt::Key_Space},
    {"mnuMap", "SaveYears", "Demo.YRS", "Year Information saved", "TxtPxYear(1)", Qt::Key_2},
    {"mnuGrid2", "SaveInfo", "Demo.QVD", "Information Saved", "RaceNotes", Qt::Key_A},
    {"", "SaveQVL", "Demo.QVL", "Saved to ", "PlotBox", Qt::Key_C},
    {"", "mnuSaveRaceC", "Demo.QVC", "Current Colour settings saved", "", Qt::Key_unknown},
    {"", "mnuSave", "Demo Universe Map 2450.bmp", "Map saved to ", "OvButt(4)", Qt::Key_Space}};

// The ordinary user comes before the folder, which is thereby the user's own.
class SaveFaultsTest : private OrdinaryUser, public LoadedGameTest {
 protected:
  void ExpectToSurvive(const Fault& fault, const SaveCommand& command, QWidget& shown) {
    SCOPED_TRACE(std::string(command.Control) + ": " + fault.Reason);
    WindowDriver at(shown);
    auto* button = shown.findChild<QWidget*>(command.Control);
    const auto run = [&] {
      button == nullptr ? at.Choose(command.Control) : at.Click(command.Control);
      return prompts.Shown();
    };
    if (*command.Changed != '\0') QTest::keyClick(&at.Find(command.Changed), command.Key);
    if (button != nullptr) button->setFocus();
    const fs::path file = folder.Write(command.File, "old");
    const auto files = FilesNamedLike(folder.Path(), "", "");
    const QImage picture = shown.grab().toImage();

    fault.Begin(file);
    const Texts told = run();
    fault.End(file);
    // The picture alone is told to be saved first.
    EXPECT_EQ(told.size(), command.Control == std::string("mnuSave") ? 2U : 1U);
    EXPECT_TRUE(told.back().starts_with(TextFromPath(file) + ": ")) << told.back();
    EXPECT_NE(told.back().find(fault.Reason), std::string::npos) << told.back();
    EXPECT_EQ(folder.Read(command.File), "old");
    EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), files);
    EXPECT_TRUE(shown.grab().toImage() == picture);

    EXPECT_TRUE(run().back().starts_with(command.Success));
    EXPECT_NE(folder.Read(command.File), "old");
  }
};

TEST_F(SaveFaultsTest, LeaveFileAndGameAsTheyWereAndAllIsSavedOnceTheyAreOver) {
  InNextDialog(
      [](QWidget& dialog) { WindowDriver(dialog).Press("RedSlide", Qt::Key_Left).Click("butOK"); });
  driver.ClickAt("RaceC(0)", {5, 5});
  window.Detail->setCurrentWidget(window.Detail->Tools);
  for (const SaveCommand& command : kCommands) {
    const auto survive = [&](QWidget& shown) {
      for (const Fault& fault : kFaults) ExpectToSurvive(fault, command, shown);
      if (&shown != &window) QTest::keyClick(&shown, Qt::Key_Escape);
    };
    if (*command.Dialog == '\0') {
      survive(window);
    } else {
      InNextDialog(survive);
      driver.Choose(command.Dialog);
    }
  }
}

}  // namespace
}  // namespace quorvane
