#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "model/field_value.h"

namespace quorvane {

/// The 37 fields of a player by number. The empire data file and the statistics window count in
/// these numbers.
enum class PlayerField : std::size_t {
  Name = 1,
  LargePlanets,  // owned planets with a population above 245000
  PlanetsOwned,
  TotalPopulation,
  TotalMines,
  TotalFactories,
  TotalResources,
  GravMin,  // g
  GravMax,
  TempMin,  // -200 … 200
  TempMax,
  RadMin,  // 0 … 100
  RadMax,
  Territory,  // grid points held; square light years with new-style reports
  TotalIron,  // stored on the owned planets, in thousands of kT
  TotalBora,
  TotalGerm,
  ColourSlot,  // 1 … 16; 0: no colour
  GravImmune,  // 1: immune
  TempImmune,
  RadImmune,
  PrimaryTrait,
  LesserTraits,    // the first of 14 flags, 0 or 1 each
  NotesText = 37,  // the user's notes on the race
};

inline constexpr std::size_t kPlayerFieldCount = 37;
inline constexpr std::size_t kLesserTraitCount = 14;

/// What is known of one player (one race).
class PlayerRecord {
 public:
  /// A field by its number, 1 … 37.
  FieldValue& Field(std::size_t number) { return fields_.at(number); }
  const FieldValue& Field(std::size_t number) const { return fields_.at(number); }
  FieldValue& operator[](PlayerField field) { return Field(static_cast<std::size_t>(field)); }
  const FieldValue& operator[](PlayerField field) const {
    return Field(static_cast<std::size_t>(field));
  }

  /// The flag of a lesser trait 0 … 13: 1 where the race has it.
  FieldValue& Trait(std::size_t trait) {
    return Field(NumberOf(PlayerField::LesserTraits) + trait);
  }
  const FieldValue& Trait(std::size_t trait) const {
    return Field(NumberOf(PlayerField::LesserTraits) + trait);
  }
  /// Whether the race is immune to gravity (0), temperature (1) or radiation (2): 1 where it is.
  FieldValue& Immunity(std::size_t kind) { return Field(NumberOf(PlayerField::GravImmune) + kind); }
  const FieldValue& Immunity(std::size_t kind) const {
    return Field(NumberOf(PlayerField::GravImmune) + kind);
  }

  const std::string& Name() const { return (*this)[PlayerField::Name].Text(); }
  /// The player's slot in the race colours, 1 … 16; 0: no colour, the player is not drawn.
  int ColourSlot() const { return static_cast<int>((*this)[PlayerField::ColourSlot].Number()); }

  bool operator==(const PlayerRecord&) const = default;

 private:
  static std::size_t NumberOf(PlayerField field) { return static_cast<std::size_t>(field); }

  std::array<FieldValue, kPlayerFieldCount + 1> fields_;  // 0 is not used
};

}  // namespace quorvane
