#include "textio/OutputFile.h"
#include "textio/RaisedCode.h"
#include "textio/Value.h"

#include <gtest/gtest.h>

#include <string>

namespace vorlex {
namespace {

TEST(OutputFilePrint, NumbersInPrintFormTextsAsTheyStand) {
  OutputFile file = OutputFile::inMemory();
  file.print("Total =", 12.0);
  file.print(0.5, -3, "x");
  file.print();
  EXPECT_EQ(file.text(), "Total = 12 \r\n .5 -3 x\r\n\r\n");
  EXPECT_EQ(file.column(), 1);
}

TEST(OutputFilePrint, OpenLineIsContinuedByTheNextPrint) {
  OutputFile file = OutputFile::inMemory();
  file.printOpen("a", 1);
  EXPECT_EQ(file.column(), 5);
  file.printOpen("b");
  file.print("c");
  file.print("d");
  EXPECT_EQ(file.text(), "a 1 bc\r\nd\r\n");
}

TEST(OutputFilePrint, ZoneMovesToTheNextZoneColumn) {
  const std::pair<int, int> cases[] = {// characters already on the line, column after Zone
                                       {0, 15}, {1, 15}, {13, 15}, {14, 29}, {15, 29}, {27, 29}, {28, 43}};
  for (const auto& [written, expected] : cases) {
    OutputFile file = OutputFile::inMemory();
    file.printOpen(std::string(static_cast<std::size_t>(written), 'a'), Zone{});
    EXPECT_EQ(file.column(), expected) << written << " characters written";
    EXPECT_EQ(file.text(), std::string(static_cast<std::size_t>(written), 'a') +
                               std::string(static_cast<std::size_t>(expected - 1 - written), ' '));
  }
}

TEST(OutputFilePrint, ZonesLineUpItems) {
  OutputFile file = OutputFile::inMemory();
  file.print("Age", Zone{}, "Egg", Zone{}, 0.5);
  EXPECT_EQ(file.text(), "Age           Egg            .5 \r\n");
}

TEST(OutputFilePrint, TabGoesToColumnOrToThatColumnOfNextLine) {
  OutputFile file = OutputFile::inMemory();
  file.print("abc", Tab{10}, "x");
  file.print("ab", Tab{3}, "x");
  file.print("abcdef", Tab{3}, "x");
  file.print(Tab{0}, "y");
  // A text with its own line end: the column counts from the break.
  file.print("first\r\nab", Tab{4}, "z");
  EXPECT_EQ(file.text(), "abc      x\r\nabx\r\nabcdef\r\n  x\r\ny\r\nfirst\r\nab z\r\n");
}

TEST(OutputFilePrint, SpcWritesBlanks) {
  OutputFile file = OutputFile::inMemory();
  file.print("a", Spc{3}, "b", Spc{0}, "c");
  EXPECT_EQ(file.text(), "a   bc\r\n");
}

TEST(OutputFileWrite, ItemsQuotedOrInItemFormWithCommas) {
  OutputFile file = OutputFile::inMemory();
  file.write("Egg", 0.5, -3.0, "a, b", 12, 1e16);
  file.write(std::string("Adult"));
  EXPECT_EQ(file.text(), "\"Egg\",.5,-3,\"a, b\",12,1E+16\r\n\"Adult\"\r\n");
}

TEST(OutputFileWrite, ValueIsWrittenByWhatItHolds) {
  OutputFile file = OutputFile::inMemory();
  file.write(Value("12"), Value(12.0), Value("2026-11-21"), Value(-0.25));
  file.print(Value("12"), Value(12.0));
  EXPECT_EQ(file.text(), "\"12\",12,\"2026-11-21\",-.25\r\n12 12 \r\n");
}

TEST(OutputFileWrite, ValueConversions) {
  EXPECT_EQ(Value(0.5).toText(), ".5");
  EXPECT_EQ(Value(" 12 ").toNumber(), 12.0);
  EXPECT_EQ(testing_support::raisedCode([] { Value("2026-11-21").toNumber(); }), 13);
}

} // namespace
} // namespace vorlex
