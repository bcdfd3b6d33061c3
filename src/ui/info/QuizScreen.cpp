#include "ui/info/QuizScreen.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <cstddef>

namespace vorlex::ui {

// The worked numbers: e^0.2 = 1.2214; 0.8 x 5 + 0.6 x 10 + 0.5 x 4 = 12,
// while the m(x) alone sum to 19 and the product of the two sums is
// 1.9 x 19 = 36.1; e^-0.05 = 0.9512, a loss of 4.9 % a day.
const std::vector<QuizQuestion>& quizQuestions() {
  static const std::vector<QuizQuestion> questions = {
      {QString::fromUtf8(
           "A population has the intrinsic rate of increase r = 0.2 per day. What is its finite "
           "rate of increase \u03bb?"),
       {QString::fromUtf8("\u03bb = 1.200 per day"), QString::fromUtf8("\u03bb = 1.221 per day"),
        QString::fromUtf8("\u03bb = 0.819 per day"), QString::fromUtf8("\u03bb = 7.389 per day")},
       1,
       QString::fromUtf8("\u03bb = e^r = e^0.2 = 1.221: once the stage structure is stable the population "
                         "multiplies by 1.221 a day. 1 + r is only an approximation for a small r.")},
      {QString::fromUtf8(
           "In a life table the eggs are laid at three ages only: at x = 20, l(x) = 0.8, m(x) = 5; "
           "at x = 21, l(x) = 0.6, m(x) = 10; at x = 22, l(x) = 0.5, m(x) = 4. What is the net "
           "reproductive rate R0?"),
       {"19", "36.1", "12", "1.9"},
       2,
       QString::fromUtf8(
           "R0 = \u03a3 l(x) m(x) = 0.8 \u00d7 5 + 0.6 \u00d7 10 + 0.5 \u00d7 4 = 4 + 6 + 2 = 12. "
           "19 is the sum of m(x) alone, 36.1 the product of the two sums.")},
      {QString::fromUtf8("What does the age-stage survival rate s(x,j) give?"),
       {"The probability that a newborn egg survives to age x and is then in stage j",
        "The share of the individuals of age x in stage j that survive to age x + 1",
        "The mean number of eggs laid by a female of age x",
        "The share of the population that is in stage j on day x"},
       0,
       QString::fromUtf8(
           "s(x,j) is counted from the eggs at the start of the cohort: the individuals of age x "
           "in stage j divided by the number of eggs. Summed over the stages it gives l(x).")},
      {QString::fromUtf8("A life table gives r = \u22120.05 per day. What does this mean?"),
       {"The population grows, but slowly", "The population keeps a constant size",
        "The life table must be wrong: r cannot be negative",
        QString::fromUtf8(
            "The population declines: \u03bb = e^r = 0.951, a loss of about 4.9 % a day, and R0 "
            "is below 1")},
       3,
       QString::fromUtf8(
           "A negative r means decline; \u03bb = e^\u22120.05 = 0.951 < 1. r and ln R0 have the "
           "same sign, so R0 < 1: an individual does not replace itself.")},
      {QString::fromUtf8("Which formula gives the mean generation time T?"),
       {"T = r / ln(R0)", "T = ln(R0) / r", QString::fromUtf8("T = R0 / \u03bb"), "T = e^(r R0)"},
       1,
       QString::fromUtf8("T is the time a population growing at the rate r needs to increase R0-fold: "
                         "e^(rT) = R0, so T = ln(R0) / r.")},
  };
  return questions;
}

int quizScore(const std::vector<int>& chosen) {
  const auto& questions = quizQuestions();
  int score = 0;
  for (std::size_t i = 0; i < questions.size() && i < chosen.size(); ++i)
    if (chosen[i] == questions[i].correct)
      ++score;
  return score;
}

QuizScreen::QuizScreen(QWidget* parent) : QWidget(parent, Qt::Window), score_(new QLabel(this)) {
  setObjectName("Quiz");
  setWindowTitle(tr("Quiz"));
  resize(720, 560);

  auto* page = new QWidget;
  auto* pageLayout = new QVBoxLayout(page);
  const auto& questions = quizQuestions();
  for (std::size_t i = 0; i < questions.size(); ++i) {
    const QuizQuestion& q = questions[i];
    const QString number = QString::number(i + 1);
    auto* box = new QGroupBox(tr("Question %1").arg(number));
    auto* boxLayout = new QVBoxLayout(box);
    auto* text = new QLabel(q.question);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    boxLayout->addWidget(text);
    auto* group = new QButtonGroup(this);
    for (int k = 0; k < q.choices.size(); ++k) {
      auto* option = new QRadioButton(q.choices[k]);
      option->setObjectName(QString("optQ%1_%2").arg(number).arg(k + 1));
      group->addButton(option, k);
      boxLayout->addWidget(option);
    }
    auto* result = new QLabel;
    result->setObjectName("lblResult" + number);
    result->setTextFormat(Qt::PlainText);
    result->setWordWrap(true);
    result->hide(); // until the answers are checked
    boxLayout->addWidget(result);
    pageLayout->addWidget(box);
    groups_.push_back(group);
    results_.push_back(result);
  }
  pageLayout->addStretch();

  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(page);

  score_->setObjectName("lblScore");
  auto* check = new QPushButton(tr("Check answers"), this);
  check->setObjectName("cmdCheck");
  connect(check, &QPushButton::clicked, this, &QuizScreen::checkAnswers);
  auto* back = new QPushButton(tr("Back"), this);
  back->setObjectName("cmdBack");
  connect(back, &QPushButton::clicked, this, &QuizScreen::backClicked);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(score_, 1);
  buttons->addWidget(check);
  buttons->addWidget(back);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(scroll, 1);
  layout->addLayout(buttons);
}

std::vector<int> QuizScreen::chosen() const {
  std::vector<int> answers;
  for (const QButtonGroup* group : groups_)
    answers.push_back(group->checkedId());
  return answers;
}

void QuizScreen::checkAnswers() {
  const auto& questions = quizQuestions();
  const std::vector<int> answers = chosen();
  for (std::size_t i = 0; i < questions.size(); ++i) {
    const QuizQuestion& q = questions[i];
    QString verdict;
    if (answers[i] == q.correct)
      verdict = tr("Right.");
    else if (answers[i] < 0)
      verdict = tr("Not answered. The answer is: %1.").arg(q.choices[q.correct]);
    else
      verdict = tr("Wrong. The answer is: %1.").arg(q.choices[q.correct]);
    results_[i]->setText(verdict + ' ' + q.explanation);
    results_[i]->setStyleSheet(answers[i] == q.correct ? "color: darkgreen" : "color: darkred");
    results_[i]->show();
  }
  score_->setText(tr("You answered %1 of %2 correctly.").arg(quizScore(answers)).arg(questions.size()));
}

void QuizScreen::closeEvent(QCloseEvent* event) {
  emit backClicked();
  event->accept();
}

} // namespace vorlex::ui
