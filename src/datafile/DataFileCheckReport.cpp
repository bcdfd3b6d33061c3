#include "datafile/DataFileCheckReport.h"

#include "datafile/DataFileReader.h"
#include "datafile/EtSelector.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"
#include "textio/RuntimeError.h"

#include <vector>

namespace vorlex {

namespace {

constexpr std::size_t kStageNameLength = 4;
constexpr double kEndOfFecundityList = -1;
constexpr int kValuesPerLine = 10;
constexpr int kReleasesInTemplate = 10;
constexpr int kItemsPerTemplateRelease = 9;
constexpr int kPopulationRule = 20;
constexpr int kWeaknessRule = 14;
constexpr int kColumn = 8;
constexpr int kFactorNameField = 15;

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width)
    text.append(width - text.size(), ' ');
  return text;
}

std::string hyphens(int count) { return std::string(static_cast<std::size_t>(count), '-'); }

// Reads the file item by item and prints as it goes; one member a block of
// the file, in the order of the file.
class Check {
public:
  Check(Session& session, OutputFile& out)
      : session_(session), m_(session.model()), in_(session.files.input(kDataFile)), out_(out),
        withCxj_(session.flags.WithCxj == "Yes") {}

  void run() {
    projectAndStages();
    fecundityAndGrowth();
    development();
    if (withCxj_)
      consumption();
    triples("Initial population:", m_.InitialN, kMaxInitialRecords);
    releases();
    susceptibility();
    etFunction();
    densityCoefficients();
    controls();
    closingItems();
  }

private:
  void description() {
    m_.Descriptionx = in_.readText();
    out_.print(m_.Descriptionx);
  }

  // A block of values, ten a line.
  void values(const std::vector<double>& list) {
    int count = 0;
    for (double v : list) {
      out_.printOpen(v);
      if (++count == kValuesPerLine) {
        out_.endLine();
        count = 0;
      }
    }
    if (count != 0)
      out_.endLine();
  }

  // The values of each age of a stage, read and stored times a factor.
  void stageValues(Table2<double>& table, int column, int ageStage, double factor) {
    std::vector<double> read;
    for (int age = m_.StageAge(ageStage, 1); age <= m_.StageAge(ageStage, 2); ++age) {
      read.push_back(in_.readNumber());
      table(age, column) = read.back() * factor;
    }
    values(read);
  }

  double decreaseRate() {
    description();
    const double rate = in_.readNumber();
    out_.print("Decrease rate=", rate);
    return rate;
  }

  void projectAndStages() {
    description();
    m_.ProjectName = in_.readText();
    m_.ProjectDate = in_.readValue();
    m_.ProjectUser = in_.readValue();
    out_.print("Project: ", m_.ProjectName);
    out_.print("Date   : ", m_.ProjectDate);
    out_.print("Name   : ", m_.ProjectUser);

    description();
    m_.LastAge = in_.readInteger();
    m_.NrStage = in_.readInteger();
    out_.print("No. of age group= ", m_.LastAge, ", No. of stages= ", m_.NrStage);
    VorlexAGosub640(session_);

    description();
    for (int stage = 1; stage <= m_.NrStage; ++stage) {
      m_.StageAge(stage, 1) = in_.readInteger();
      m_.StageAge(stage, 2) = in_.readInteger();
      m_.StageName(stage) = in_.readText().substr(0, kStageNameLength);
      m_.WeighCoef(stage) = in_.readNumber();
      m_.DensityCoef(stage) = in_.readValue().toNumber();
      out_.print("Stage ", stage, m_.StageName(stage), ": age", m_.StageAge(stage, 1), "to",
                 m_.StageAge(stage, 2), ", weighing coef.=", m_.WeighCoef(stage),
                 ", density coef.=", m_.DensityCoef(stage));
    }
  }

