#include "textio/FileTable.h"
#include "textio/RaisedCode.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace vorlex {
namespace {

using testing_support::raisedCode;

class FileTableTest : public ::testing::Test {
protected:
  void SetUp() override {
    directory_ =
        std::filesystem::path(::testing::TempDir()) /
        ("vorlex_filetable_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::create_directories(directory_);
  }
  void TearDown() override {
    files_.closeAll();
    std::filesystem::remove_all(directory_);
  }
  std::string pathOf(const std::string& name) const { return (directory_ / name).string(); }
  static std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
  }

  FileTable files_;
  std::filesystem::path directory_;
};

TEST_F(FileTableTest, NumbersOutsideRangeAreBad) {
  for (int number : {0, -1, 512}) {
    EXPECT_EQ(raisedCode([&] { files_.openOutput(number, pathOf("a.txt")); }), 52) << number;
    EXPECT_EQ(raisedCode([&] { files_.openInput(number, pathOf("a.txt")); }), 52) << number;
  }
  files_.attachOutput(511, OutputFile::inMemory());
  EXPECT_TRUE(files_.isOpen(511));
}

TEST_F(FileTableTest, NumberInUseIsAlreadyOpen) {
  files_.openOutput(2, pathOf("report.txt"));
  EXPECT_EQ(raisedCode([&] { files_.openOutput(2, pathOf("other.txt")); }), 55);
  EXPECT_EQ(raisedCode([&] { files_.openInput(2, pathOf("report.txt")); }), 55);
  EXPECT_EQ(raisedCode([&] { files_.attachInput(2, ItemReader("1")); }), 55);
  EXPECT_EQ(files_.path(2), pathOf("report.txt"));
}

TEST_F(FileTableTest, OnlyOpenFilesOfTheRightModeAreReachable) {
  EXPECT_EQ(raisedCode([&] { files_.output(3); }), 52);
  EXPECT_EQ(raisedCode([&] { files_.input(3); }), 52);
  files_.attachInput(3, ItemReader("1"));
  files_.attachOutput(4, OutputFile::inMemory());
  EXPECT_EQ(raisedCode([&] { files_.output(3); }), 52);
  EXPECT_EQ(raisedCode([&] { files_.input(4); }), 52);
  files_.close(4);
  files_.close(4); // closing a closed number does nothing
  EXPECT_FALSE(files_.isOpen(4));
  EXPECT_EQ(raisedCode([&] { files_.output(4); }), 52);
  files_.attachOutput(4, OutputFile::inMemory());
  EXPECT_TRUE(files_.isOpen(4));
}

TEST_F(FileTableTest, MissingInputFileIsNotFound) {
  EXPECT_EQ(raisedCode([&] { files_.openInput(3, pathOf("missing.txt")); }), 53);
  EXPECT_FALSE(files_.isOpen(3));
}

TEST_F(FileTableTest, WrittenFileReadsBackItemByItem) {
  const std::string path = pathOf("pop.txt");
  files_.openOutput(1, path);
  OutputFile& out = files_.output(1);
  out.write("Egg, larva", -0.25, 1e16, 1.5e-5);
  out.print(1, 2.5, -3);
  out.printOpen("Date:");
  out.print();
  out.write(Value("2026-11-21"), Value(12.0), Value("12"));
  files_.close(1);

  const std::string content = contentOf(path);
  EXPECT_TRUE(content.ends_with("\r\n 1  2.5 -3 \r\nDate:\r\n\"2026-11-21\",12,\"12\"\r\n")) << content;
  EXPECT_TRUE(content.starts_with("\"Egg, larva\",-.25,1E+16,")) << content;

  files_.openInput(3, path);
  ItemReader& in = files_.input(3);
  EXPECT_EQ(in.readText(), "Egg, larva");
  EXPECT_EQ(in.readNumber(), -0.25);
  EXPECT_EQ(in.readNumber(), 1e16);
  EXPECT_EQ(in.readNumber(), 1.5e-5);
  EXPECT_EQ(in.readInteger(), 1);
  EXPECT_EQ(in.readNumber(), 2.5);
  EXPECT_EQ(in.readNumber(), -3.0);
  EXPECT_EQ(in.readText(), "Date:");
  EXPECT_EQ(in.readValue(), Value("2026-11-21"));
  EXPECT_EQ(in.readValue(), Value(12.0));
  EXPECT_EQ(in.readValue(), Value("12"));
  EXPECT_EQ(in.line(), 4);
  EXPECT_TRUE(in.atEnd());
  EXPECT_EQ(raisedCode([&] { in.readText(); }), 62);
}

TEST_F(FileTableTest, OutputReplacesAndAppendExtends) {
  const std::string path = pathOf("flow.txt");
  files_.openOutput(4, path);
  files_.output(4).print("a much longer first text");
  files_.close(4);
  files_.openOutput(4, path);
  files_.output(4).print("short");
  files_.close(4);
  EXPECT_EQ(contentOf(path), "short\r\n");
  files_.openAppend(4, path);
  files_.output(4).write(0.5);
  files_.closeAll();
  EXPECT_EQ(contentOf(path), "short\r\n.5\r\n");
}

// A file is written over and cut at its close: also when the text of the
// first writing took several blocks, and when the file is left open to the
// end of the table that holds it.
TEST_F(FileTableTest, ReplacedFileLosesWhatLayBeyondItsNewText) {
  const std::string path = pathOf("long.txt");
  files_.openOutput(5, path);
  for (int line = 0; line < 20000; ++line)
    files_.output(5).print("line", line);
  files_.close(5);
  EXPECT_GT(contentOf(path).size(), 200000u);
  {
    FileTable left;
    left.openOutput(5, path);
    left.output(5).print("kept");
  }
  EXPECT_EQ(contentOf(path), "kept\r\n");
}

} // namespace
} // namespace vorlex
