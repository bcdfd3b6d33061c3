#include "ui/info/ClosingScreen.h"
#include "ui/info/InfoScreen.h"
#include "ui/info/InfoTexts.h"
#include "ui/info/QuizScreen.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTextBrowser>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <set>
#include <vector>

using namespace vorlex::ui;

namespace {

// The works the References screen lists, in its order: surname, year and
// the journal, volume and pages (or publisher) that tell the work apart.
struct Work {
  QString surname;
  int year;
  QString source;
};

const std::vector<Work> kWorks = {
    {"Leslie", 1945, "Biometrika 33: 183-212"},
    {"Birch", 1948, "Journal of Animal Ecology 17: 15-26"},
    {"Caswell", 2001, "Sinauer Associates, Sunderland, MA"},
    {"Carey", 1993, "Oxford University Press, New York"},
    {"Abbott", 1925, "Journal of Economic Entomology 18: 265-267"},
    {"Henderson", 1955, "Journal of Economic Entomology 48: 157-161"},
};

const std::vector<const char*> kReadingForms = {"Introfrm", "Intro1", "Intro2", "Intro0", "HowToPrint"};

std::unique_ptr<InfoScreen> screen(const char* formName) {
  return std::unique_ptr<InfoScreen>(makeInformationScreen(formName));
}

QString bodyText(const InfoScreen& s) { return s.findChild<QTextBrowser*>("txtBody")->toPlainText(); }

// Every four-digit number in parentheses, as it appears.
std::vector<int> yearsInParentheses(const QString& text) {
  std::vector<int> years;
  static const QRegularExpression year(R"(\((\d{4})\))");
  for (const auto& match : year.globalMatch(text))
    years.push_back(match.captured(1).toInt());
  return years;
}

QRadioButton* choice(QuizScreen& quiz, std::size_t question, int index) {
  return quiz.findChild<QRadioButton*>(QString("optQ%1_%2").arg(question + 1).arg(index + 1));
}

QString resultText(QuizScreen& quiz, std::size_t question) {
  return quiz.findChild<QLabel*>(QString("lblResult%1").arg(question + 1))->text();
}

QString scoreText(QuizScreen& quiz) { return quiz.findChild<QLabel*>("lblScore")->text(); }

void click(QWidget* widget) {
  QVERIFY(widget);
  QTest::mouseClick(widget, Qt::LeftButton);
}

// A radio button takes clicks on its circle and its text only; the middle of
// a wide button with a short text is beside both.
void clickCircle(QRadioButton* option) {
  QVERIFY(option);
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
}

} // namespace

class InfoScreensTest : public QObject {
  Q_OBJECT

private slots:
  void screensByFormName() {
    const std::map<QString, QString> titles = {
        {"Introfrm", "Introduction I1"}, {"Intro1", "Introduction I2"}, {"Intro2", "Introduction I3"},
        {"Intro0", "Introduction I4"},   {"Referenc", "References"},    {"HowToPrint", "How to print"},
    };
    for (const auto& [form, title] : titles) {
      auto s = std::unique_ptr<InfoScreen>(makeInformationScreen(form));
      QVERIFY2(s, qPrintable(form));
      QCOMPARE(s->objectName(), form);
      QCOMPARE(s->windowTitle(), title);
      QVERIFY(s->isWindow());
      QVERIFY(!s->heading().isEmpty());
      auto* body = s->findChild<QTextBrowser*>("txtBody");
      QVERIFY(body);
      QVERIFY(body->isReadOnly());
      QVERIFY2(bodyText(*s).size() > 400, qPrintable(form));
      QVERIFY(s->findChild<QPushButton*>("cmdBack"));
    }
    for (const char* unknown : {"", "Intro3", "introfrm", "Quiz", "Endfrm", "Mainform"})
      QVERIFY2(!screen(unknown), unknown);
  }

