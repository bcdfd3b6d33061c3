#include "reports/ReportLines.h"

#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/OutputFile.h"
#include "textio/RuntimeError.h"

namespace vorlex {

OutputFile& reportFile(Session& session) { return session.files.output(kReportFile); }

void printFormFeed(OutputFile& out) { out.print("\f"); }

void printBlankLines(OutputFile& out, int count) {
  for (int i = 0; i < count; ++i)
    out.print(" ");
}



double round4(double v) { return roundHalfEven(v * 10000) / 10000; }

std::string firstLetter(const std::string& name) { return name.substr(0, 1); }

} // namespace vorlex