  void fecundityAndGrowth() {
    description();
    m_.FemaleStage = in_.readInteger();
    out_.print("Female adult is stage", m_.FemaleStage, ":");
    m_.FecundityDecrease = decreaseRate();

    description();
    const int female = m_.FemaleStage;
    out_.print("Female daily fecundity from age", m_.StageAge(female, 1), "to", m_.StageAge(female, 2), ":");
    std::vector<double> read;
    for (int age = m_.StageAge(female, 1); age <= m_.StageAge(female, 2); ++age) {
      read.push_back(in_.readNumber());
      // -1 closes a list that is shorter than the stage.
      if (read.back() == kEndOfFecundityList) {
        m_.Fecundity(age, female) = 0;
        break;
      }
      m_.Fecundity(age, female) = read.back() * m_.FecundityDecrease;
    }
    values(read);

    m_.GrowthDecrease = decreaseRate();
    description();
    for (int stage = 1; stage <= m_.NrStage; ++stage) {
      out_.print(m_.StageName(stage), " growth rate from age", m_.StageAge(stage, 1), "to",
                 m_.StageAge(stage, 2), ":");
      stageValues(m_.GrowthRate, stage, stage, m_.GrowthDecrease);
    }
  }

  void development() {
    m_.DevelopDecrease = decreaseRate();
    description();
    const int lastImmature = m_.NrStage - 2;
    for (int stage = 1; stage <= lastImmature; ++stage) {
      out_.print("Development rate from stage ", stage, " to ", stage + 1, ":");
      out_.print("Age", m_.StageAge(stage, 1), "to", m_.StageAge(stage, 2), ":");
      stageValues(m_.DevelopRate, stage, stage, m_.DevelopDecrease);
    }
    // The last immature stage develops into either sex: the move into the
    // male stands in the next column.
    out_.print("Development rate from stage ", lastImmature, " to ", m_.NrStage, ":");
    out_.print("Age", m_.StageAge(lastImmature, 1), "to", m_.StageAge(lastImmature, 2), ":");
    stageValues(m_.DevelopRate, lastImmature + 1, lastImmature, m_.DevelopDecrease);
  }

  void consumption() {
    m_.ConsumeDecrease = decreaseRate();
    description();
    for (int stage = 1; stage <= m_.NrStage; ++stage) {
      out_.print(m_.StageName(stage), " consumption rate from age", m_.StageAge(stage, 1), "to",
                 m_.StageAge(stage, 2), ":");
      stageValues(m_.Consumption, stage, stage, m_.ConsumeDecrease);
    }
  }

  // A list of (age, stage, number) up to a stage of 0, as a table; each
  // triple goes to `store`.
  template <typename Store> void tripleList(const char* heading, int most, Store store) {
    description();
    out_.print(heading);
    out_.print(hyphens(kPopulationRule));
    out_.print(" Age  Stage  Number");
    out_.print(hyphens(kPopulationRule));
    for (int record = 1; record <= most; ++record) {
      const i16 age = in_.readInteger();
      const double stage = in_.readNumber();
      const double number = in_.readNumber();
      if (stage == 0)
        break;
      out_.print(age, "  ", stage, "   ", number);
      store(age, toInt32(stage), number);
    }
    out_.print(hyphens(kPopulationRule));
  }

  void triples(const char* heading, Table2<double>& table, int most) {
    for (int age = 0; age <= m_.LastAge; ++age)
      for (int stage = 1; stage <= m_.NrStage; ++stage)
        table(age, stage) = 0;
    tripleList(heading, most, [&table](int age, int stage, double number) { table(age, stage) = number; });
  }

  void releases() {
    description();
    m_.NrRelease = in_.readInteger();
    out_.print("No. of additional releases=", m_.NrRelease);
    for (int r = 1; r <= m_.NrRelease; ++r) {
      description();
      m_.ReleaseDay(r) = in_.readValue();
      out_.print("Release", r, "on day", m_.ReleaseDay(r));
      tripleList("Population released:", kMaxReleaseRecords,
                 [this, r](int age, int stage, double number) { m_.ReleaseN(r, age, stage) = number; });
    }
    // The unused releases of the ten-release template are passed over by
    // count, as the load does.
    const int skipped = (kReleasesInTemplate - m_.NrRelease) * kItemsPerTemplateRelease;
    for (int k = 1; k <= skipped; ++k)
      in_.readText();
    if (skipped > 0)
      out_.print("Items of the unused releases passed over:", skipped);
  }

