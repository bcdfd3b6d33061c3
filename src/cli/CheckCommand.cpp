#include "cli/CheckCommand.h"

#include "cli/AnswerPrompter.h"
#include "cli/DataFileCheck.h"
#include "mainform/CheckDataForm.h"
#include "mainform/MainForm.h"
#include "model/Session.h"

#include <sstream>

namespace vorlex::cli {

const char* const kCheckUsage =
    "  vorlex check DATAFILE [--cxj]\n"
    "      Shows the data format: every description and value of DATAFILE as the\n"
    "      load takes it, then the life-table statistics worked out from the table\n"
    "      beside those the file gives. Status 0: they agree; 3: they disagree;\n"
    "      1: the file could not be read to its end.\n"
    "      --cxj          the file has the consumption block C(x,j)\n";

int checkCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
  std::string dataFile;
  bool withCxj = false;
  for (const std::string& arg : args) {
    if (arg == "--help" || arg == "-h") {
      out << "Usage:\n" << kCheckUsage;
      return 0;
    }
    if (arg == "--cxj") {
      withCxj = true;
    } else if (!arg.empty() && arg[0] != '-' && dataFile.empty()) {
      dataFile = arg;
    } else {
      err << "vorlex: unexpected argument '" << arg << "'\nUsage:\n" << kCheckUsage;
      return 2;
    }
  }
  if (dataFile.empty()) {
    err << "vorlex: no data file given\nUsage:\n" << kCheckUsage;
    return 2;
  }
  if (const auto problem = dataFileProblem(dataFile)) {
    err << "vorlex: " << *problem << ".\n";
    return 2;
  }

  // The questions of the button are answered here; they are not shown.
  std::ostringstream asked;
  AnswerPrompter prompter(asked);
  prompter.addAnswer(std::string("Attention=") + (withCxj ? "Yes" : "No"));
  prompter.answerFirst(checkdat::kFileDialogTitle, dataFile);
  Session session(prompter);
  MainForm form(session);
  form.Form_Load();
  form.Command24_Click();

  const std::string& verdict = session.controls[checkdat::kVerdict].caption;
  out << session.controls[checkdat::kReport].caption << "\n\n" << verdict << '\n';
  if (verdict == checkdat::kAgree)
    return 0;
  return verdict == checkdat::kDisagree ? 3 : 1;
}

} // namespace vorlex::cli
