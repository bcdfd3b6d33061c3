#pragma once

#include "datafile/DataFileReader.h"
#include "model/Session.h"
#include "textio/RuntimeError.h"
#include "textio/SilentPrompter.h"

#include <fstream>
#include <memory>
#include <sstream>
#include <string>

namespace vorlex::testing {

/// A prompter for tests that never asks anything.
using NoPrompts = SilentPrompter;

/// A prompter that never asks and keeps the last message it was to show.
class RecordingPrompts : public NoPrompts {
public:
  std::string lastTitle, lastText;
  void inform(const std::string& text, const std::string& title) override {
    lastText = text;
    lastTitle = title;
  }
};

/// A session of its own with a prompter that never asks.
struct TestSession {
  NoPrompts prompts;
  std::unique_ptr<Session> session = std::make_unique<Session>(prompts);
  Model& m = session->model();

  explicit TestSession(int simTime = 60) {
    m.SimTime = static_cast<i16>(simTime);
    m.SimTimeNext = static_cast<i16>(simTime + 1);
  }
  /// Reads data-file text as the load does.
  void read(const std::string& text, bool withCxj = false, const std::string& name = "test.txt") {
    session->flags.WithCxj = withCxj ? "Yes" : "No";
    session->files.attachInput(kDataFile, ItemReader(text), name);
    if (withCxj)
      VorlexAwithCxj(*session);
    else
      VorlexA(*session);
  }
};

inline std::string dataPath(const std::string& name) {
  return std::string(VORLEX_TEST_DATA_DIR) + "/" + name;
}
inline std::string examplePath(const std::string& name) {
  return std::string(VORLEX_SOURCE_DIR) + "/examples/" + name;
}

inline std::string fileText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream all;
  all << in.rdbuf();
  return all.str();
}

/// Reads a data file of tests/data (plain form) into a session as the load
/// does; with `reportInMemory` the report is open, in memory.
inline void loadTestData(Session& session, const std::string& name, bool reportInMemory = true) {
  session.flags.WithCxj = "No";
  session.files.attachInput(kDataFile, ItemReader(fileText(dataPath(name))), name);
  VorlexA(session);
  if (reportInMemory)
    session.files.attachOutput(kReportFile, OutputFile::inMemory());
}

/// Replaces the first occurrence of a text; the test fails loudly through an
/// empty result if it isn't there.
inline std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const auto at = text.find(from);
  if (at == std::string::npos)
    return {};
  return text.replace(at, from.size(), to);
}

/// The error a callable stops with; a default error if it doesn't stop.
template <typename F> RuntimeError errorOf(F&& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return error;
  }
  return RuntimeError(ErrorCode::InvalidProcedureCall, "did not stop");
}

} // namespace vorlex::testing
