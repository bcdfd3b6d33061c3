#pragma once

#include "mainform/MainForm.h"
#include "model/Session.h"
#include "sampling/StagePrediction.h"
#include "support/RunFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <memory>
#include <string>

namespace vorlex::testing {

/// A main form whose sampling buttons read files of a folder of their own,
/// with the dialogs answered by title.
class SamplingFixture : public ::testing::Test {
protected:
  RunFolder folder{"sampling"};
  ScriptedPrompts prompts;
  Session session{prompts};
  MainForm form{session};
  Model& m = session.model();

  /// Writes a file of the folder, its lines ended CR LF; returns its path.
  std::string write(const std::string& name, std::initializer_list<const char*> lines) {
    std::ofstream out(folder.path(name), std::ios::binary);
    for (const char* line : lines)
      out << line << "\r\n";
    return folder.path(name);
  }
  /// A sampling file of the given records behind its two heading lines.
  std::string sample(const std::string& name, std::initializer_list<const char*> records) {
    std::ofstream out(folder.path(name), std::ios::binary);
    out << "\"counted in the field\"\r\n\"day, stage, count\"\r\n";
    for (const char* record : records)
      out << record << "\r\n";
    return folder.path(name);
  }
  /// The stage-to-stage file of tests/data with five stages.
  std::string stageTimes() {
    return folder.copy(dataPath("stage-times-five.txt"), "0A4_Stage2StageTime.txt");
  }

  /// The clicks up to a loaded life table: the example moth (five stages,
  /// ages 0..45) with a simulation time of 20.
  void loadMoth() {
    prompts.answer(std::string(MainForm::kDataFileDialogTitle) + "=" +
                   folder.copy(examplePath("moth.txt"), "moth.txt"));
    form.Form_Load();
    session.controls["txtSimuT"].caption = "20";
    form.Command2_Click();
    form.cmdInputLTdata_Click();
  }
  void answer(const std::string& title, const std::string& value) { prompts.answer(title + "=" + value); }
  void chooseFiles(const std::string& sampleFile) {
    answer(kStageTimeFileDialogTitle, stageTimes());
    answer(kSamplingFileDialogTitle, sampleFile);
  }
  const SamplingTables& tables() const { return form.sampling().tables(); }
  const ChartContent& chart() const { return form.sampling().chart(); }
};

} // namespace vorlex::testing
