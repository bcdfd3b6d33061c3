#include "engine/DayStep.h"

#include "engine/AgeStageStep.h"
#include "engine/Cells.h"
#include "model/Arithmetic.h"
#include "model/DensityMortality.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <chrono>
#include <random>
#include <vector>

namespace vorlex {

namespace {

// A cell of the fecundity table that lays eggs.
struct Fertile {
  int age;
  int stage;
  double fecundity;
};

double lnGrowth(double now, double before) { return naturalLog(now + 1) - naturalLog(before + 1); }
double logGrowth(double now, double before) { return log10Plus1(now) - log10Plus1(before); }

// ln(v + 1) of a size, kept from one day to the next: a day's size is the
// earlier size of the next day's growth, and the logarithm of the same
// number is the same number.
class LnOfSize {
public:
  double of(double size) {
    if (!known_ || std::bit_cast<std::uint64_t>(size) != std::bit_cast<std::uint64_t>(size_)) {
      ln_ = naturalLog(size + 1);
      size_ = size;
      known_ = true;
    }
    return ln_;
  }

private:
  double size_ = 0;
  double ln_ = 0;
  bool known_ = false;
};

// The total of the sizes of a day's ages, `sizes[0..lastAge]`, summed age
// by age in ascending order onto what it started from. Sizes that the
// session doesn't keep go back to zero once added. The sum advances one
// age at a time, so that it can run beside other sums that don't wait on
// it, and without a test of its addend: a size of 0 leaves it as it is.
class AgeTotal {
public:
  AgeTotal(double* sizes, int lastAge, double start, bool forget)
      : sizes_(sizes), last_(lastAge), total_(start), forget_(forget) {}

  void addNext() {
    if (at_ > last_)
      return;
    total_ += sizes_[at_];
    if (forget_)
      sizes_[at_] = 0;
    ++at_;
  }

  /// The total, once the ages not yet added are.
  double rest() {
    while (at_ <= last_)
      addNext();
    return total_;
  }

private:
  double* sizes_;
  int at_ = 0;
  int last_;
  double total_;
  bool forget_;
};

// One projection of days 1..SimTime+1. The steps of a day come in a fixed
// order. Every total is a sum of floating-point numbers, and each one takes
// its addends in the order of the stage-by-stage, age-by-age walk of the
// model, so that it comes out the same to the last bit:
// - a sum runs in a local variable that starts from what the series holds;
// - where each stage has a sum of its own, one walk over the ages fills
//   them all side by side, each still taking its ages in ascending order;
// - cells that only change their own value are walked age by age, the
//   order in which the matrices are stored.
// The records of a day are read from the next day's matrix: it equals
// today's once taken over, and it is what they read on a day that keeps
// the older matrix.
// Individuals of a stage live only at the ages where the rates bring
// them, so each matrix keeps, stage by stage, the window of ages outside
// which it holds nothing but zeros, and the walks stay inside it: a cell
// left out adds exactly 0 to a sum, which leaves the sum as it is. The
// shadow matrix of physogastry keeps whole windows.
class DayStep {
  using DaySizes = std::array<double, kLastAgeSlot + 1>;

public:
  DayStep(Session& session, const DayStepRules& rules)
      : session_(session), rules_(rules), m_(session.model()), lastAge_(m_.LastAge), stages_(m_.NrStage),
        physogastry_(rules.physogastry && session.flags.Physogastry == "Yes"),
        withCxj_(session.flags.WithCxj == "Yes"), n_(m_.PopN), next_(m_.NextN), physoN_(m_.PhysoN),
        nextPhysoN_(m_.NextPhysoN), growth_(m_.GrowthRate), develop_(m_.DevelopRate),
        fecundity_(m_.Fecundity), death_(m_.DeathRate), consumption_(m_.Consumption),
        weigh_(m_.WeighCoefAgeStage), density_(m_.DensityCoefAgeStage) {
    if (lastAge_ > m_.PopN.upper(0) || stages_ > m_.PopN.upper(1) || lastAge_ > m_.AgeSize.upper(0))
      raise(ErrorCode::SubscriptOutOfRange);
    rates_ = rateWindowsOf(lastAge_, stages_, growth_, develop_);
    nAges_ = occupiedAges(lastAge_, stages_, n_);
    nextAges_ = occupiedAges(lastAge_, stages_, next_);
    for (int j = 1; j <= stages_; ++j)
      allAges_[j] = {0, lastAge_};
    physoAges_ = allAges_;
    // Cells without fecundity add exactly nothing to the eggs of a day;
    // the fecundity table doesn't change during the run.
    for (int j = 1; j <= stages_; ++j)
      for (int x = 0; x <= lastAge_; ++x)
        if (fecundity_(x, j) != 0)
          fertile_.push_back({x, j, fecundity_(x, j)});
  }

