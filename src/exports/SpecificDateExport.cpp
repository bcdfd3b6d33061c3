#include "exports/SpecificDateExport.h"

#include "model/Session.h"
#include "textio/NumberForms.h"

namespace vorlex {

namespace {

// Where each export keeps its state, and its file number.
struct Member {
  int file;
  std::int16_t DateExports::*day;
  std::string DateExports::*armed;
  std::string DateExports::*path;
  std::string DateExports::*code;
  DateExportTexts texts;
};

const Member& memberOf(DateExport which) {
  static const Member kMembers[] = {
      {kTotalExportFile, &DateExports::ExportDayN, &DateExports::ExportN, &DateExports::ExportFileN,
       &DateExports::ExportCodeN,
       {"Save total population size for specific date",
        "Enter a specific date to save the total population size.", "Open a file to save N(t).",
        "Open a file to append N(t).", "Total size at "}},
      {kStageExportFile, &DateExports::ExportDayStage, &DateExports::ExportStage, &DateExports::ExportFileStage,
       &DateExports::ExportCodeStage,
       {"Save stage size for specific date", "Enter a specific date to save the stage size.",
        "Open a file to save N(x,j,t).", "Open a file to append N(x,j,t).", "Stage sizes at "}},
      {kConsumptionExportFile, &DateExports::ExportDayC, &DateExports::ExportC, &DateExports::ExportFileC,
       &DateExports::ExportCodeC,
       {"Save total consumption for specific date", "Enter a specific date to save the total consumption.",
        "Open a file to save C(t).", "Open a file to append C(t).", "Total consumption at "}},
      {kWeighedExportFile, &DateExports::ExportDayW, &DateExports::ExportW, &DateExports::ExportFileW,
       &DateExports::ExportCodeW,
       {"Save total weighted size for specific date", "Enter a specific date to save the total Weighted size.",
        "Open a file to save W(t).", "Open a file to append W(t).", "Weighted population sizes at "}},
  };
  return kMembers[static_cast<int>(which)];
}

// The prompt's second sentence names the date of the export in a short
// form of its own, kept as the program has always shown it.
std::string datePrompt(const DateExportTexts& texts) {
  return std::string(texts.dateFirstLine) + "\n" +
         "You can use the saved file to run general bootstrap to find the CI of spec. date.\n"
         "For the first simulation, you \"Open\" a file to save your data.\n"
         "For the second and rest simulations, you \"append\" your data to an existing file.\n"
         "Then you can compare the results of different projections.\n"
         "\"0\" means no data will be saved.\n";
}

constexpr const char* kOpenOrAppendPrompt = "Open for the first time or append data to an existing file\n"
                                            "Click \"Yes\" to open the file for the first time.\n"
                                            "Click \"No\" to open an existing file to append data.\n";

constexpr const char* kFileCodePrompt = "Enter a code for this file (percentile, treatment, etc.)\n";

// One line of a total: the file code and the value of the chosen day.
void writeTotal(Session& session, DateExport which, const Table1<double>& series) {
  const Member& member = memberOf(which);
  DateExports& exports = session.exports;
  if (exports.*member.armed != "Yes")
    return;
  const double value = series(exports.*member.day);
  session.files.output(member.file).print(exports.*member.code, ",", stripped(value));
  session.files.close(member.file);
}

} // namespace

const DateExportTexts& textsOf(DateExport which) { return memberOf(which).texts; }

void armDateExport(Session& session, DateExport which) {
  const Member& member = memberOf(which);
  DateExports& exports = session.exports;
  Prompter& user = session.prompter();

  const std::int16_t day = toInt16(askNumber(user, datePrompt(member.texts), member.texts.dateTitle, "0"));
  exports.*member.day = day;
  if (day == 0) {
    exports.*member.armed = "No";
    return;
  }
  exports.*member.armed = "Yes";

  bool opened = false;
  if (user.askYesNo(kOpenOrAppendPrompt, kOpenOrAppendTitle)) {
    // A new file may have any name, so the dialog is the one that saves.
    exports.*member.path = user.chooseFileToSave(member.texts.saveTitle);
    if (!(exports.*member.path).empty()) {
      session.files.openOutput(member.file, exports.*member.path);
      OutputFile& out = session.files.output(member.file);
      out.write(session.model().ProjectName);
      // The stage sizes are headed with the day of the total size: kept.
      const std::int16_t headed = which == DateExport::StageSizes ? exports.ExportDayN : day;
      out.write("File code", member.texts.heading + digits(headed));
      opened = true;
    }
  } else {
    exports.*member.path = user.chooseFileToOpen(member.texts.appendTitle);
    if (!(exports.*member.path).empty()) {
      session.files.openAppend(member.file, exports.*member.path);
      opened = true;
    }
  }
  if (opened)
    exports.*member.code = user.askValue(kFileCodePrompt, kFileCodeTitle, "0.025");
}

void writeStageSizesExport(Session& session) {
  if (session.exports.ExportStage != "Yes") {
    session.files.close(kStageExportFile);
    return;
  }
  const Model& m = session.model();
  const int day = session.exports.ExportDayStage;
  std::string line;
  for (int j = 1; j <= m.NrStage; ++j)
    line.append(stripped(m.StageSize(j, day))).append(",");
  line.append(stripped(m.StageSize(m.NrStage - 1, day) + m.StageSize(m.NrStage, day)));
  // The file stays open: a later run without a new click adds its line.
  session.files.output(kStageExportFile).print(line);
}

void writeTotalSizeExport(Session& session) {
  writeTotal(session, DateExport::TotalSize, session.model().TotalSize);
}

void writeWeighedSizeExport(Session& session) {
  writeTotal(session, DateExport::WeighedSize, session.model().WeighedSize);
}

void writeConsumptionExport(Session& session) {
  writeTotal(session, DateExport::Consumption, session.model().TotalConsumption);
}

} // namespace vorlex
