#include "mainform/CheckDataForm.h"
#include "mainform/Forms.h"
#include "support/RunFolder.h"
#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace vorlex::testing {
namespace {

// Whatever the bytes, the check ends with one of its verdicts and never
// takes the session down; it stops exactly where the load stops, so a file
// it passes is one the load reads.
TEST(CheckDataForm, MutatedExamplesStopTheCheckWhereTheyStopTheLoad) {
  RunFolder folder("check-fuzz");
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string alphabet = "0123456789.,-+eE \"\r\nabc";
  std::mt19937 random(20261122);
  int read = 0, stopped = 0;
  for (int round = 0; round < 100; ++round) {
    std::string text = moth;
    const int edits = 1 + static_cast<int>(random() % 4);
    for (int e = 0; e < edits; ++e) {
      const std::size_t at = random() % text.size();
      switch (random() % 3) {
      case 0:
        text[at] = alphabet[random() % alphabet.size()];
        break;
      case 1:
        text.erase(at, 1 + random() % 8);
        break;
      default:
        text.insert(at, 1, alphabet[random() % alphabet.size()]);
        break;
      }
    }
    const int simTime = static_cast<int>(random() % 100);
    bool loadStops = false;
    try {
      TestSession load(simTime);
      load.read(text);
    } catch (const RuntimeError&) {
      loadStops = true;
    }

    const std::string path = folder.path("mutated.txt");
    std::ofstream(path, std::ios::binary) << text;
    TestSession t(simTime);
    t.session->names.DataFileName = path;
    t.session->flags.WithCxj = "No";
    checkdat::showDataFormat(*t.session);
    const std::string& verdict = t.session->controls[checkdat::kVerdict].caption;
    EXPECT_EQ(verdict == checkdat::kStopped, loadStops) << "round " << round << ":\n" << text;
    EXPECT_TRUE(verdict == checkdat::kStopped || verdict == checkdat::kAgree ||
                verdict == checkdat::kDisagree);
    EXPECT_TRUE(formShows(*t.session, forms::kCheckData));
    (loadStops ? stopped : read) += 1;
  }
  EXPECT_GT(stopped, 0);
  EXPECT_GT(read, 0);
}

} // namespace
} // namespace vorlex::testing