  void run() {
    if (rules_.flowAtStart)
      session_.flow(rules_.flowAtStart);
    if (rules_.flowControlsHeading && session_.flowOn()) {
      session_.flow(rules_.flowControlsHeading, m_.NrControl);
      flowControlSchedule(session_);
    }
    const int lastDay = rules_.lastDay > 0 ? rules_.lastDay : checkedInt16(m_.SimTime + 1);
    int t = 1;
    for (; t <= lastDay; ++t) {
      m_.Day = static_cast<i16>(t);
      if (!projectDay(t))
        return;
    }
    m_.Day = checkedInt16(t);
  }

private:
  // One day; false when the population died out. A variant may move the
  // day on to the last one.
  bool projectDay(int& t) {
    // The day whose entries the step's results fill.
    const int s = rules_.resultsOneDayAhead ? t + 1 : t;
    if (s > m_.AgeSize.upper(1))
      raise(ErrorCode::SubscriptOutOfRange);
    const bool beyondSchedule = rules_.resultsOneDayAhead && s > m_.SimTime + 1;
    for (int j = 1; j <= stages_; ++j) {
      survival_[j] = rules_.survivalOfTheDay && !beyondSchedule ? m_.StageSurvivalDay(j, s) : 1;
      inflow_[j] = rules_.scheduledMortalities ? inflowSurvival(j, t) : 1;
    }
    echoSurvival_ = rules_.echoFirstControlDay && session_.flowOn() && t == m_.ControlDate(1);
    clearNext();
    if (rules_.scheduledMortalities)
      overwinter(t);
    reproduce(t);
    develop(t);
    if (rules_.releases)
      release(t);
    if (rules_.densityDependence)
      limitByCarryingCapacity(t);
    if (rules_.afterDensity)
      rules_.afterDensity(session_);
    m_.TotalSize(s) = 0;
    if (physogastry_)
      m_.PhysoTotalSize(t) = 0;
    consume(s);
    if (rules_.afterConsumption)
      rules_.afterConsumption(session_);
    // The records of the day sum the day's total beside the stages' sizes.
    const AgeTotal total = takeNextDay(s, !(rules_.keepMatrixOnSimTime && t == m_.SimTime), rules_.dayRecords);
    if (rules_.dayRecords)
      recordStages(s, total);
    else
      recordStageSizes(s);
    if (rules_.afterStageRecords)
      rules_.afterStageRecords(session_);
    if (rules_.cumulativeWeighedSize) {
      m_.CUMWID(t) = m_.CUMWID(t - 1) + m_.DailyWID(t);
      if (physogastry_)
        m_.PhysoCUMWID(t) = m_.PhysoCUMWID(t - 1) + m_.PhysoDailyWID(t);
    }
    if (rules_.criticalDay)
      for (int i = 1; i <= m_.NrControl; ++i)
        if (t == m_.CriticalDay(i))
          m_.WeighedAtCritical = m_.DailyWID(t);
    if (physogastry_)
      m_.PhysoWeighedLast = m_.PhysoDailyWID(t);
    if (rules_.dayRecords)
      recordFractions(t);
    if (rules_.skipAfterEmptyDay && m_.StageSum(t - 1) <= 0) {
      t = checkedInt16(m_.SimTime + 1);
      m_.Day = static_cast<i16>(t);
    }
    if (rules_.dayRecords)
      recordGrowthRates(t);
    if (rules_.deaths)
      m_.TotalDifference(t) = m_.TotalSize(t) - m_.TotalSize(t - 1);
    if (m_.TotalSize(s) <= 0) {
      stopOnExtinction(t);
      return false;
    }
    if (rules_.dayRecords)
      m_.TotalGrowthLn(t - 1) = lnGrowth(m_.TotalSize(t), m_.TotalSize(t - 1));
    if (physogastry_)
      m_.PhysoTotalGrowthLn(t - 1) = lnGrowth(m_.PhysoTotalSize(t), m_.PhysoTotalSize(t - 1));
    return true;
  }

