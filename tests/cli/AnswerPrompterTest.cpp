#include "cli/AnswerPrompter.h"
#include "support/RunFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace vorlex::cli {
namespace {

TEST(AnswerPrompter, TheValueFollowsTheLastEqualsSign) {
  std::ostringstream out;
  AnswerPrompter prompter(out);
  prompter.addAnswer("Each time unit =?=0.5");
  EXPECT_EQ(prompter.askValue("Enter the time unit\n(more)", "Each time unit =?", "1"), "0.5");
  EXPECT_EQ(out.str(), "[Each time unit =?] Enter the time unit => 0.5\n");
}

// Number entry takes what it can of an answer and says what it read.
TEST(AnswerPrompter, ANumberReadOtherThanTypedIsShown) {
  struct Case {
    const char* answer;
    double read;
    const char* shown;
  };
  for (const Case& c : {Case{"Box=12abc", 12, "[Box] p => 12abc\n    (read as the number 12)\n"},
                        Case{"Box=abc", 0, "[Box] p => abc\n    (read as the number 0)\n"},
                        Case{"Box=", 0, "[Box] p => (Cancel)\n    (read as the number 0)\n"},
                        Case{"Box= 0.50", .5, "[Box] p =>  0.50\n"}}) {
    std::ostringstream out;
    AnswerPrompter prompter(out);
    prompter.addAnswer(c.answer);
    EXPECT_EQ(askNumber(prompter, "p", "Box", "7"), c.read) << c.answer;
    EXPECT_EQ(out.str(), c.shown) << c.answer;
  }
}

TEST(AnswerPrompter, RepeatedTitlesTakeTheirAnswersInOrderThenDefaults) {
  std::ostringstream out;
  AnswerPrompter prompter(out);
  prompter.addAnswer("Attention=Yes");
  prompter.addAnswer("Attention=no");
  prompter.addAnswer("Box=");
  EXPECT_TRUE(prompter.askYesNo("first", "Attention"));
  EXPECT_FALSE(prompter.askYesNo("second", "Attention"));
  EXPECT_FALSE(prompter.askYesNo("third", "Attention"));
  EXPECT_EQ(prompter.askValue("p", "Box", "7"), ""); // an empty answer is a Cancel
  EXPECT_EQ(prompter.askValue("p", "Box", "7"), "7");
  EXPECT_EQ(prompter.chooseFileToOpen("Open"), "");
  EXPECT_TRUE(prompter.unusedAnswers().empty());
  EXPECT_NE(out.str().find("[Attention] third => No (default)\n"), std::string::npos);
  EXPECT_NE(out.str().find("[Box] p => (Cancel)\n"), std::string::npos);
}

TEST(AnswerPrompter, AnswersFileSkipsCommentsAndUnusedAnswersAreReported) {
  vorlex::testing::RunFolder folder("answers");
  const std::string path = folder.path("answers.txt");
  std::ofstream(path)
      << "# dialogue of a test\r\n\r\n  # indented comment\nLower fecundity=0.25\r\nNever=1\n";
  std::ostringstream out;
  AnswerPrompter prompter(out);
  prompter.addAnswersFromFile(path);
  EXPECT_EQ(prompter.askValue("p", "Lower fecundity", "0.3"), "0.25");
  EXPECT_EQ(prompter.unusedAnswers(), std::vector<std::string>{"Never"});
}

TEST(AnswerPrompter, MalformedAnswersAreRefused) {
  std::ostringstream out;
  AnswerPrompter prompter(out);
  EXPECT_THROW(prompter.addAnswer("no equals sign"), AnswerError);
  EXPECT_THROW(prompter.addAnswer("=value without title"), AnswerError);
  EXPECT_THROW(prompter.addAnswersFromFile("/nonexistent/answers.txt"), AnswerError);
  prompter.addAnswer("Attention=perhaps");
  EXPECT_THROW(prompter.askYesNo("p", "Attention"), AnswerError);
}

} // namespace
} // namespace vorlex::cli
