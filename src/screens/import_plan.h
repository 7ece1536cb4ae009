#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "loading/earlier_years.h"

namespace quorvane {

/// What is told of old reports that can be imported.
struct ImportRow {
  std::string Name;
  std::string Year;     // as it is known or was typed; empty: not known
  std::string Source;   // what tells the year: "turn file"
  std::string Reports;  // "5 reports", "3 reports, yours is missing"
  std::string Note;     // what the user should know, or what became of the import
  std::string Whole;    // lines that tell all: folder, files, the whole note
  bool IsTicked = false;
  bool CanBeTicked = false;
  bool IsYearWrong = false;
  bool IsFailed = false;  // the import

  bool operator==(const ImportRow&) const = default;
};

/// What would happen, or what is in the way of it.
struct PlanHint {
  std::string Sentence;
  bool CanBegin = false;

  bool operator==(const PlanHint&) const = default;
};

/// Which of the found years are imported. At first these are all but those that are kept already,
/// that lack the user's own report, or whose year is not known.
class ImportPlan {
 public:
  /// @param kept  the years of the game that the history has
  ImportPlan(std::string gameName, std::vector<int> kept);

  /// Begins with what was found in another folder.
  void Take(std::vector<EarlierYear> found);

  std::size_t Count() const { return rows_.size(); }
  const EarlierYear& Reports(std::size_t row) const { return rows_.at(row).Found; }
  ImportRow Describe(std::size_t row) const;
  /// The ticked rows in their order.
  std::vector<std::size_t> Ticked() const;
  PlanHint Hint() const;

  /// Reports without a year cannot be ticked.
  void Tick(std::size_t row, bool isIn);
  /// The first year that reports get ticks them as if it had been known before; a text that is no
  /// year unticks them.
  void TypeYear(std::size_t row, const std::string& typed);
  /// Keeps what became of the import of a row: what was stored is kept from now on.
  void TakeOutcome(std::size_t row, const Result<void>& outcome);

 private:
  struct Row {
    EarlierYear Found;
    bool IsTicked = false;
    std::string Typed;  // where it is no year
    bool IsImported = false;
    std::string Failure;
  };

  bool IsKept(const Row& row) const;
  bool IsTickedAtFirst(const Row& row) const;
  std::string NoteOf(const Row& row) const;

  std::string gameName_;
  std::vector<int> kept_;
  std::vector<Row> rows_;
};

/// What an import tells in the end: "12 years imported", "5 of 12 years imported, 1 failed".
/// @param planned  as many as were ticked; the user may have stopped it before
std::string ImportedText(int imported, int failed, int planned);

}  // namespace quorvane