  // Rows 1..LastAge of the next day's matrix are written whole by the
  // development step before anything reads them: the row of age 0 is the
  // one that needs clearing.
  void clearNext() {
    for (int j = 1; j <= stages_; ++j)
      next_(0, j) = 0;
  }

  // On the overwinter day the stage loses its share at every age but 0,
  // before it reproduces. A random share is drawn once per run.
  void overwinter(int t) {
    if (session_.flags.ExtraMortalityOption != "Yes" || t != m_.OverwinterDay)
      return;
    std::mt19937 random(
        static_cast<std::mt19937::result_type>(std::chrono::system_clock::now().time_since_epoch().count()));
    for (int x = 1; x <= lastAge_; ++x) {
      if (m_.OverwinterRandom == "Yes" && m_.OverwinterDrawn == "No") {
        const double uniform = static_cast<double>(random()) / 4294967296.0; // [0, 1)
        m_.OverwinterMortality = uniform * m_.OverwinterMortality;
        m_.OverwinterDrawn = "Yes";
      }
      m_.PopN(x, m_.OverwinterStage) = (1 - m_.OverwinterMortality) * m_.PopN(x, m_.OverwinterStage);
    }
  }

  // Eggs of the day, from the parents' stage survival of the day (or the
  // egg stage's, where the variant says so); the egg stage's own survival
  // does not touch them.
  void reproduce(int t) {
    if (echoSurvival_)
      for (int j = 1; j <= stages_; ++j)
        session_.flow("Day =", t, "Survival rat of stage ", j, " is ", survival_[j]);
    const bool lowered = rules_.scheduledMortalities && m_.LowFecundity == "Yes" &&
                         m_.LowFecundityFrom <= t && t <= m_.LowFecundityTo;
    const double factor = m_.LowFecundityFactor;
    double eggs = next_(0, 1);
    if (!rules_.eggsTakeParentSurvival)
      for (const Fertile& cell : fertile_)
        eggs += cell.fecundity * n_(cell.age, cell.stage) * survival_[1];
    else if (lowered)
      for (const Fertile& cell : fertile_)
        eggs += cell.fecundity * n_(cell.age, cell.stage) * factor * survival_[cell.stage];
    else
      for (const Fertile& cell : fertile_)
        eggs += cell.fecundity * n_(cell.age, cell.stage) * survival_[cell.stage];
    next_(0, 1) = eggs;
  }

  // The survival of the inflow into stage j on day t: the first extra
  // mortality rules outright while it runs, the second only outside it.
  double inflowSurvival(int j, int t) const {
    if (m_.ExtraFrom1 <= t && t <= m_.ExtraTo1)
      return j == m_.ExtraStage1 ? 1 - m_.ExtraMortality1 : 1;
    if (m_.ExtraFrom2 <= t && t <= m_.ExtraTo2 && j == m_.ExtraStage2)
      return 1 - m_.ExtraMortality2;
    return 1;
  }

