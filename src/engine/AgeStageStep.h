#pragma once

#include "engine/Cells.h"
#include "model/Model.h"

#include <algorithm>
#include <array>

namespace vorlex {

/// One number for each stage, slot 0 unused.
using PerStage = std::array<double, kLastStageSlot + 1>;

inline constexpr PerStage kAllOnes = [] {
  PerStage factors{};
  factors.fill(1);
  return factors;
}();

/// Development and survival of one day: rows 1..lastAge of `to` from rows
/// 0..lastAge-1 of `from`; the oldest age has no successor. Each stage
/// keeps its stayers g x N and takes the inflow d x N of the stage before
/// it (the male, the last stage, from the stage before the female, at the
/// rate of the female's column), the inflow times `inflow` of the stage;
/// then the stage's `survival` of the day. Multiplying by 1 changes
/// nothing.
void developAges(int lastAge, int stages, const Cells& growth, const Cells& develop, const Cells& from,
                 const Cells& to, const PerStage& survival, const PerStage& inflow);

/// Ages first..last of one stage; no age when first > last.
struct AgeWindow {
  int first = 0;
  int last = -1;

  bool empty() const { return first > last; }
  bool holds(int age) const { return first <= age && age <= last; }
  AgeWindow within(AgeWindow other) const {
    return {std::max(first, other.first), std::min(last, other.last)};
  }
  AgeWindow joinedWith(AgeWindow other) const {
    if (empty())
      return other;
    if (other.empty())
      return *this;
    return {std::min(first, other.first), std::max(last, other.last)};
  }
  /// The ages one day older.
  AgeWindow older() const { return empty() ? *this : AgeWindow{first + 1, last + 1}; }
};

/// One window for each stage, slot 0 unused (and empty).
using AgeWindows = std::array<AgeWindow, kLastStageSlot + 1>;

/// Where the rates of a life table are not zero, stage by stage: the ages
/// whose individuals stay in their stage (g), and those whose individuals
/// move on (d, by the column of the rate; the male's inflow is the column
/// before the female's).
struct RateWindows {
  AgeWindows stay{};
  AgeWindows move{};
};

/// The windows of the rates of ages 0..lastAge-1, the ages that have a
/// successor.
RateWindows rateWindowsOf(int lastAge, int stages, const Cells& growth, const Cells& develop);

/// The ages of each stage of an (age, stage) matrix that hold a number
/// other than 0.
AgeWindows occupiedAges(int lastAge, int stages, const Cells& matrix);

/// Whether the windows hold half of the cells of ages 0..lastAge or more:
/// a walk row by row over the whole matrix is then the faster.
bool mostlyOccupied(int lastAge, int stages, const AgeWindows& ages);

/// developAges for a matrix `from` that holds numbers only inside the
/// windows `fromAges`, into a matrix `to` that holds numbers only inside
/// `toAges`: every cell of rows 1..lastAge comes out as developAges makes
/// it, while only the cells where the rates can carry individuals are
/// worked out and the others are set to 0 where they aren't already.
/// `toAges` becomes the windows of the new rows 1..lastAge: what row 0
/// holds is the caller's to add.
void developAgesInWindows(int lastAge, int stages, const Cells& growth, const Cells& develop,
                          const RateWindows& rates, const Cells& from, const AgeWindows& fromAges,
                          const Cells& to, AgeWindows& toAges, const PerStage& survival,
                          const PerStage& inflow);

} // namespace vorlex
