#include "model/Session.h"
#include "strategies/UnlimitedGrowth.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

class Dialogue {
public:
  explicit Dialogue(Session& session) : session_(session), m_(session.model()) {}

  double number(const std::string& title, const std::string& prompt, const std::string& defaultText) {
    return askNumber(session_.prompter(), prompt, title, defaultText);
  }
  i16 integer(const std::string& title, const std::string& prompt, const std::string& defaultText) {
    return toInt16(number(title, prompt, defaultText));
  }
  // "1" is fixed, any other answer random. A random mortality is reported
  // as "Yes" and an entered value of 0.
  void fixedOrRandom(const std::string& title, const std::string& prompt, double mortality,
                     std::string& random, double& entered) {
    const bool fixed = number(title, prompt, "1") == 1;
    random = fixed ? "No" : "Yes";
    entered = fixed ? mortality : 0;
  }

  // Made afresh for every question that shows it.
  std::string stageList() const {
    std::string list = "Life table information: Number of stage = " + digits(m_.NrStage) + ". \n";
    for (int j = 1; j <= m_.NrStage; ++j)
      list += digits(j) + ". " + m_.StageName(j) + "\n";
    return list;
  }

private:
  Session& session_;
  Model& m_;
};

constexpr const char* kRandomTitle = "Random extra mortality?";
constexpr const char* kRandomPrompt = "Fixed or random extra mortality?\n"
                                      "(Use Randomize only 1 time)\n"
                                      "1 = Fixed, else = Random.";

} // namespace

void askExtraMortality(Session& session) {
  Model& m = session.model();
  Dialogue box(session);
  m.OverwinterDrawn = "No";

  m.OverwinterStage =
      box.integer("Overwinter stage", box.stageList() + "\nWhich stage is the overwinter stage?", "3");
  m.OverwinterDay = box.integer("Date of overwinter mortality",
                                "Enter the date at which overwinter mortality occurs.", "200");
  m.OverwinterMortality =
      box.number("Overwinter mortality", "Enter the mortality during overwinter period.", "0.5");
  box.fixedOrRandom("Random Overwinter mortality?",
                    "Fixed or random overwinter mortality?\n"
                    "(Use Randomize only 1 time)\n"
                    "1 = Fixed, else = Random.",
                    m.OverwinterMortality, m.OverwinterRandom, m.OverwinterMortalityInput);

  m.ExtraStage1 =
      box.integer("First extra mortality to d(x,j) of a specific stage",
                  box.stageList() + "\nIf you want to lower the developmental rate to the second stage,"
                                    "you have to enter 2.\n ",
                  "2");
  m.ExtraFrom1 = box.integer("Date after that there will be extra mortality to matrix D",
                             "Enter the date after that mortality occurs.", "1");
  m.ExtraTo1 =
      box.integer("Date after that there will be no extra mortality to matrix D",
                  "Enter the date after that mortality stops.", digits(checkedInt16(m.ExtraFrom1 + 50)));
  m.ExtraMortality1 = box.number("First extra mortality to matrix D",
                                 "Enter the mortality to matrix D during extra mortality period.\n"
                                 "(Enter 0 for no extra mortality)",
                                 "0.3");
  box.fixedOrRandom(kRandomTitle, kRandomPrompt, m.ExtraMortality1, m.ExtraRandom1, m.ExtraMortalityInput1);

  m.ExtraStage2 =
      box.integer("Is there another extra mortality to d(x,j) of a specific stage?",
                  box.stageList() + "\nIf you want to lower the developmental rate to the third stage,"
                                    "you have to enter 3. Don't use this to lower d(x,j) of egg stage.\n ",
                  "3");
  m.ExtraFrom2 = box.integer("Date after that there will be the second extra mortality",
                             "Enter the date after that mortality occurs.", "350");
  m.ExtraTo2 = box.integer("Date after that the second extra mortality will stop.",
                           "Enter the date after that the secondd extra mortality stops.",
                           digits(checkedInt16(m.ExtraFrom2 + 150)));
  m.ExtraMortality2 = box.number("Enter the second extra mortality",
                                 "Enter the second mortality during extra mortality period.\n"
                                 "(Enter 0 for no mortality)",
                                 "0.5");
  box.fixedOrRandom(kRandomTitle, kRandomPrompt, m.ExtraMortality2, m.ExtraRandom2, m.ExtraMortalityInput2);

  m.LowFecundityFrom = box.integer("Date after that fecundity will be lower",
                                   "Enter the date after that fecundity will be lower.", "350");
  if (m.LowFecundityFrom > 0)
    m.LowFecundity = "Yes";
  m.LowFecundityTo = box.integer("Date after that fecundity will be normal",
                                 "Enter the date after that fecundity will be normal.",
                                 digits(checkedInt16(m.LowFecundityFrom + 150)));
  m.LowFecundityFactor = box.number("Lower fecundity",
                                    "Enter the percentage that the fecundity will be.\n"
                                    "(Enter 1 for normal fecundity)",
                                    "0.3");
}

} // namespace vorlex