  // Under physogastry the last immature stage's individuals ready to move
  // to the female stage are counted first, from today's matrix.
  void develop(int t) {
    const int m = stages_;
    if (physogastry_ && m - 2 >= 1) {
      double ready = m_.BurstReadySize(t);
      for (int x = 1; x <= lastAge_; ++x)
        ready += develop_(x, m - 2) * n_(x, m - 2);
      m_.BurstReadySize(t) = ready;
    }
    if (echoSurvival_)
      for (int j = 1; j <= m; ++j)
        session_.flow("Day = ", t, "stage =", j, "Stage; survival; Rate = ", survival_[j]);
    developAgesInWindows(lastAge_, stages_, growth_, develop_, rates_, n_, nAges_, next_, nextAges_, survival_,
                         inflow_);
    // The newborns of the day.
    if (stages_ >= 1)
      nextAges_[1] = nextAges_[1].joinedWith({0, 0});
    if (physogastry_) {
      developAgesInWindows(lastAge_, stages_, growth_, develop_, rates_, physoN_, allAges_, nextPhysoN_,
                           physoAges_, survival_, kAllOnes);
      physoAges_ = allAges_;
    }
  }

  // All ten release slots are looked at, whatever the number of releases;
  // a release day held as text never matches.
  void release(int t) {
    if (m_.NrRelease == 0)
      return;
    for (int r = 1; r <= 10; ++r) {
      const Value& day = m_.ReleaseDay(r);
      if (!day.isNumber() || day.toNumber() != t)
        continue;
      for (int x = 0; x <= lastAge_; ++x)
        for (int j = 1; j <= stages_; ++j) {
          next_(x, j) += m_.ReleaseN(r, x, j);
          if (physogastry_)
            nextPhysoN_(x, j) += m_.ReleaseN(r, x, j);
        }
      // Released individuals may stand at any age.
      nextAges_ = allAges_;
    }
  }

  void limitByCarryingCapacity(int t) {
    if (!carryingCapacityInForce(session_))
      return;
    m_.WeighedSize(t) = weighedSum(next_, nextAges_);
    if (physogastry_)
      m_.PhysoWeighedSize(t) = weighedSum(nextPhysoN_, physoAges_);
    WorkOutDensityMortality(session_, t);
    const double level = m_.DensityMortality(t);
    thinOut(next_, nextAges_, level);
    if (physogastry_)
      thinOut(nextPhysoN_, physoAges_, level);
  }

  // Stage by stage, age by age.
  double weighedSum(const Cells& matrix, const AgeWindows& ages) const {
    double weighed = 0;
    for (int j = 1; j <= stages_; ++j)
      for (int x = ages[j].first; x <= ages[j].last; ++x)
        weighed += matrix(x, j) * weigh_(x, j);
    return weighed;
  }

  void thinOut(const Cells& matrix, const AgeWindows& ages, double level) const {
    for (int j = 1; j <= stages_; ++j) {
      double* n = matrix.stage(j);
      const double* coefficient = density_.stage(j);
      for (int x = ages[j].first; x <= ages[j].last; ++x)
        n[x] = (1 - coefficient[x] * level) * n[x];
    }
  }

  void consume(int t) {
    if (!withCxj_)
      return;
    double total = m_.TotalConsumption(t);
    const AgeWindow rows = allStages(nextAges_);
    for (int x = rows.first; x <= rows.last; ++x)
      for (int j = 1; j <= stages_; ++j)
        total += consumption_(x, j) * next_(x, j);
    m_.TotalConsumption(t) = total;
    m_.CumuConsumption(t) = m_.CumuConsumption(t - 1) + total;
  }