  void susceptibility() {
    description();
    m_.NrWeakFactor = in_.readInteger();
    out_.print("No. of weak points=", m_.NrWeakFactor);
    description();
    const int width = kWeaknessRule + kColumn * m_.NrStage;
    out_.print(hyphens(width));
    out_.printOpen("Weakness      ");
    for (int stage = 1; stage <= m_.NrStage; ++stage)
      out_.printOpen(stage < m_.NrStage ? padded(m_.StageName(stage), kColumn - 2) + "  "
                                        : m_.StageName(stage));
    out_.endLine();
    out_.print(hyphens(width));
    for (int factor = 1; factor <= m_.NrWeakFactor; ++factor) {
      m_.WeakFactorName(factor) = in_.readValue().toText();
      out_.printOpen(padded(m_.WeakFactorName(factor), kFactorNameField));
      for (int stage = 1; stage <= m_.NrStage; ++stage) {
        m_.WeakCoef(factor, stage) = in_.readNumber();
        const std::string value = printForm(m_.WeakCoef(factor, stage));
        out_.printOpen(stage < m_.NrStage ? padded(value, kColumn - 2) + "  " : value);
      }
      out_.endLine();
    }
    out_.print(hyphens(width));
  }

  void etFunction() {
    description();
    m_.EtSelector = classifyEtSelector(m_.Descriptionx, withCxj_);
    out_.print("AT or ET function of time:");
    switch (m_.EtSelector) {
    case EtForm::Logistic:
      m_.EtB = in_.readNumber();
      m_.EtC = in_.readNumber();
      m_.EtD = in_.readNumber();
      m_.EtA = in_.readNumber();
      out_.print("Y(x) =", m_.EtA, "+", m_.EtB, "/(1+", m_.EtC, "*Exp(", m_.EtD, "*x))");
      break;
    case EtForm::TwoPeriods:
      m_.EtB = in_.readNumber();
      m_.EtC = in_.readNumber();
      m_.EtD = in_.readNumber();
      m_.EtE = in_.readNumber();
      out_.print("Y(x) =", m_.EtD, "up to day", m_.EtC, ";", m_.EtE, "after that");
      break;
    case EtForm::ThreePeriods:
      m_.EtB = in_.readNumber();
      m_.EtC = in_.readNumber();
      m_.EtD = in_.readNumber();
      m_.EtE = in_.readNumber();
      m_.EtF = in_.readNumber();
      m_.EtG = in_.readNumber();
      out_.print("Y(x) =", m_.EtD, "up to day", m_.EtC, ";", m_.EtF, "up to day", m_.EtE, ";", m_.EtG,
                 "after that");
      break;
    case EtForm::None:
      out_.print("None: the line above is not one of the known forms, so ET is 0 on every day.");
      break;
    }
  }

  void densityCoefficients() {
    description();
    m_.DensityCoefBelowK = in_.readValue().toNumber();
    m_.DensityCoefOverK = in_.readValue().toNumber();
    out_.print("Density-dependent mortality (stage-specific) below K=", m_.DensityCoefBelowK,
               ", over K=", m_.DensityCoefOverK);
  }