  void introductionsSayWhatTheyTeach() {
    const std::map<QString, QStringList> terms = {
        {"Introfrm", {"sxj", "fxj", "lx = \u2211j sxj", "males", "stage overlap", "cohort"}},
        {"Intro1",
         {"R0 = \u2211x lx mx", "Birch (1948)", "\u03bb = er", "T = ln R0 / r", "R0 = F \u00d7 Nf / N"}},
        {"Intro2", {"nxj(t)", "Stable age-stage distribution", "converges to r"}},
        {"Intro0", {"Quorat", "ET(t)", "K(t)", "corrected mortality", "_0_output.txt"}},
        {"HowToPrint",
         {"Print this form", "Print to File (PDF)", "SVG", "PNG", "82 characters", "Courier 10"}},
    };
    for (const auto& [form, words] : terms) {
      const QString text = bodyText(*screen(qPrintable(form))).simplified();
      for (const QString& word : words)
        QVERIFY2(text.contains(word), qPrintable(form + ": " + word));
    }
  }

  void referencesListTheSixWorksInOrder() {
    auto s = screen("Referenc");
    QString text = bodyText(*s).simplified();
    qsizetype previous = -1;
    for (const Work& work : kWorks) {
      const qsizetype at = text.indexOf(QString("%1 ").arg(work.surname));
      QVERIFY2(at > previous, qPrintable(work.surname));
      QVERIFY2(text.indexOf(QString("(%1)").arg(work.year)) > at, qPrintable(work.surname));
      QVERIFY2(text.indexOf(work.source) > at, qPrintable(work.source));
      previous = at;
    }
    std::vector<int> years = yearsInParentheses(text);
    std::sort(years.begin(), years.end());
    QCOMPARE(years, (std::vector<int>{1925, 1945, 1948, 1955, 1993, 2001}));
  }

  // A citation elsewhere is "Surname (year)" or "Surname & Surname (year)"
  // of one of the six works; no other year stands in parentheses and no
  // work of many authors is cited. Together the screens cite every work the
  // list holds, so the list carries nothing that nothing cites.
  void otherScreensCiteOnlyTheReferences() {
    std::map<QString, int> yearOf;
    for (const Work& work : kWorks)
      yearOf[work.surname] = work.year;
    static const QRegularExpression citation(R"(([A-Z][a-z]+)(?: (?:&|and) [A-Z][a-z]+)? \((\d{4})\))");
    std::set<QString> cited;
    for (const char* form : kReadingForms) {
      const QString text = bodyText(*screen(form)).simplified();
      QVERIFY2(!text.contains("et al"), form);
      int citations = 0;
      for (const auto& match : citation.globalMatch(text)) {
        const QString surname = match.captured(1);
        QVERIFY2(yearOf.count(surname) == 1, qPrintable(QString(form) + ": " + match.captured(0)));
        QCOMPARE(match.captured(2).toInt(), yearOf[surname]);
        cited.insert(surname);
        ++citations;
      }
      QCOMPARE(static_cast<int>(yearsInParentheses(text).size()), citations);
    }
    std::set<QString> all;
    for (const Work& work : kWorks)
      all.insert(work.surname);
    QCOMPARE(cited, all);
  }

  void backAndFrameCloseGoBack() {
    for (const char* form : {"Introfrm", "Intro1", "Intro2", "Intro0", "Referenc", "HowToPrint"}) {
      auto s = screen(form);
      QSignalSpy back(s.get(), &InfoScreen::backClicked);
      s->show();
      click(s->findChild<QPushButton*>("cmdBack"));
      QCOMPARE(back.count(), 1);
      QVERIFY(s->close());
      QCOMPARE(back.count(), 2);
      QVERIFY(!s->isVisible());
    }
    QuizScreen quiz;
    QSignalSpy back(&quiz, &QuizScreen::backClicked);
    quiz.show();
    click(quiz.findChild<QPushButton*>("cmdBack"));
    QCOMPARE(back.count(), 1);
    QVERIFY(quiz.close());
    QCOMPARE(back.count(), 2);
  }

