#pragma once

#include "model/Table.h"
#include "textio/Value.h"

#include <cstdint>
#include <string>

namespace vorlex {

using i16 = std::int16_t;

/// Fixed bounds of every table; nothing is resized, but for the ages of the
/// sizes by age and day, narrowed to the table in hand at the load.
inline constexpr int kLastAgeSlot = 1005;  // ages 0..1005
inline constexpr int kLastStageSlot = 12;  // stages 1..12, slot 0 unused
inline constexpr int kLastDaySlot = 1005;  // days 0..1005
inline constexpr int kLastControlSlot = 10;
inline constexpr int kLastEffectiveDay = 10;
inline constexpr int kLastReleaseSlot = 100;
inline constexpr int kLastFactorSlot = 10;
inline constexpr int kMaxInitialRecords = 1000;
inline constexpr int kMaxReleaseRecords = 100;

/// The forms of ET(t) a data file can give, told apart by their description.
enum class EtForm { None, TwoPeriods, ThreePeriods, Logistic };

/// The age-stage, two-sex population model: the life table read from the
/// project data file, the control schedule, and every daily series a run
/// fills. One instance lives for the whole session and is never cleared.
///
/// Ages are x = 0..LastAge, stages j = 1..NrStage; stage NrStage-1 is the
/// female, NrStage the male, both develop out of stage NrStage-2. Integers
/// are 16-bit as the data file has them, real numbers doubles.
struct Model {
  // Scalars of the project.
  std::string ProjectName;
  Value ProjectDate;
  Value ProjectUser;
  i16 LastAge = 0;
  i16 NrStage = 0;
  i16 FemaleStage = 0;
  double FecundityDecrease = 0;
  double GrowthDecrease = 0;
  double DevelopDecrease = 0;
  double ConsumeDecrease = 0;
  i16 NrWeakFactor = 0;
  i16 NrControl = 0;
  i16 NrRelease = 0;
  double SamplingInterval = 0;
  double SamplingStageFrom = 0;
  double SamplingStageTo = 0;
  double PreviousCumWID = 0;
  double MeanFecundity = 0;
  double NetReproductiveRate = 0;
  double IntrinsicRate = 0;
  double FiniteRate = 0;
  double GenerationTime = 0;
  i16 LastAgeOfFile = 0;
  double DensityCoefBelowK = 0;
  double DensityCoefOverK = 0;
  double EtA = 0, EtB = 0, EtC = 0, EtD = 0, EtE = 0, EtF = 0, EtG = 0;
  /// The form of ET(t) the data file gave.
  EtForm EtSelector = EtForm::None;
  i16 SimTime = 60;
  i16 SimTimeNext = 61;
  double TimeUnit = 1;
  i16 ReleaseDate = 0;
  /// The description item read last.
  std::string Descriptionx;