  void controls() {
    description();
    m_.NrControl = in_.readInteger();
    out_.print("N0. of treatments =", m_.NrControl);
    for (int i = 1; i <= m_.NrControl; ++i) {
      description();
      m_.ControlDate(i) = in_.readInteger();
      out_.print("First treatment date:", m_.ControlDate(i));
      description();
      m_.CriticalDay(i) = in_.readInteger();
      out_.print("Critical date of host plant:", m_.CriticalDay(i));
      description();
      m_.ControlName(i) = in_.readValue().toText();
      m_.ControlDuration(i) = in_.readNumber();
      out_.print("Treatment method: ", m_.ControlName(i));
      out_.print("Residual duration:", m_.ControlDuration(i));
      description();
      stageMortality(i);
    }
  }

  // The mortality of each effective day by stage. The days are counted as
  // the load counts them: from the first day to the first day plus the
  // duration less one, that end rounded to a whole day.
  void stageMortality(int i) {
    const int width = kColumn * (m_.NrStage + 1);
    out_.print("Stage mortality:");
    out_.print(hyphens(width));
    out_.printOpen(padded("Day", kColumn));
    for (int stage = 1; stage <= m_.NrStage; ++stage)
      out_.printOpen(padded(m_.StageName(stage), kColumn));
    out_.endLine();
    out_.print(hyphens(width));
    int k = 0;
    for (int day = m_.ControlDate(i), last = toInt16(m_.ControlDate(i) + m_.ControlDuration(i) - 1);
         day <= last; day = checkedInt16(day + 1)) {
      ++k;
      out_.printOpen(padded(blankLed(k), kColumn));
      for (int stage = 1; stage <= m_.NrStage; ++stage) {
        m_.ControlMortality(stage, k, i) = in_.readNumber();
        out_.printOpen(padded(printForm(m_.ControlMortality(stage, k, i)), kColumn));
      }
      out_.endLine();
    }
    out_.print(hyphens(width));
  }

  std::string stageNamed(double stage) const {
    const int index = toInt32(stage);
    return index >= 1 && index <= m_.NrStage ? m_.StageName(index) : std::string("no such stage");
  }

  void closingItems() {
    description();
    m_.SamplingInterval = in_.readNumber();
    out_.print("Interval between treatment and sampling ", m_.SamplingInterval);
    description();
    m_.SamplingStageFrom = in_.readNumber();
    m_.SamplingStageTo = in_.readNumber();
    out_.print("Sampling stage", m_.SamplingStageFrom, "to", m_.SamplingStageTo, " (",
               stageNamed(m_.SamplingStageFrom), " to ", stageNamed(m_.SamplingStageTo), ").");
    description();
    m_.PreviousCumWID = in_.readNumber();
    out_.print("Previous CUMWID=", m_.PreviousCumWID);
    description();
    m_.MeanFecundity = in_.readNumber();
    out_.print("F=", m_.MeanFecundity);
    description();
    m_.NetReproductiveRate = in_.readNumber();
    out_.print("R0=", m_.NetReproductiveRate);
    description();
    m_.IntrinsicRate = in_.readValue().toNumber();
    out_.print("r=", m_.IntrinsicRate);
    description();
    m_.FiniteRate = in_.readValue().toNumber();
    out_.print("lambda=", m_.FiniteRate);
    description();
    m_.GenerationTime = in_.readValue().toNumber();
    out_.print("T=", m_.GenerationTime);
    if (in_.atEnd()) {
      out_.print("The file ends here, without the line of the last age.");
      return;
    }
    description();
    m_.LastAgeOfFile = in_.readInteger();
    out_.print("Last age=", m_.LastAgeOfFile);
    // The load reads no further; what follows is a sign of a block that
    // holds more items than the load takes.
    int unread = 0;
    for (; !in_.atEnd(); ++unread)
      in_.readText();
    if (unread > 0)
      out_.print("Items after the last age, not read by the load:", unread);
  }

  Session& session_;
  Model& m_;
  ItemReader& in_;
  OutputFile& out_;
  bool withCxj_;
};

} // namespace

void CheckDataFile(Session& session, OutputFile& picture) {
  try {
    Check(session, picture).run();
  } catch (const RuntimeError& error) {
    throw error.at(placeInDataFile(session));
  }
}

} // namespace vorlex
