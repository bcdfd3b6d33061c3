#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace vorlex::testing {

/// An empty folder of its own for the files of one run.
class RunFolder {
public:
  explicit RunFolder(const std::string& name) {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    dir_ = std::filesystem::path(::testing::TempDir()) / "vorlex-runs" / name /
           (test ? std::string(test->test_suite_name()) + "." + test->name() : std::string("any"));
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  std::string path(const std::string& file) const { return (dir_ / file).string(); }
  /// Copies a file in under a name of its own; returns its path.
  std::string copy(const std::string& from, const std::string& as) const {
    std::filesystem::copy_file(from, dir_ / as, std::filesystem::copy_options::overwrite_existing);
    return path(as);
  }
  const std::filesystem::path& dir() const { return dir_; }

private:
  std::filesystem::path dir_;
};

} // namespace vorlex::testing
