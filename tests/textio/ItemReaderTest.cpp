#include "textio/ItemReader.h"
#include "textio/RaisedCode.h"
#include "textio/RuntimeError.h"
#include "textio/Value.h"

#include <gtest/gtest.h>

#include <string>

namespace vorlex {
namespace {

using testing_support::raisedCode;

TEST(ItemReaderText, QuotedAndUnquotedItems) {
  ItemReader reader("\"Egg, larva\",  \"  lead\",plain text  ,-.25\r\n  next line \r\n\"\"\r\n");
  EXPECT_EQ(reader.readText(), "Egg, larva");
  EXPECT_EQ(reader.readText(), "  lead");
  EXPECT_EQ(reader.readText(), "plain text");
  EXPECT_EQ(reader.readNumber(), -0.25);
  EXPECT_EQ(reader.readText(), "next line");
  EXPECT_EQ(reader.line(), 2);
  EXPECT_EQ(reader.readText(), "");
  EXPECT_EQ(reader.line(), 3);
  EXPECT_TRUE(reader.atEnd());
}

TEST(ItemReaderNumber, AnySeparatorGivesTheSameNumbers) {
  const char* contents[] = {".5,-3,1E+16",
                            ".5 -3 1E+16",
                            ".5\r\n-3\r\n1E+16\r\n",
                            ".5\n-3\n1E+16",
                            ".5\r-3\r1E+16",
                            ".5 \r\n-3 \r\n1E+16 \r\n",
                            "\r\n.5\r\n\r\n-3,\r\n\r\n  1E+16",
                            "0.5\t-3 , 1e16\r\n \r\n"};
  for (const char* content : contents) {
    ItemReader reader(content);
    EXPECT_EQ(reader.readNumber(), 0.5) << content;
    EXPECT_EQ(reader.readNumber(), -3.0) << content;
    EXPECT_EQ(reader.readNumber(), 1e16) << content;
    EXPECT_TRUE(reader.atEnd()) << content;
  }
}

TEST(ItemReaderNumber, NumberTakesTheNumericPrefixOfItsItem) {
  ItemReader reader("12abc,abc,1.5E-05,\"7\"");
  EXPECT_EQ(reader.readNumber(), 12.0);
  EXPECT_EQ(reader.readNumber(), 0.0);
  EXPECT_EQ(reader.readNumber(), 1.5e-5);
  EXPECT_EQ(reader.readNumber(), 7.0);
}

TEST(ItemReaderNumber, TrailingBlankReadsLikeNone) {
  ItemReader withBlank("Egg \r\n3 \r\nLarva");
  ItemReader without("Egg\r\n3\r\nLarva");
  for (ItemReader* reader : {&withBlank, &without}) {
    EXPECT_EQ(reader->readText(), "Egg");
    EXPECT_EQ(reader->readNumber(), 3.0);
    EXPECT_EQ(reader->readText(), "Larva");
    EXPECT_EQ(reader->line(), 3);
  }
}

TEST(ItemReaderInteger, RoundsTiesToEvenAndOverflows) {
  ItemReader reader("2.5,3.5,-2.5,32767,32768");
  EXPECT_EQ(reader.readInteger(), 2);
  EXPECT_EQ(reader.readInteger(), 4);
  EXPECT_EQ(reader.readInteger(), -2);
  EXPECT_EQ(reader.readInteger(), 32767);
  EXPECT_EQ(raisedCode([&] { reader.readInteger(); }), 6);
}

TEST(ItemReaderValue, QuotedTextStaysTextNumbersBecomeNumbers) {
  ItemReader reader("\"12\",12,2026-11-21,.5, Egg ,\"\"");
  const Value expected[] = {Value("12"), Value(12.0),  Value("2026-11-21"),
                            Value(0.5),  Value("Egg"), Value("")};
  for (const Value& value : expected) {
    const Value read = reader.readValue();
    EXPECT_EQ(read, value) << "item " << reader.itemNumber();
    EXPECT_EQ(read.isNumber(), value.isNumber()) << "item " << reader.itemNumber();
  }
}

TEST(ItemReaderEnd, ReadingPastTheLastItemTellsItemAndLine) {
  ItemReader reader("\"a\",1\r\n\r\n2  ");
  EXPECT_FALSE(reader.atEnd());
  EXPECT_EQ(reader.readText(), "a");
  EXPECT_FALSE(reader.atEnd());
  EXPECT_EQ(reader.readNumber(), 1.0);
  EXPECT_EQ(reader.readNumber(), 2.0);
  EXPECT_EQ(reader.line(), 3);
  EXPECT_TRUE(reader.atEnd());
  try {
    reader.readNumber();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 62);
    EXPECT_EQ(error.text(), "Input past end of file");
  }
  EXPECT_EQ(reader.itemNumber(), 4);
  EXPECT_EQ(reader.line(), 3);
}

TEST(ItemReaderEnd, BlankContentHasNoItems) {
  for (const char* content : {"", "  ", "\r\n \r\n\t\n"}) {
    ItemReader reader(content);
    EXPECT_TRUE(reader.atEnd()) << '"' << content << '"';
    EXPECT_EQ(raisedCode([&] { reader.readText(); }), 62) << '"' << content << '"';
  }
}

} // namespace
} // namespace vorlex
