#pragma once

#include "engine/Cells.h"
#include "model/Model.h"

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

} // namespace vorlex