  void closingScreenEnds() {
    ClosingScreen end;
    QCOMPARE(end.objectName(), QString("Endfrm"));
    QCOMPARE(end.windowTitle(), QString("Vorlex"));
    QVERIFY(end.findChild<QLabel*>("lblThanks")->text().contains("_0_output.txt"));
    QSignalSpy ended(&end, &ClosingScreen::endClicked);
    end.show();
    click(end.findChild<QPushButton*>("cmdEnd"));
    QCOMPARE(ended.count(), 1);
    QVERIFY(end.close());
    QCOMPARE(ended.count(), 2);
  }

  void quizQuestionsAreWellFormed() {
    const auto& questions = quizQuestions();
    QCOMPARE(static_cast<int>(questions.size()), 5);
    for (const QuizQuestion& q : questions) {
      QVERIFY2(q.choices.size() >= 3 && q.choices.size() <= 4, qPrintable(q.question));
      QVERIFY2(q.correct >= 0 && q.correct < q.choices.size(), qPrintable(q.question));
      QStringList distinct = q.choices;
      QVERIFY2(distinct.removeDuplicates() == 0, qPrintable(q.question));
      QVERIFY(!q.explanation.isEmpty());
    }
  }

  // The worked answers, computed here from the numbers the questions give.
  void quizAnswersHold() {
    const auto& questions = quizQuestions();
    int worked = 0;
    for (const QuizQuestion& q : questions) {
      const QString answer = q.choices[q.correct];
      static const QRegularExpression rate(R"(r = ([\d.]+) per day.*finite rate)");
      if (const auto match = rate.match(q.question); match.hasMatch()) {
        const double lambda = QRegularExpression(R"([\d.]+)").match(answer).captured(0).toDouble();
        QVERIFY2(std::abs(lambda - std::exp(match.captured(1).toDouble())) < 0.0005, qPrintable(answer));
        ++worked;
      }
      static const QRegularExpression cell(R"(l\(x\) = ([\d.]+), m\(x\) = ([\d.]+))");
      double r0 = 0;
      int cells = 0;
      for (const auto& m : cell.globalMatch(q.question)) {
        r0 += m.captured(1).toDouble() * m.captured(2).toDouble();
        ++cells;
      }
      if (cells > 0) {
        QVERIFY2(std::abs(answer.toDouble() - r0) < 1e-9, qPrintable(answer));
        ++worked;
      }
      if (q.question.contains("generation time T")) {
        QCOMPARE(answer, QString("T = ln(R0) / r"));
        ++worked;
      }
      if (q.question.contains("r = \u22120.05")) {
        QVERIFY(answer.contains("declines"));
        QVERIFY(answer.contains(QString::number(std::exp(-0.05), 'f', 3)));
        ++worked;
      }
      if (q.question.contains("s(x,j)"))
        QVERIFY(answer.contains("newborn egg survives to age x and is then in stage j"));
    }
    QCOMPARE(worked, 4);
  }

  void quizScoreCounts() {
    std::vector<int> right;
    for (const QuizQuestion& q : quizQuestions())
      right.push_back(q.correct);
    QCOMPARE(quizScore(right), 5);
    QCOMPARE(quizScore({-1, -1, -1, -1, -1}), 0);
    QCOMPARE(quizScore({}), 0);

    std::vector<int> oneWrong = right;
    oneWrong[2] = (right[2] + 1) % 3;
    QCOMPARE(quizScore(oneWrong), 4);
    std::vector<int> outOfRange = right;
    outOfRange[0] = 7;
    outOfRange[4] = -1;
    QCOMPARE(quizScore(outOfRange), 3);
    // Missing answers at the end are wrong; answers beyond the last
    // question do not count.
    QCOMPARE(quizScore({right[0], right[1]}), 2);
    std::vector<int> longer = right;
    longer.push_back(0);
    longer.push_back(right[0]);
    QCOMPARE(quizScore(longer), 5);
  }