  // The next day's matrix becomes today's (unless the variant keeps the
  // older one), and the sizes of its ages are summed in the same walk.
  // The size of each age takes its stages in order; a walk stage by stage
  // keeps that order for every age. The day's total of those sizes is
  // summed here, or, where `deferTotal`, handed back to be summed later.
  AgeTotal takeNextDay(int t, bool takeOver, bool deferTotal) {
    if (takeOver) {
      for (int j = 1; j <= stages_; ++j) {
        const AgeWindow cells = nAges_[j].joinedWith(nextAges_[j]);
        if (!cells.empty())
          std::copy(next_.stage(j) + cells.first, next_.stage(j) + cells.last + 1, n_.stage(j) + cells.first);
      }
      nAges_ = nextAges_;
    }
    double* sizes = ageSizesOf(m_.AgeSize, daySizes_, t);
    addAges(next_, nextAges_, sizes);
    AgeTotal total(sizes, lastAge_, m_.TotalSize(t), !session_.keepsAgeSizes);
    if (!deferTotal)
      m_.TotalSize(t) = finite(total.rest());
    if (physogastry_) {
      for (int j = 1; j <= stages_; ++j)
        std::copy(nextPhysoN_.stage(j), nextPhysoN_.stage(j) + lastAge_ + 1, physoN_.stage(j));
      double* physoSizes = ageSizesOf(m_.PhysoAgeSize, physoDaySizes_, t);
      addAges(nextPhysoN_, physoAges_, physoSizes);
      m_.PhysoTotalSize(t) = AgeTotal(physoSizes, lastAge_, m_.PhysoTotalSize(t), !session_.keepsAgeSizes).rest();
    }
    return total;
  }

  // Where the sizes of the ages of day t add up: the day's column of the
  // table when the session keeps them, else a column of the step's own
  // that holds zeros whenever a day starts.
  double* ageSizesOf(Table2<double>& table, DaySizes& own, int t) {
    return session_.keepsAgeSizes ? &table(0, t) : own.data();
  }

  // Adds the ages of the matrix to their sizes of the day, `sizes` (ages
  // 0..lastAge side by side). An age that no stage holds keeps its size.
  void addAges(const Cells& matrix, const AgeWindows& ages, double* sizes) const {
    for (int j = 1; j <= stages_; ++j) {
      const double* n = matrix.stage(j);
      for (int x = ages[j].first; x <= ages[j].last; ++x)
        sizes[x] += n[x];
    }
  }

  // The ages that any stage may hold.
  AgeWindow allStages(const AgeWindows& ages) const {
    AgeWindow rows;
    for (int j = 1; j <= stages_; ++j)
      rows = rows.joinedWith(ages[j]);
    return rows;
  }

  void recordStages(int t, AgeTotal total) {
    m_.StageSum(t) = 0;
    if (rules_.weighedSizeFromZero)
      m_.WeighedSize(t) = 0;
    if (physogastry_) {
      m_.PhysoStageSum(t) = 0;
      m_.PhysoWeighedSize(t) = 0;
    }
    PerStage sizes{}, deaths{};
    for (int j = 1; j <= stages_; ++j) {
      sizes[j] = m_.StageSize(j, t);
      deaths[j] = m_.StageDeath(t, j);
    }
    // Two stages at a time, and the day's total beside them: their sums
    // don't wait on each other, and each still takes its own addends in
    // ascending order of age.
    for (int j = 1; j <= stages_; j += 2) {
      const int other = j < stages_ ? j + 1 : 0; // stage 0 has no ages
      if (rules_.deaths)
        sumTwoStages<true>(j, other, sizes, deaths, total);
      else
        sumTwoStages<false>(j, other, sizes, deaths, total);
    }
    m_.TotalSize(t) = finite(total.rest());
    PerStage physoSizes{};
    if (physogastry_)
      for (int j = 1; j <= stages_; ++j) {
        double size = m_.PhysoStageSize(j, t);
        const double* n = physoN_.stage(j);
        for (int x = 0; x <= lastAge_; ++x)
          size += n[x];
        physoSizes[j] = size;
      }

    for (int j = 1; j <= stages_; ++j) {
      const double size = sizes[j];
      m_.StageSize(j, t) = size;
      if (rules_.deaths) {
        const double death = deaths[j];
        m_.StageDeath(t, j) = death;
        m_.LogStageDeath(t, j) = log10Plus1(death);
        m_.CumuStageDeath(t, j) = m_.CumuStageDeath(t - 1, j) + death;
        m_.LogCumuStageDeath(t, j) = log10Plus1(m_.CumuStageDeath(t, j));
        m_.TotalDeath(t) += death;
        m_.LogTotalDeath(t) = log10Plus1(m_.TotalDeath(t));
      }
      m_.StageSum(t) += size;
      m_.DailyWID(t) += size * m_.WeighCoef(j);
      m_.WeighedSize(t) += size * m_.WeighCoef(j);
      for (int i = 1; i <= m_.NrWeakFactor; ++i)
        m_.WeakSize(i, t) += size * m_.WeakCoef(i, j);

      const double physoSize = physoSizes[j];
      if (physogastry_) {
        m_.PhysoStageSize(j, t) = physoSize;
        m_.PhysoStageSum(t) += physoSize;
        m_.PhysoDailyWID(t) += physoSize * m_.WeighCoef(j);
        // The weighed size of the day takes the stage in a second time:
        // under physogastry it is meant to be larger than its name says.
        m_.WeighedSize(t) += size * m_.WeighCoef(j);
        for (int i = 1; i <= m_.NrWeakFactor; ++i)
          m_.PhysoWeakSize(i, t) += physoSize * m_.WeakCoef(i, j);
      }

      if (m_.SamplingStageFrom <= j && j <= m_.SamplingStageTo) {
        m_.VulnerableTotal(t) = m_.TotalSize(t);
        m_.VulnerableSize(t) += size;
        if (physogastry_) {
          m_.PhysoVulnerableTotal(t) = m_.PhysoTotalSize(t);
          m_.VulnerableSize(t) += physoSize;
        }
      }
    }
  }

