#include "mainform/CheckDataForm.h"

#include "datafile/DataFileCheckReport.h"
#include "mainform/Forms.h"
#include "mainform/MainForm.h"
#include "mainform/StatisticsCheck.h"
#include "model/LifeTable.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <sstream>

namespace vorlex::checkdat {

namespace {

// The report as a view shows it: lines separated by '\n' alone.
std::string viewText(const std::string& fileText) {
  std::string text;
  text.reserve(fileText.size());
  for (char c : fileText)
    if (c != '\r')
      text += c;
  if (!text.empty() && text.back() == '\n')
    text.pop_back();
  return text;
}

void printStop(OutputFile& picture, const RuntimeError& error) {
  picture.print("");
  std::istringstream message(error.what());
  for (std::string line; std::getline(message, line);)
    picture.print(line);
  picture.print("Likely cause: ", error.likelyCause());
}

} // namespace

void createControls(Session& session) {
  session.controls[forms::kCheckData] = ControlState{true, false, "Data file check", {}};
  session.controls[kReport] = ControlState{true, true, {}, {}};
  session.controls[kVerdict] = ControlState{true, true, {}, {}};
  session.controls[kBack] = ControlState{true, true, "Back", {}};
}

void showDataFormat(Session& session) {
  std::string path = session.names.DataFileName;
  std::string withCxj = session.flags.WithCxj;
  if (path.empty()) {
    Prompter& ask = session.prompter();
    withCxj = yesNo(ask.askYesNo(MainForm::kWithCxjQuestion, "Attention"));
    path = ask.chooseFileToOpen(kFileDialogTitle);
    if (path.empty())
      return;
  }

  Session check(session.prompter());
  check.flags.WithCxj = withCxj;
  Model& m = check.model();
  m.SimTime = session.model().SimTime;
  m.SimTimeNext = session.model().SimTimeNext;
  OutputFile picture = OutputFile::inMemory();
  std::string verdict;
  try {
    check.files.openInput(kDataFile, path);
    CheckDataFile(check, picture);
    check.files.close(kDataFile);
    try {
      VorlexAGosub900(check);
    } catch (const RuntimeError& error) {
      throw error.at("Data file: " + path + ", building x, l(x) and m(x) from the rates read");
    }
    verdict = printStatisticsCheck(check, picture) ? kAgree : kDisagree;
  } catch (const RuntimeError& error) {
    printStop(picture, error);
    verdict = kStopped;
  }

  session.controls[forms::kCheckData].caption = "Data file check: " + path;
  session.controls[kReport].caption = viewText(picture.text());
  session.controls[kVerdict].caption = verdict;
  hideForm(session, forms::kMainform);
  showForm(session, forms::kCheckData);
}

void Command1_Click(Session& session) {
  hideForm(session, forms::kCheckData);
  showForm(session, forms::kMainform);
}

} // namespace vorlex::checkdat