  void quizMarksClickedAnswers() {
    const auto& questions = quizQuestions();
    {
      QuizScreen quiz;
      QCOMPARE(quiz.objectName(), QString("Quiz"));
      QCOMPARE(quiz.windowTitle(), QString("Quiz"));
      quiz.show();
      QVERIFY(QTest::qWaitForWindowExposed(&quiz));
      for (std::size_t i = 0; i < questions.size(); ++i)
        clickCircle(choice(quiz, i, questions[i].correct));
      click(quiz.findChild<QPushButton*>("cmdCheck"));
      QCOMPARE(scoreText(quiz), QString("You answered 5 of 5 correctly."));
      for (std::size_t i = 0; i < questions.size(); ++i)
        QVERIFY2(resultText(quiz, i).startsWith("Right."), qPrintable(resultText(quiz, i)));
    }
    {
      QuizScreen quiz;
      quiz.show();
      QVERIFY(QTest::qWaitForWindowExposed(&quiz));
      click(quiz.findChild<QPushButton*>("cmdCheck"));
      QCOMPARE(scoreText(quiz), QString("You answered 0 of 5 correctly."));
      for (std::size_t i = 0; i < questions.size(); ++i)
        QVERIFY(resultText(quiz, i).startsWith("Not answered."));
    }
    {
      // All right but the third; then the third is changed to right and
      // checked again, the marks following the new choice.
      QuizScreen quiz;
      quiz.show();
      QVERIFY(QTest::qWaitForWindowExposed(&quiz));
      for (std::size_t i = 0; i < questions.size(); ++i)
        clickCircle(choice(quiz, i, i == 2 ? (questions[i].correct + 1) % 3 : questions[i].correct));
      click(quiz.findChild<QPushButton*>("cmdCheck"));
      QCOMPARE(scoreText(quiz), QString("You answered 4 of 5 correctly."));
      QVERIFY(resultText(quiz, 2).startsWith("Wrong."));
      QVERIFY(resultText(quiz, 2).contains(questions[2].choices[questions[2].correct]));
      QVERIFY(resultText(quiz, 1).startsWith("Right."));
      // One choice a question: clicking another answer of the same
      // question replaces the first.
      clickCircle(choice(quiz, 2, questions[2].correct));
      QCOMPARE(quiz.chosen()[2], questions[2].correct);
      click(quiz.findChild<QPushButton*>("cmdCheck"));
      QCOMPARE(scoreText(quiz), QString("You answered 5 of 5 correctly."));
      QVERIFY(resultText(quiz, 2).startsWith("Right."));
    }
  }

  void screenshotOfIntroductionI1() {
    auto s = screen("Introfrm");
    s->show();
    QVERIFY(QTest::qWaitForWindowExposed(s.get()));
    QVERIFY(QDir().mkpath(VORLEX_SCREENSHOT_DIR));
    QVERIFY(s->grab().save(VORLEX_SCREENSHOT_DIR "/intro1.png"));
    // The quiz after checking, one answer wrong and one missing.
    const auto& questions = quizQuestions();
    QuizScreen quiz;
    quiz.show();
    QVERIFY(QTest::qWaitForWindowExposed(&quiz));
    clickCircle(choice(quiz, 0, (questions[0].correct + 1) % 3));
    clickCircle(choice(quiz, 2, questions[2].correct));
    click(quiz.findChild<QPushButton*>("cmdCheck"));
    QCoreApplication::processEvents(); // the layout makes room for the marks
    QVERIFY(quiz.grab().save(VORLEX_SCREENSHOT_DIR "/quiz.png"));
  }
};

QTEST_MAIN(InfoScreensTest)
#include "InfoScreensTest.moc"