  // Tables read from the data file.
  Table2<i16> StageAge{kLastStageSlot, 2};
  Table1<std::string> StageName{kLastStageSlot};
  Table1<double> WeighCoef{kLastStageSlot};
  Table1<double> DensityCoef{kLastStageSlot};
  Table2<double> WeighCoefAgeStage{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> DensityCoefAgeStage{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> Fecundity{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> GrowthRate{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> DevelopRate{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> DeathRate{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> Consumption{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> InitialN{kLastAgeSlot, kLastStageSlot};
  Table1<std::string> WeakFactorName{kLastFactorSlot};
  Table2<double> WeakCoef{kLastFactorSlot, kLastStageSlot};
  Table1<double> EtDay{kLastDaySlot};
  Table1<i16> ControlDate{kLastControlSlot};
  Table1<i16> CriticalDay{kLastControlSlot};
  Table1<std::string> ControlName{kLastControlSlot};
  Table1<double> ControlDuration{20};
  Table3<double> ControlMortality{kLastStageSlot, kLastEffectiveDay, kLastControlSlot};
  Table2<double> StageSurvivalDay{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> StageSurvivalDay0{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table1<Value> ReleaseDay{kLastReleaseSlot};
  Table3<double> ReleaseN{kLastReleaseSlot, kLastAgeSlot, kLastStageSlot};
  /// Scheduled additions of the projection.
  Table1<double> AddDay{20};

  // Tables derived at set-up.
  Table2<double> Lxj{kLastAgeSlot, kLastStageSlot};
  Table1<double> AgeX{kLastAgeSlot};
  Table1<double> Lx{kLastAgeSlot};
  Table1<double> Mx{kLastAgeSlot};
  Table1<double> MxCopy{kLastAgeSlot};
  Table1<double> Px{kLastAgeSlot};

  // Day 0 of a projection.
  i16 Day = 0;
  double InitialSize = 0;
  Table1<double> InitialAgeN{kLastAgeSlot};
  double TotalSizeStart = 0;
  double TotalSizeBase = 0;

  // Tables written by the run.
  Table2<double> PopN{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> NextN{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> PhysoN{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  Table2<double> NextPhysoN{Layout::ColumnByColumn, kLastAgeSlot, kLastStageSlot};
  // A day's ages are summed together: each day's column lies in one piece.
  Table2<double> AgeSize{Layout::ColumnByColumn, kLastAgeSlot, kLastDaySlot};
  Table2<double> PhysoAgeSize{Layout::ColumnByColumn, kLastAgeSlot, kLastDaySlot};
  Table2<double> StageSize{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> PhysoStageSize{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> StageFraction{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> PhysoStageFraction{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> StageGrowthLn{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> StageGrowthLog{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> PhysoStageGrowthLn{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table2<double> PhysoStageGrowthLog{Layout::ColumnByColumn, kLastStageSlot, kLastDaySlot};
  Table1<double> TotalSize{kLastDaySlot};
  Table1<double> StageSum{kLastDaySlot};
  Table1<double> PhysoTotalSize{kLastDaySlot};
  Table1<double> PhysoStageSum{kLastDaySlot};
  Table1<double> DailyWID{kLastDaySlot};
  Table1<double> PhysoDailyWID{kLastDaySlot};
  Table1<double> WeighedSize{kLastDaySlot};
  Table1<double> PhysoWeighedSize{kLastDaySlot};
  Table1<double> CUMWID{kLastDaySlot};
  Table1<double> PhysoCUMWID{kLastDaySlot};
  Table1<double> VulnerableSize{kLastDaySlot};
  Table1<double> VulnerableTotal{kLastDaySlot};
  Table1<double> PhysoVulnerableTotal{kLastDaySlot};
  Table1<double> TotalDifference{kLastDaySlot};
  Table1<double> TotalGrowthLn{kLastDaySlot};
  Table1<double> PhysoTotalGrowthLn{kLastDaySlot};
  Table1<double> StageSumGrowthLn{kLastDaySlot};
  Table1<double> StageSumGrowthLog{kLastDaySlot};
  Table1<double> BurstReadySize{kLastDaySlot};
  Table1<double> BurstReadyGrowthLn{kLastDaySlot};
  Table1<double> BurstReadyGrowthLog{kLastDaySlot};
  Table1<double> TotalConsumption{kLastDaySlot};
  Table1<double> CumuConsumption{kLastDaySlot};
  Table1<double> TotalCost{kLastDaySlot};
  Table1<double> TotalHarvest{kLastDaySlot};
  Table2<double> StageDeath{kLastDaySlot, kLastStageSlot};
  Table2<double> LogStageDeath{kLastDaySlot, kLastStageSlot};
  Table2<double> CumuStageDeath{kLastDaySlot, kLastStageSlot};
  Table2<double> LogCumuStageDeath{kLastDaySlot, kLastStageSlot};
  Table1<double> TotalDeath{kLastDaySlot};
  Table1<double> LogTotalDeath{kLastDaySlot};
  Table2<double> WeakSize{Layout::ColumnByColumn, 5, kLastDaySlot};
  Table1<double> CarryingCapacity{kLastDaySlot};
  Table1<double> DensityMortality{kLastDaySlot};
  Table1<double> DensityCoefBelowKDay{kLastDaySlot};
  Table1<double> DensityCoefOverKDay{kLastDaySlot};
  Table1<double> SizeToK{kLastDaySlot};
  // The carrying capacity's forms: the largest K of a polynomial or
  // parabola table, Kmax and r of the logistic, the polynomial's a and b
  // (kept as the text of the number read), c and d, the x grids with their
  // range and step, and the parabola's entered points and coefficients.
  double KTableMaximum = 0;
  double KMax = 0;
  double KRate = 0;
  std::string PolyA;
  std::string PolyB;
  double PolyC = 0;
  double PolyD = 0;
  double PolyXFrom = 0;
  double ParabolaXFrom = 0;
  double XTo = 0;
  double XStep = 0;
  Table1<double> PolyX{kLastDaySlot};
  Table1<double> ParabolaX{kLastDaySlot};
  double ParabolaY0 = 0;
  double ParabolaYMax = 0;
  double ParabolaXMax = 0;
  double ParabolaC = 0;
  double ParabolaB = 0;
  double ParabolaA = 0;
  Table1<i16> AutoControlDay{kLastDaySlot};
  Table1<double> SizeBeforeControl{kLastDaySlot};
  Table1<double> SizeAfterControl{kLastDaySlot};
  Table1<double> ControlGap{20};
  /// The weighed size in the stages' age ranges that the automatic rule
  /// compares with ET of the day.
  double AutoWeighedSum = 0;
  /// Set once the automatic rule's test is in the flow record; it is named
  /// there on its first call in a program run only.
  bool AutoControlTestInFlow = false;

  // Growth with harvest: the first and last harvest day, the day of each
  // entry (HarvestDay(i) = i on harvest days, else 0), the rearing cost of
  // a stage and whether it is harvested (1) or not; per day and stage the
  // number available and its cost.
  i16 HarvestFrom = 0;
  i16 HarvestTo = 0;
  Table1<i16> HarvestDay{200};
  Table1<double> RearingCost{kLastStageSlot};
  Table1<i16> HarvestStage{kLastStageSlot};
  Table2<double> HarvestNumber{kLastDaySlot, kLastStageSlot};
  Table2<double> HarvestCost{kLastDaySlot, kLastStageSlot};
  Table3<double> AutoControlSurvival{kLastStageSlot, 12, 5};

  // Parameters and results of the day step.
  i16 OverwinterStage = 0;
  i16 OverwinterDay = 0;
  double OverwinterMortality = 0;
  std::string OverwinterRandom;
  std::string OverwinterDrawn;
  i16 ExtraStage1 = 0;
  i16 ExtraFrom1 = 0;
  i16 ExtraTo1 = 0;
  double ExtraMortality1 = 0;
  i16 ExtraStage2 = 0;
  i16 ExtraFrom2 = 0;
  i16 ExtraTo2 = 0;
  double ExtraMortality2 = 0;
  std::string LowFecundity;
  i16 LowFecundityFrom = 0;
  i16 LowFecundityTo = 0;
  double LowFecundityFactor = 0;
  /// The mortalities as the user entered them when the fixed answer was
  /// given, 0 when random; and "No"/"Yes" for fixed/random extra mortality.
  /// Only the title page of the report reads them.
  double OverwinterMortalityInput = 0;
  double ExtraMortalityInput1 = 0;
  double ExtraMortalityInput2 = 0;
  std::string ExtraRandom1;
  std::string ExtraRandom2;
  /// DailyWID of the last day that was a critical day of a control.
  double WeighedAtCritical = 0;
  /// PhysoDailyWID of the last day projected.
  double PhysoWeighedLast = 0;
  Table2<double> PhysoWeakSize{Layout::ColumnByColumn, 5, kLastDaySlot};
  /// Number of the run in a series of runs; 0 for a single projection.
  i16 SeriesIndex = 0;

  // A series of runs, indexed by the run T (its treatment day).
  /// Weighed insect days of run T: the weighed size summed over its days.
  Table1<double> RunWID{kLastDaySlot};
  /// RunWID as it stood at the end of each day; the last day's stays.
  Table1<double> RunWIDCritical{kLastDaySlot};
  /// RunWIDCritical over WeighedAtCritical, and RunWID over DailyWID(Day)
  /// at the end of the run; -1 where the divisor is 0.
  Table1<double> RunWIDToCritical{kLastDaySlot};
  Table1<double> RunWIDToFinal{kLastDaySlot};
  /// Total size and sampled stages' size on the day of treatment, before
  /// it acts, and SamplingInterval days later.
  Table1<double> RunTotalBefore{kLastDaySlot};
  Table1<double> RunStageBefore{kLastDaySlot};
  Table1<double> RunTotalAfter{kLastDaySlot};
  Table1<double> RunStageAfter{kLastDaySlot};
  /// What the series of two treatments varies.
  std::string ScheduleTitle;

  // Report pages and plots.
  /// Number of controls the automatic rule has taken; 0 under every other
  /// strategy. The title page lists their days, AutoControlDay(1..).
  i16 NrAutoControl = 0;
  /// The age-stage table of the page being printed, and its title line.
  Table2<double> ReportMatrix{kLastAgeSlot, kLastStageSlot};
  std::string ReportMatrixTitle;
  /// The frame line of a character plot: "+" at columns 1, 6, ..., 56.
  std::string PlotScale = "+----+----+----+----+----+----+----+----+----+----+----+";
  /// The plot row being built, where its next mark goes (0 is column 1),
  /// the mark, and how many marks stand in each column 1..55 of the row.
  std::string PlotLine;
  double PlotPos = 0;
  std::string PlotMark;
  Table1<double> PlotHits{kLastDaySlot};
  /// Running number of the plot pages; never reset, so a further run of the
  /// same session goes on counting.
  double FigNumber = 0;
  /// An efficacy page: its two title lines, the labels above and below the
  /// plot, and its series by treatment day: untreated before (U) and after
  /// (V), treated (T), and the ratio whose complement is the efficacy. A
  /// value below 0 is no value and gets no mark.
  std::string EfficacyTitle1;
  std::string EfficacyTitle2;
  std::string EfficacyScaleLabel;
  std::string EfficacyAxisLabel;
  Table1<double> PlotU{kLastDaySlot};
  Table1<double> PlotV{kLastDaySlot};
  Table1<double> PlotT{kLastDaySlot};
  Table1<double> PlotEfficacy{kLastDaySlot};

  // Figure files and the total-predation file.
  /// Name part of the figure file being opened: BaseName + "-" + FigureSuffix + ".txt".
  std::string FigureSuffix;
  /// The whole ending of a matrix file, "-" and ".txt" included, behind BaseName.
  std::string FigureFileEnd;
  /// Path of the figure file opened last.
  std::string FigureFileName;
  /// Set once the opening of a figure file is in the flow record; it is
  /// named there the first time only in a program run.
  bool FigureOpenInFlow = false;
  /// Days of zero predation ahead of the total-predation file, as entered.
  i16 PredationLag = 0;
  /// What the total-predation file stands for, as entered; part of its name.
  std::string PredationDescription;
  /// Factor on the predation read from a total-predation file; 0 until one
  /// is read. Above 0 it shows in the titles of the total size files.
  double PredationCoef = 0;
  /// Rows of a total-predation file written with a lag.
  Table1<double> LaggedTime{kLastDaySlot};
  Table1<double> LaggedConsumption{kLastDaySlot};
  Table1<double> LaggedLogConsumption{kLastDaySlot};

  // Predation series read from a total-predation file.
  /// Total predation of each day as read from a total-predation file and
  /// scaled by the predation coefficient; the engine's predation series.
  Table1<double> PredationTotal{kLastDaySlot};
  /// log10(predation + 1) of each day, the file's third column, unscaled.
  Table1<double> PredationLog{kLastDaySlot};
  /// The prey vulnerable to the predator on each day of predation (weighed
  /// by the first susceptibility coefficient) and the share of them eaten.
  Table1<double> PredationVulnerable{kLastDaySlot};
  Table1<double> PredationDeathRatio{kLastDaySlot};
};

} // namespace vorlex
