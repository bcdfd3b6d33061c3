#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

class QButtonGroup;
class QCloseEvent;
class QLabel;

namespace vorlex::ui {

/// One multiple-choice question; correct indexes choices.
struct QuizQuestion {
  QString question;
  QStringList choices;
  int correct;
  QString explanation;
};

/// The questions of the quiz, in the order they are asked.
const std::vector<QuizQuestion>& quizQuestions();

/// How many questions chosen answers right: chosen[i] is the index of the
/// choice taken for question i, -1 for none. An unanswered question, an
/// index out of range and a question beyond the end of chosen count as
/// wrong; entries beyond the last question are ignored.
int quizScore(const std::vector<int>& chosen);

/// The quiz on the life table and its parameters. Each question is a group
/// of radio buttons "optQ<i>_<k>" (question and choice from 1) with a result
/// label "lblResult<i>"; "Check answers" marks every question and shows the
/// score in "lblScore". Back and closing by the frame emit backClicked().
class QuizScreen : public QWidget {
  Q_OBJECT

public:
  explicit QuizScreen(QWidget* parent = nullptr);

  /// The choice taken for each question, -1 where none is.
  std::vector<int> chosen() const;

public slots:
  void checkAnswers();

signals:
  void backClicked();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  std::vector<QButtonGroup*> groups_;
  std::vector<QLabel*> results_;
  QLabel* score_;
};

} // namespace vorlex::ui
