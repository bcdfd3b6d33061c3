#pragma once

#include "charts/ChartContent.h"
#include "model/DateExports.h"
#include "model/EfficacyRow.h"
#include "model/Model.h"
#include "textio/FileTable.h"
#include "textio/Prompter.h"
#include "textio/ShortDate.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace vorlex {

/// Flags and marks of a session; texts are compared exactly.
struct RunFlags {
  std::string OptManagement = "OptNoControl";
  std::string GrowthMode = " ";
  std::string ControlFixedMark;
  std::string ControlAutoMark;
  std::string ExtraMortalityOption;
  std::string FlowFlag;
  std::string WithCxj;
  std::string WriteZeroFile = "Yes";
  std::string OnlyTotalFigures;
  std::string Physogastry;
  std::string WithCarryingCapacity = "No";
  std::string LifeTableLoaded;
};

/// Names of the files of a session, all made from the data file's name.
struct FileNames {
  std::string DataFileName;
  std::string BaseName;
  std::string FlowFileName;
  std::string ReportFileName;
  std::string HarvestFileName;
};

/// What the user sees of one control of a form: whether it can be clicked,
/// whether it shows, its caption, and the hint shown when the mouse rests
/// on it.
struct ControlState {
  bool enabled = false;
  bool visible = true;
  std::string caption;
  std::string hint;
};

/// Numbers of the files: the report and the flow record stay open.
inline constexpr int kWorkFile = 1;
inline constexpr int kReportFile = 2;
inline constexpr int kDataFile = 3;
inline constexpr int kFlowFile = 4;
/// The harvest file of growth with harvest, open during its run.
inline constexpr int kHarvestFile = 5;

/// One start of the program: the model, the flags, the open files and the
/// user to ask. Every routine works on the one session it is given.
class Session {
public:
  explicit Session(Prompter& prompter) : model_(std::make_unique<Model>()), prompter_(&prompter) {}

  Model& model() { return *model_; }
  const Model& model() const { return *model_; }
  /// Puts another model in the place of the session's and hands back the
  /// one it held: work that must leave the run's model as it stands does
  /// it on a copy.
  std::unique_ptr<Model> exchangeModel(std::unique_ptr<Model> other) {
    model_.swap(other);
    return other;
  }
  RunFlags flags;
  FileNames names;
  FileTable files;
  /// The one-day exports the main form's buttons armed.
  DateExports exports;
  /// The controls of the forms by name ("cmdRun", "Command5", ...), as the
  /// main form logic and the routines that touch them leave them.
  std::map<std::string, ControlState> controls;
  Prompter& prompter() { return *prompter_; }
  /// The date of the run as the report prints it; today unless the front
  /// end fixes it (reproducible reports).
  std::string shortDate = systemShortDate();
  /// The last day of the series a run filled: SimTime, or the day the
  /// population died out; -1 before a run.
  int lastDayReached = -1;
  /// What the chart of the main form shows.
  ChartContent mainChart;
  /// What the large chart of grafform shows.
  ChartContent largeChart;
  /// Positions in the chart cycles of the main form (0..34) and of grafform
  /// (0..7); a run leaves them where they were.
  std::int16_t ChartCycleIndex = 0;
  std::int16_t LargeChartCycleIndex = 0;
  /// Whether the size of each age on each day (AgeSize, PhysoAgeSize) stays
  /// in the model for a later projection of the session to add to. A
  /// session that projects once and ends, as a command-line run does, sums
  /// the ages of each day afresh and keeps the day's total alone: for the
  /// largest table 8 MB that nothing would read again.
  bool keepsAgeSizes = true;
  /// Whether grafform was loaded: its Form_Load runs on its first showing.
  bool largeGraphsLoaded = false;
  /// The efficacy of a treatment on each day, when the run was an
  /// optimisation of the control; empty otherwise.
  std::vector<EfficacyRow> efficacy;

  bool flowOn() const { return flags.FlowFlag == "Yes"; }
  /// Writes a print line to the flow record when it is on.
  template <typename... Items> void flow(const Items&... items) {
    if (flowOn())
      files.output(kFlowFile).print(items...);
  }

private:
  std::unique_ptr<Model> model_;
  Prompter* prompter_;
};

} // namespace vorlex
