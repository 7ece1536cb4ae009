#include "loading/report_survey.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

// name, owner, starbase, age, and with resources the fields up to them
std::string Line(const std::string& name, const std::string& owner, const std::string& age,
                 bool hasResources = false) {
  return name + "\t" + owner + "\t\t" + age + "\t" +
         (hasResources ? std::string(15, '\t') + "7\t" : "") + "\r\n";
}

class ReportSurveyTest : public testing::Test {
 protected:
  void Report(int row, const std::string& lines, const std::string& year = "2451",
              const std::string& included = "1") {
    const std::string name = "Demo.P" + std::to_string(row);
    folder.Write(name, lines);
    input.ReportFiles.at(static_cast<std::size_t>(row)) = {folder / name, included, year};
  }

  TempFolder folder;
  SurveyInput input = {.PlanetNames = {"Alpha", " Beta", "Gamma", "Delta"},
                       .ReportFiles = {},
                       .MyRaceRow = 1,
                       .GameYear = 2451};
};

TEST_F(ReportSurveyTest, TellsWhatEachReportTellsAsALoadReadsIt) {
  const std::string heading = "Planet Name\r\n";
  Report(1, heading + Line("Alpha", "Drask, Ltd", "0", true) + Line("Beta ", "Orrin", "Unknown") +
                Line("Beta", "Orrin", "4") + Line("Beta", "Orrin", "9"));
  Report(3,
         heading + Line("Alpha", "Drask, Ltd", "0") + Line("\"Gamma\"", "Orrin", "1", true) +
             Line("Delta" + std::string(4096, ' '), "", "0") + Line("Elsewhere", "Orrin", "0") +
             Line("Beta", "", "Unknown"),
         "2449");
  Report(4, heading + Line("Delta", "", "") + Line("Gamma", "", "1"), "0", "0");
  Report(5, heading);
  Report(6, "");
  input.ReportFiles[7].Path = folder / "Demo.P7";
  const ReportSurvey expected[] = {
      {},
      {true, "", "Drask, Ltd", 2, 1, 2.0},  // planet 2 by its first date
      {},
      // The comma ends an item, and Beta is lost at the end.
      {true, "", "Orrin", 2, 1, 2.5},
      {true, "", "", 2, 1, 1.0},  // counts itself though not ticked; no year is the game's
      {true, "", "", 0, 0, std::nullopt},
      {true, "line 1: the heading of a planet report was expected, the file is empty", "", 0, 0,
       std::nullopt},
      {true, "there is no such file", "", 0, 0, std::nullopt}};
  const ReportSurveys surveys = SurveyReports(input, {});
  for (std::size_t row = 1; row < std::size(expected); ++row) {
    const ReportSurvey& survey = surveys[row];
    EXPECT_EQ(survey, expected[row])
        << row << ": " << survey.Problem << "|" << survey.Race << "|" << survey.Planets << "|"
        << survey.OnlyHere << "|" << survey.AverageAge.value_or(-1);
  }
  input.GameYear = 0;
  EXPECT_EQ(SurveyReports(input, {})[3].AverageAge, 0.5) << "nobody knows what year it is";
}

TEST_F(ReportSurveyTest, KnowsNothingOnceItIsStopped) {
  Report(1, "Heading\r\n" + Line("Alpha", "", "0"));
  Report(2, "Heading\r\n" + Line("Alpha", "", "0"));
  int questions = 0;
  EXPECT_EQ(SurveyReports(input, [&] { return ++questions == 2; }), ReportSurveys());
}

}  // namespace
}  // namespace quorvane
