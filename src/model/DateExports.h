#pragma once

#include <cstdint>
#include <string>

namespace vorlex {

/// The four one-day exports of a run, each armed by its button on the main
/// form and written by the figure step at the end of the next run: the
/// total size (N), the stage sizes (Stage), the total consumption (C) and
/// the weighted size (W). A day of 0 means none; an armed flag is "Yes" or
/// "No"; the file is the path the dialog gave, the code the text the user
/// entered for this run.
struct DateExports {
  std::int16_t ExportDayN = 0;
  std::int16_t ExportDayStage = 0;
  std::int16_t ExportDayC = 0;
  std::int16_t ExportDayW = 0;
  std::string ExportN;
  std::string ExportStage;
  std::string ExportC;
  std::string ExportW;
  std::string ExportFileN;
  std::string ExportFileStage;
  std::string ExportFileC;
  std::string ExportFileW;
  std::string ExportCodeN;
  std::string ExportCodeStage;
  std::string ExportCodeC;
  std::string ExportCodeW;
};

} // namespace vorlex
