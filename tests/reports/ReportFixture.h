#pragma once

#include "engine/PopulationGrowth.h"
#include "model/InitialCalculation.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vorlex::testing {

/// The lines of a text with CR LF line ends, without the end of the last.
inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    const auto end = text.find("\r\n", from);
    if (end == std::string::npos) {
      lines.push_back(text.substr(from) + "<no line end>");
      break;
    }
    lines.push_back(text.substr(from, end - from));
    from = end + 2;
  }
  return lines;
}

/// The pages of a report: [0] is what stands before the first form feed
/// line, [n] what follows the n-th.
inline std::vector<std::string> pagesOf(const std::string& text) {
  std::vector<std::string> pages(1);
  for (const auto& line : linesOf(text)) {
    if (line == "\f")
      pages.emplace_back();
    else
      pages.back() += line + "\r\n";
  }
  return pages;
}

/// Compares a text with its expected lines one by one, so that a failure
/// shows the line and both versions of it.
inline void expectLines(const std::string& text, const std::vector<std::string>& expected) {
  const auto lines = linesOf(text);
  EXPECT_EQ(lines.size(), expected.size()) << text;
  for (std::size_t i = 0; i < std::min(lines.size(), expected.size()); ++i)
    EXPECT_EQ(lines[i], expected[i]) << "line " << i + 1;
}

/// The hand-made table tests/data/tiny3.txt with its report in memory:
/// eggs at ages 0-1, female and male at ages 1-3; 100 eggs of age 0 and 5
/// females of age 2 on day 0. Two days are projected:
///   day   eggs  female  male  total  weighed
///    0    100     5       0    105      5
///    1     70    22.5    20    112.5   32.5
///    2     15    25      31     71     40.5
class Tiny3Report : public ::testing::Test {
protected:
  TestSession t{2};
  Session& session = *t.session;
  Model& m = t.m;

  void SetUp() override {
    t.read(fileText(dataPath("tiny3.txt")));
    session.files.attachOutput(kReportFile, OutputFile::inMemory());
    session.shortDate = "2026-11-21";
  }
  /// Day 0 of a projection without controls.
  void start() { VorlexBSetStageSurvivalRto1(session); }
  void project() { VorlexDGosub160PopulationGrowth(session); }
  std::string report() { return session.files.output(kReportFile).text(); }
};

} // namespace vorlex::testing
