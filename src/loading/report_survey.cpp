#include "loading/report_survey.h"

#include <cstdint>
#include <deque>

#include "files/files.h"
#include "formats/report_file.h"
#include "loading/report_reading.h"

namespace quorvane {
namespace {

// A set of report rows.
using Rows = std::uint32_t;

Rows OnlyRow(int row) { return Rows{1} << row; }

// A message names the report first, which who reads the reason has before him. The name on the disk
// may differ in case, so only its length counts.
std::string ReasonIn(const std::string& message, const std::filesystem::path& path) {
  const std::size_t behindName = TextFromPath(path).size() + 2;  // ": " or ", "
  return message.size() > behindName ? message.substr(behindName) : message;
}

// The years that a report's own ages are short of.
double ReportAge(const SurveyInput& input, const ReportFileSlot& slot) {
  const double year = NumericValue(slot.Year);
  return year == 0 || input.GameYear == 0 ? 0 : input.GameYear - year;
}

class Surveyor {
 public:
  explicit Surveyor(const SurveyInput& input)
      : input_(input), index_(input.PlanetNames), tellers_(input.PlanetNames.size() + 1) {}

  void Read(int row) {
    const ReportFileSlot& slot = SlotOf(row);
    ReportSurvey& survey = SurveyOfRow(row);
    survey.IsDone = true;
    const Result<std::string> text = ReadReport(slot.Path);
    if (!text) {
      survey.Problem = ReasonIn(text.Message(), slot.Path);
      return;
    }
    std::deque<std::string> unquoted;
    UseLines(row, IsOwn(row) ? OwnReportLines(*text) : OtherReportLines(*text, unquoted));
    if (survey.AverageAge) *survey.AverageAge += ReportAge(input_, slot);
  }

  // Counts what each report tells, when all are read.
  ReportSurveys Finish() {
    Rows loaded = 0;
    for (int row = 1; row <= kMaxPlayers; ++row) {
      if (IsReportTicked(SlotOf(row), IsOwn(row))) loaded |= OnlyRow(row);
    }
    for (const Rows tellers : tellers_) {
      for (int row = 1; row <= kMaxPlayers; ++row) {
        const Rows own = OnlyRow(row);
        if ((tellers & own) == 0) continue;
        ++SurveyOfRow(row).Planets;
        if ((tellers & (loaded | own)) == own) ++SurveyOfRow(row).OnlyHere;
      }
    }
    return surveys_;
  }

 private:
  const ReportFileSlot& SlotOf(int row) const {
    return input_.ReportFiles.at(static_cast<std::size_t>(row));
  }
  ReportSurvey& SurveyOfRow(int row) { return surveys_.at(static_cast<std::size_t>(row)); }
  bool IsOwn(int row) const { return row == input_.MyRaceRow; }

  void UseLines(int row, const std::vector<std::string_view>& lines) {
    ReportSurvey& survey = SurveyOfRow(row);
    std::vector<bool> isDated(tellers_.size());
    int dated = 0;
    double years = 0;
    UseReportLines(index_, lines, [&](int number, const ReportLine& line) {
      const auto planet = static_cast<std::size_t>(number);
      tellers_[planet] |= OnlyRow(row);
      const std::string_view owner = line.Text(ReportField::Owner);
      if (!owner.empty() && line.Number(ReportField::Resources) > 0) survey.Race = owner;
      const std::optional<double> age = line.Age();
      if (!age || isDated[planet]) return;
      isDated[planet] = true;
      years += *age;
      ++dated;
    });
    if (dated > 0) survey.AverageAge = years / dated;
  }

  const SurveyInput& input_;
  PlanetIndex index_;
  std::vector<Rows> tellers_;  // of each planet, the reports that name it
  ReportSurveys surveys_;
};

}  // namespace

SurveyInput SurveyOf(const GameSession& session, const GameChoice& next) {
  SurveyInput input = {.PlanetNames = {},
                       .ReportFiles = next.ReportFiles,
                       .MyRaceRow = next.MyRaceRow,
                       .GameYear = next.GameYear};
  input.PlanetNames.reserve(static_cast<std::size_t>(session.PlanetCount));
  for (const PlanetRecord& planet : session.Planets()) input.PlanetNames.push_back(planet.Name());
  return input;
}

ReportSurveys SurveyReports(const SurveyInput& input, const std::function<bool()>& isStopped) {
  Surveyor surveyor(input);
  for (int row = 1; row <= kMaxPlayers; ++row) {
    if (input.ReportFiles.at(static_cast<std::size_t>(row)).Path.empty()) continue;
    if (isStopped && isStopped()) return {};
    surveyor.Read(row);
  }
  return surveyor.Finish();
}

bool IsReportTicked(const ReportFileSlot& slot, bool isOwn) {
  return isOwn || FieldValue(slot.Included).ReadsAs(1);
}

}  // namespace quorvane
