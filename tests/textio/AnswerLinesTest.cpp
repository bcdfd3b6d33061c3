#include "textio/AnswerLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorlex {
namespace {

// Each answers file text as "title|value" per answer, in order.
TEST(AnswerLines, AnswersOfAFile) {
  struct Case {
    const char* text;
    std::vector<std::string> answers;
  };
  const Case cases[] = {
      {"", {}},
      {"A=1", {"A|1"}},                                 // no line end after the last line
      {"A=1\r\nB=2\r\n", {"A|1", "B|2"}},               // CR LF
      {"A=1\r", {"A|1"}},                               // a CR alone at the end
      {"Each time unit =?=0.5\n", {"Each time unit =?|0.5"}},
      {"# x=1\n  \t# y=2\n\n \t \nA=\n", {"A|"}},        // comments, blank lines; an empty value
      {"A=1\nA=2\n", {"A|1", "A|2"}},                   // repeated titles keep their order
      {" A = 1 \n", {" A | 1 "}},                       // blanks belong to title and value
      {"A=1\r\r\n", {"A|1\r"}},                         // only one CR ends a line
  };
  for (const Case& c : cases) {
    std::vector<std::string> read;
    for (const Answer& answer : answersOf(c.text))
      read.push_back(answer.title + "|" + answer.value);
    EXPECT_EQ(read, c.answers) << c.text;
  }
}

TEST(AnswerLines, ALineWithoutTitleIsRefusedWithItsText) {
  for (const char* text : {"A=1\nno equals sign\n", "=value\n", "A=1\n\r\n=\n"}) {
    try {
      answersOf(text);
      ADD_FAILURE() << text;
    } catch (const AnswerError& error) {
      EXPECT_NE(std::string(error.what()).find("TITLE=VALUE"), std::string::npos);
    }
  }
}

} // namespace
} // namespace vorlex
