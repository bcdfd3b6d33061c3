#include "support/TestSession.h"

#include <gtest/gtest.h>

#include <random>

namespace vorlex::testing {
namespace {

// Whatever the bytes, reading a data file either succeeds or stops with a
// run-time error or a deliberate end: never a crash, a hang or another
// exception.
TEST(DataFileReaderFuzz, MutatedExamplesNeverCrash) {
  const std::string moth = fileText(examplePath("moth.txt"));
  const std::string alphabet = "0123456789.,-+eE \"\r\nabc";
  std::mt19937 random(20261121);
  int read = 0, stopped = 0;
  for (int round = 0; round < 150; ++round) {
    std::string text = moth;
    const int edits = 1 + static_cast<int>(random() % 4);
    for (int e = 0; e < edits; ++e) {
      const std::size_t at = random() % text.size();
      switch (random() % 3) {
      case 0: text[at] = alphabet[random() % alphabet.size()]; break;
      case 1: text.erase(at, 1 + random() % 8); break;
      default: text.insert(at, 1, alphabet[random() % alphabet.size()]); break;
      }
    }
    TestSession t(static_cast<int>(random() % 100));
    try {
      t.read(text);
      ++read;
    } catch (const RuntimeError&) {
      ++stopped;
    } catch (const ProgramEnd&) {
      ++stopped;
    }
  }
  EXPECT_EQ(read + stopped, 150);
  EXPECT_GT(stopped, 0);
  EXPECT_GT(read, 0);
}

} // namespace
} // namespace vorlex::testing