  // The size (and deaths) of stages a and b of the next day's matrix added
  // to `sizes` (and `deaths`), each over the ages of its window in
  // ascending order; b may be 0, which holds nothing.
  template <bool WithDeaths>
  void sumTwoStages(int a, int b, PerStage& sizes, PerStage& deaths, AgeTotal& dayTotal) const {
    AgeTotal total = dayTotal; // in registers while the loops run
    const AgeWindow wa = nextAges_[a];
    const AgeWindow wb = b > 0 ? nextAges_[b] : AgeWindow{};
    const double* na = next_.stage(a) + wa.first;
    const double* ra = death_.stage(a) + wa.first;
    const double* nb = next_.stage(b) + (wb.empty() ? 0 : wb.first);
    const double* rb = death_.stage(b) + (wb.empty() ? 0 : wb.first);
    const int la = wa.empty() ? 0 : wa.last - wa.first + 1;
    const int lb = wb.empty() ? 0 : wb.last - wb.first + 1;
    double sa = sizes[a], da = deaths[a], sb = sizes[b], db = deaths[b];
    const int both = std::min(la, lb);
    for (int i = 0; i < both; ++i) {
      total.addNext();
      sa += na[i];
      sb += nb[i];
      if constexpr (WithDeaths) {
        da += na[i] * ra[i];
        db += nb[i] * rb[i];
      }
    }
    for (int i = both; i < la; ++i) {
      total.addNext();
      sa += na[i];
      if constexpr (WithDeaths)
        da += na[i] * ra[i];
    }
    for (int i = both; i < lb; ++i) {
      total.addNext();
      sb += nb[i];
      if constexpr (WithDeaths)
        db += nb[i] * rb[i];
    }
    dayTotal = total;
    sizes[a] = sa;
    deaths[a] = da;
    if (b > 0) {
      sizes[b] = sb;
      deaths[b] = db;
    }
  }

  // The sizes of the stages alone, stage by stage, age by age.
  void recordStageSizes(int t) {
    for (int j = 1; j <= stages_; ++j) {
      double size = m_.StageSize(j, t);
      const double* n = next_.stage(j);
      for (int x = 0; x <= lastAge_; ++x)
        size += n[x];
      m_.StageSize(j, t) = size;
    }
  }

  // Fractions of a day without individuals keep what they held.
  void recordFractions(int t) {
    for (int j = 1; j <= stages_; ++j) {
      if (m_.StageSum(t) <= 0)
        break;
      m_.StageFraction(j, t) = divide(m_.StageSize(j, t), m_.StageSum(t));
    }
    if (!physogastry_)
      return;
    for (int j = 1; j <= stages_; ++j) {
      if (m_.PhysoStageSum(t) <= 0)
        break;
      m_.PhysoStageFraction(j, t) = divide(m_.PhysoStageSize(j, t), m_.PhysoStageSum(t));
    }
  }

