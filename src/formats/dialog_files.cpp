#include "formats/dialog_files.h"

#include "files/files.h"
#include "model/data_items.h"
#include "model/rounding.h"

namespace quorvane {

Result<std::string> YearsText(const RowYears& years) {
  DataItemWriter writer;
  for (std::size_t row = 1; row < years.size(); ++row) writer.Text(years[row]).EndRecord();
  return writer.Finish();
}

RowYears ParseYears(std::string_view text) {
  RowYears years;
  DataItemReader reader(text);
  for (std::size_t row = 1; row < years.size(); ++row) years[row] = reader.ReadText();
  return years;
}

Result<void> SaveYearsFile(const std::filesystem::path& path, const RowYears& years) {
  return SaveText(path, YearsText(years));
}

std::optional<RowYears> LoadYearsFile(const std::filesystem::path& path) {
  const Result<std::string> text = ReadTextFile(path);
  if (!text) return std::nullopt;
  return ParseYears(*text);
}

Result<void> SaveRememberedRace(const std::filesystem::path& path, int row) {
  DataItemWriter writer;
  writer.Number(row).EndRecord();
  return SaveText(path, writer.Finish());
}

std::optional<int> LoadRememberedRace(const std::filesystem::path& path) {
  const Result<std::string> text = ReadTextFile(path);
  if (!text) return std::nullopt;
  const int row = ToWhole32(DataItemReader(*text).ReadNumber());
  if (row < 1 || row > kMaxPlayers) return std::nullopt;
  return row;
}

}  // namespace quorvane
