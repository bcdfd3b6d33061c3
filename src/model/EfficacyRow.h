#pragma once

#include <optional>

namespace vorlex {

/// One run of a series that moves a treatment over the days: the run whose
/// treatment falls on day T, what it left, and the efficacy of the
/// treatment in per cent where it could be worked out.
struct EfficacyRow {
  int day = 0;
  double weighedInsectDays = 0;        // RunWID
  double weighedInsectDaysAtEnd = 0;   // RunWIDCritical
  std::optional<double> toCritical;    // RunWIDToCritical
  std::optional<double> toFinal;       // RunWIDToFinal
  double totalBefore = 0;              // RunTotalBefore
  double sampledBefore = 0;            // RunStageBefore
  double totalAfter = 0;               // RunTotalAfter
  double sampledAfter = 0;             // RunStageAfter
  std::optional<double> weighedEfficacy;         // on the weighed insect days
  std::optional<double> abbottEfficacy;          // Abbott, total population
  std::optional<double> hendersonTiltonEfficacy; // Henderson-Tilton, total population
};

} // namespace vorlex
