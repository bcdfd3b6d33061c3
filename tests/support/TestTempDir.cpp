// Every run of the test program writes under a folder of its own, so that
// tests run side by side (ctest -j, or two builds at once) never share a
// file: the folder is made as the tests start and given to them as their
// temporary folder. It is removed when every test passed and kept,
// with its path printed, when one failed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

std::string makeFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "vorlex-tests-XXXXXX").string();
  if (!mkdtemp(pattern.data()))
    return {};
  setenv("TEST_TMPDIR", pattern.c_str(), 1);
  return pattern;
}

class OwnTempDir : public ::testing::Environment {
public:
  // Made when the tests start, not when they are only listed.
  void SetUp() override { folder_ = makeFolder(); }
  void TearDown() override {
    if (folder_.empty())
      return;
    if (::testing::UnitTest::GetInstance()->Passed()) {
      std::error_code ignored;
      std::filesystem::remove_all(folder_, ignored);
    } else {
      std::cerr << "Files of the failed tests are kept in " << folder_ << '\n';
    }
  }

private:
  std::string folder_;
};

[[maybe_unused]] ::testing::Environment* const kOwnTempDir =
    ::testing::AddGlobalTestEnvironment(new OwnTempDir);

} // namespace
