#include "datafile/DataFileReader.h"

#include "datafile/EtSelector.h"
#include "model/ControlSchedule.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

constexpr std::size_t kStageNameLength = 4;
constexpr double kEndOfFecundityList = -1;

std::string readDescription(Session& session) {
  Model& m = session.model();
  m.Descriptionx = session.files.input(kDataFile).readText();
  return m.Descriptionx;
}

void readProjectAndStages(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  m.ProjectName = in.readText();
  m.ProjectDate = in.readValue();
  m.ProjectUser = in.readValue();
  readDescription(session);
  m.LastAge = in.readInteger();
  m.NrStage = in.readInteger();
  VorlexAGosub640(session);

  readDescription(session);
  for (int stage = 1; stage <= m.NrStage; ++stage) {
    m.StageAge(stage, 1) = in.readInteger();
    m.StageAge(stage, 2) = in.readInteger();
    const std::string StageNameInput = in.readText();
    m.StageName(stage) = StageNameInput.substr(0, kStageNameLength);
    m.WeighCoef(stage) = in.readNumber();
    m.DensityCoef(stage) = in.readValue().toNumber();
  }
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage) {
      m.WeighCoefAgeStage(age, stage) = m.WeighCoef(stage);
      m.DensityCoefAgeStage(age, stage) = m.DensityCoef(stage);
    }
}

void readRates(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);

  readDescription(session);
  m.FemaleStage = in.readInteger();
  readDescription(session);
  m.FecundityDecrease = in.readNumber();
  readDescription(session);
  for (int age = m.StageAge(m.FemaleStage, 1); age <= m.StageAge(m.FemaleStage, 2); ++age) {
    const double value = in.readNumber();
    // -1 closes a list that is shorter than the stage.
    if (value == kEndOfFecundityList) {
      m.Fecundity(age, m.FemaleStage) = 0;
      break;
    }
    m.Fecundity(age, m.FemaleStage) = value * m.FecundityDecrease;
  }

  readDescription(session);
  m.GrowthDecrease = in.readNumber();
  readDescription(session);
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age)
      m.GrowthRate(age, stage) = in.readNumber() * m.GrowthDecrease;

  readDescription(session);
  m.DevelopDecrease = in.readNumber();
  readDescription(session);
  const int lastImmature = m.NrStage - 2;
  for (int stage = 1; stage <= lastImmature; ++stage)
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age)
      m.DevelopRate(age, stage) = in.readNumber() * m.DevelopDecrease;
  // The last immature stage develops into either sex: its move into the
  // male stands in the next column.
  for (int age = m.StageAge(lastImmature, 1); age <= m.StageAge(lastImmature, 2); ++age)
    m.DevelopRate(age, lastImmature + 1) = in.readNumber() * m.DevelopDecrease;
  workOutDeathRate(session);
}

void readConsumption(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  m.ConsumeDecrease = in.readNumber();
  readDescription(session);
  for (int stage = 1; stage <= m.NrStage; ++stage)
    for (int age = m.StageAge(stage, 1); age <= m.StageAge(stage, 2); ++age)
      m.Consumption(age, stage) = in.readNumber() * m.ConsumeDecrease;
}

void readInitialPopulation(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  for (int age = 0; age <= m.LastAge; ++age)
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.InitialN(age, stage) = 0;
  for (int record = 1; record <= kMaxInitialRecords; ++record) {
    const i16 age = in.readInteger();
    const double stage = in.readNumber();
    const double number = in.readNumber();
    if (stage == 0)
      break;
    m.InitialN(age, toInt32(stage)) = number;
  }
}

void readSusceptibility(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  m.NrWeakFactor = in.readInteger();
  readDescription(session);
  for (int factor = 1; factor <= m.NrWeakFactor; ++factor) {
    m.WeakFactorName(factor) = in.readValue().toText();
    for (int stage = 1; stage <= m.NrStage; ++stage)
      m.WeakCoef(factor, stage) = in.readNumber();
  }
}

void readDensityCoefficients(Session& session) {
  Model& m = session.model();
  ItemReader& in = session.files.input(kDataFile);
  readDescription(session);
  m.DensityCoefBelowK = in.readValue().toNumber();
  m.DensityCoefOverK = in.readValue().toNumber();
}

void readFirstPart(Session& session, bool withCxj) {
  if (withCxj)
    session.flow("In Public Sub VorlexAGosub110withCxj----- Data input -----------");
  else
    session.flow("In Public Sub VorlexAGosub100 **** Input VORLEX data ***");
  readProjectAndStages(session);
  readRates(session);
  if (withCxj)
    readConsumption(session);
  readInitialPopulation(session);
  InputAdditionalRelease(session);
  readSusceptibility(session);
  readEtFunction(session, withCxj);
  readDensityCoefficients(session);
}

} // namespace

namespace {

// A description as a message shows it: at most 80 characters, the cut
// marked, so that a huge broken line makes no huge message.
std::string shortened(const std::string& description) {
  constexpr std::size_t kShown = 80;
  if (description.size() <= kShown)
    return description;
  return description.substr(0, kShown) + "[... " + std::to_string(description.size() - kShown) +
         " more characters]";
}

} // namespace

std::string placeInDataFile(Session& session) {
  const ItemReader& in = session.files.input(kDataFile);
  return "Data file: " + session.files.path(kDataFile) + ", item " + std::to_string(in.itemNumber()) +
         ", line " + std::to_string(in.line()) + ", last description read: \"" +
         shortened(session.model().Descriptionx) + "\"";
}

namespace {

void readWholeFile(Session& session, bool withCxj) {
  try {
    readFirstPart(session, withCxj);
    VorlexAGosub1270(session);
  } catch (const RuntimeError& error) {
    throw error.at(placeInDataFile(session));
  }
  try {
    VorlexAGosub900(session);
  } catch (const RuntimeError& error) {
    throw error.at("Data file: " + session.files.path(kDataFile) +
                   ", building x, l(x) and m(x) from the rates read");
  }
  session.files.close(kDataFile);
}

} // namespace

void VorlexAGosub100(Session& session) { readFirstPart(session, false); }

void VorlexAGosub100withCxj(Session& session) { readFirstPart(session, true); }

void VorlexA(Session& session) { readWholeFile(session, false); }

void VorlexAwithCxj(Session& session) { readWholeFile(session, true); }

void readDataFile(Session& session, const std::string& path) {
  session.files.openInput(kDataFile, path);
  if (session.flags.WithCxj == "Yes")
    VorlexAwithCxj(session);
  else
    VorlexA(session);
}

} // namespace vorlex
