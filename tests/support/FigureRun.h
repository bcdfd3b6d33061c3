#pragma once

#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

namespace vorlex::testing {

/// A prompter that gives its listed answers to value prompts in turn and
/// the default text after them; it keeps the prompts it was asked.
class ListedAnswers : public NoPrompts {
public:
  std::deque<std::string> answers;
  struct Asked {
    std::string prompt, title, defaultText;
  };
  std::vector<Asked> asked;

  std::string askValue(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override {
    asked.push_back({prompt, title, defaultText});
    if (answers.empty())
      return defaultText;
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// A session that writes its files into an empty folder of its own test:
/// BaseName is that folder + "/run". Flags as after a plain load.
struct FigureRun {
  ListedAnswers prompts;
  Session session{prompts};
  Model& m = session.model();
  std::string folder;
  std::string base;

  FigureRun() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder = ::testing::TempDir() + "figures-" + test->test_suite_name() + "-" + test->name();
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    base = folder + "/run";
    session.names.BaseName = base;
    session.flags.OnlyTotalFigures = "No";
    session.flags.Physogastry = "No";
    session.flags.WithCxj = "No";
  }

  /// Eggs, female and male, days 0..simTime, all series 0.
  void threeStages(int simTime) {
    m.NrStage = 3;
    m.StageName(1) = "Eggs";
    m.StageName(2) = "Fema";
    m.StageName(3) = "Male";
    m.SimTime = static_cast<i16>(simTime);
    m.TimeUnit = 1;
  }

  /// The tiny three-stage table projected from day 0 to simTime + 1, with
  /// the report closed again as a strategy leaves it.
  void projectTiny3(int simTime) {
    session.files.attachInput(kDataFile, ItemReader(fileText(dataPath("tiny3.txt"))), "tiny3.txt");
    VorlexA(session);
    session.files.close(kDataFile);
    session.files.attachOutput(kReportFile, OutputFile::inMemory());
    m.SimTime = static_cast<i16>(simTime);
    VorlexBSetStageSurvivalRto1(session);
    VorlexDGosub160PopulationGrowth(session);
    session.files.close(kReportFile);
  }

  std::string path(const std::string& suffix) const { return base + "-" + suffix + ".txt"; }
  std::string figure(const std::string& suffix) const { return fileText(path(suffix)); }
  bool hasFigure(const std::string& suffix) const { return std::filesystem::exists(path(suffix)); }

  /// Names of the files in the folder, sorted.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  void recordFlow() {
    session.flags.FlowFlag = "Yes";
    session.files.attachOutput(kFlowFile, OutputFile::inMemory());
  }
  std::string flow() { return session.files.output(kFlowFile).text(); }
};

/// Line n (from 0) of a file's text, without its line end.
inline std::string lineOf(const std::string& text, int n) {
  std::size_t start = 0;
  for (int i = 0; i < n; ++i) {
    start = text.find("\r\n", start);
    if (start == std::string::npos)
      return "missing";
    start += 2;
  }
  const auto end = text.find("\r\n", start);
  return text.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

/// Number of line ends in a text.
inline long lineCount(const std::string& text) {
  long count = 0;
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 2))
    ++count;
  return count;
}

} // namespace vorlex::testing
