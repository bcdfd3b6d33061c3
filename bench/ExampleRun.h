#pragma once

// The bundled example, run as a user clicks it, for the benchmarks.
#include "mainform/MainForm.h"
#include "model/Session.h"
#include "textio/SilentPrompter.h"

#include <filesystem>
#include <string>

namespace vorlex::bench {

/// Takes every default and opens the one data file.
class DefaultAnswers : public SilentPrompter {
public:
  explicit DefaultAnswers(std::string dataFile) : dataFile_(std::move(dataFile)) {}
  std::string chooseFileToOpen(const std::string&) override { return dataFile_; }

private:
  std::string dataFile_;
};

/// A copy of the example in a temporary folder of its own, removed again at
/// the end; the outputs of the runs land beside it.
class ExampleCopy {
public:
  explicit ExampleCopy(const std::string& folder)
      : dir_(std::filesystem::temp_directory_path() / folder), dataFile_(dir_ / "moth.txt") {
    std::filesystem::create_directories(dir_);
    std::filesystem::copy_file(std::filesystem::path(VORLEX_SOURCE_DIR) / "examples" / "moth.txt", dataFile_,
                               std::filesystem::copy_options::overwrite_existing);
  }
  ~ExampleCopy() { std::filesystem::remove_all(dir_); }
  ExampleCopy(const ExampleCopy&) = delete;
  ExampleCopy& operator=(const ExampleCopy&) = delete;

  std::string dataFile() const { return dataFile_.string(); }

private:
  std::filesystem::path dir_;
  std::filesystem::path dataFile_;
};

/// Clicks the example into a session up to the choice of a strategy: the
/// simulation time and the load.
inline void loadExample(MainForm& form, Session& session, int simTime) {
  form.Form_Load();
  session.controls["txtSimuT"].caption = std::to_string(simTime);
  form.Command2_Click();
  form.cmdInputLTdata_Click();
}

/// Clicks a session through to the end of a run without control: the
/// simulation time, the load, Option1, the run; then closes its files.
inline void runWithoutControl(Session& session, int simTime) {
  MainForm form(session);
  loadExample(form, session, simTime);
  form.Option1_Click();
  form.cmdRun_Click();
  session.files.closeAll();
}

} // namespace vorlex::bench