  // The growth from day t-1 to day t stands at t-1.
  void recordGrowthRates(int t) {
    const int s = t - 1;
    m_.StageSumGrowthLn(s) = lnGrowth(m_.StageSum(t), m_.StageSum(s));
    m_.StageSumGrowthLog(s) = logGrowth(m_.StageSum(t), m_.StageSum(s));
    for (int j = 1; j <= stages_; ++j) {
      const double before = stageLns_[j].of(m_.StageSize(j, s));
      const double now = stageLns_[j].of(m_.StageSize(j, t));
      m_.StageGrowthLn(j, s) = now - before;
      m_.StageGrowthLog(j, s) = lnToLog10(now) - lnToLog10(before);
    }
    if (!physogastry_)
      return;
    m_.BurstReadyGrowthLn(s) = lnGrowth(m_.BurstReadySize(t), m_.BurstReadySize(s));
    m_.BurstReadyGrowthLog(s) = logGrowth(m_.BurstReadySize(t), m_.BurstReadySize(s));
    for (int j = 1; j <= stages_; ++j) {
      m_.PhysoStageGrowthLn(j, s) = lnGrowth(m_.PhysoStageSize(j, t), m_.PhysoStageSize(j, s));
      m_.PhysoStageGrowthLog(j, s) = logGrowth(m_.PhysoStageSize(j, t), m_.PhysoStageSize(j, s));
    }
  }

  // Extinction is no failure: the user is told, and the reports go on with
  // the series as far as they were filled.
  void stopOnExtinction(int t) {
    if (session_.files.isOpen(kReportFile))
      session_.files.output(kReportFile).print(" Population size = 0 !!! Stop! ");
    if (rules_.extinctionText)
      session_.prompter().inform(rules_.extinctionText(m_, t), "Population size=0");
  }

  Session& session_;
  const DayStepRules& rules_;
  Model& m_;
  const int lastAge_;
  const int stages_;
  const bool physogastry_;
  const bool withCxj_;
  bool echoSurvival_ = false;
  std::array<LnOfSize, kLastStageSlot + 1> stageLns_{}; // of the stage sizes last taken
  PerStage survival_{}; // R(j,t) of the day
  PerStage inflow_{};   // survival of the inflow under extra mortality
  std::vector<Fertile> fertile_;
  RateWindows rates_;
  AgeWindows nAges_{}, nextAges_{}; // where PopN and NextN may hold individuals
  AgeWindows allAges_{}, physoAges_{};
  DaySizes daySizes_{}, physoDaySizes_{}; // the sizes of a day's ages, when not kept
  Cells n_, next_, physoN_, nextPhysoN_;
  Cells growth_, develop_, fecundity_, death_, consumption_, weigh_, density_;
};

} // namespace

void flowControlSchedule(Session& session) {
  const Model& m = session.model();
  for (int i = 1; i <= m.NrControl; ++i) {
    int k = 0;
    const int lastDay = toInt16(m.ControlDate(i) + m.ControlDuration(i) - 1);
    for (int day = m.ControlDate(i); day <= lastDay; ++day) {
      ++k;
      session.flow("            First control date =", m.ControlDate(i));
      for (int stage = 1; stage <= m.NrStage; ++stage) {
        session.flow("            Stage mortality rate =", m.ControlMortality(stage, k, i));
        session.flow("            Stage survival rate =", m.StageSurvivalDay(stage, day));
      }
    }
  }
}

std::string extinctionOnDay(const Model& m, int t) {
  return "Simulation time =" + blankLed(m.SimTime) + ". At t=" + blankLed(t) +
         ". Population size=0 (D)! Stop simulation!";
}

void runDaySteps(Session& session, const DayStepRules& rules) { DayStep(session, rules).run(); }

} // namespace vorlex
