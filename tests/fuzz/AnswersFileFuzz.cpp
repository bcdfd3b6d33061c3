// An answers file of the command line, answering a whole session: the
// simulation time, the load, the strategy and its run, as `vorlex run`
// clicks them. A first line "# vorlex run DATAFILE --strategy NAME
// --sim-time N", a comment to the answers file itself, says which of the
// data files copied beside it is loaded, which strategy runs and for how
// long; without it, moth.txt without control over 30 days. The answers to
// file dialogs are taken as names in the fuzz folder, so that nothing is
// read or written outside it.
#include "cli/AnswerPrompter.h"
#include "cli/RunCommand.h"
#include "fuzz/FuzzSupport.h"
#include "mainform/MainForm.h"
#include "model/Session.h"

#include <sstream>

namespace {

using vorlex::fuzz::Sandbox;

const char* const kDataFiles[] = {"examples/moth.txt",         "examples/aphid.txt",
                                  "examples/ladybeetle.txt",   "tests/data/tiny3.txt",
                                  "tests/data/moth-cxj.txt",   "tests/data/predation-rising.txt",
                                  "tests/data/predation-short.txt"};

struct Command {
  std::string dataFile = "moth.txt";
  int option = 1;
  std::string simTime = "30";
};

Command commandOf(std::string_view answers) {
  Command command;
  std::istringstream words{std::string(answers.substr(0, answers.find('\n')))};
  std::string word, program, run;
  if (!(words >> word >> program >> run) || word != "#" || program != "vorlex" || run != "run")
    return command;
  while (words >> word) {
    if (word == "--strategy" && words >> word)
      command.option = vorlex::cli::strategyOption(word);
    else if (word == "--sim-time" && words >> word)
      command.simTime = word;
    else
      command.dataFile = word;
  }
  return command;
}

class SandboxedAnswers : public vorlex::cli::AnswerPrompter {
public:
  SandboxedAnswers(std::ostream& out, const Sandbox& sandbox) : AnswerPrompter(out), sandbox_(sandbox) {}
  std::string chooseFileToOpen(const std::string& title) override {
    return inside(AnswerPrompter::chooseFileToOpen(title));
  }
  std::string chooseFileToSave(const std::string& title) override {
    return inside(AnswerPrompter::chooseFileToSave(title));
  }

private:
  std::string inside(const std::string& answer) const { return answer.empty() ? answer : sandbox_.path(answer); }
  const Sandbox& sandbox_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Sandbox sandbox;
  const std::string_view text = vorlex::fuzz::textOf(data, size);
  const Command command = commandOf(text);
  if (command.option == 0 || !vorlex::MainForm::hasDriver(vorlex::MainForm::optManagementOf(command.option)))
    return 0;
  // Every input starts from the same files: a run may have written over one.
  sandbox.clear();
  for (const char* file : kDataFiles)
    sandbox.copy(file);
  return vorlex::fuzz::fuzzOne([&] {
    std::ostringstream shown;
    SandboxedAnswers answers(shown, sandbox);
    for (vorlex::Answer& answer : vorlex::answersOf(text))
      answers.add(std::move(answer));
    answers.answerFirst(vorlex::MainForm::kDataFileDialogTitle, command.dataFile);
    vorlex::Session session(answers);
    session.shortDate = "22/11/26";
    vorlex::MainForm form(session);
    form.Form_Load();
    session.controls["txtSimuT"].caption = command.simTime;
    form.Command2_Click();
    form.cmdInputLTdata_Click();
    form.chooseOption(command.option);
    form.cmdRun_Click();
    session.files.closeAll();
  });
}
