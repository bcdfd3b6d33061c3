#pragma once

#include "charts/ChartContent.h"

#include <span>
#include <string>

namespace vorlex {

class Session;

/// The form "ET and AT" (ETandAT) without its widgets: four equations of
/// the threshold ET(t), each with its option and parameter boxes, a chart
/// and a button back to the main form. Its controls live in
/// session.controls as "ETandAT.<name>", a box keeping its text as its
/// caption; the form itself as "ETandAT".
///
/// Choosing an equation fills EtDay for days 0..SimTime+1 and draws it.
/// Typing in a box selects its equation: if that was not selected yet, the
/// table is filled at once with the text as typed so far; otherwise nothing
/// changes until Enter in a box, or a click on the option.
class EtAtForm {
public:
  /// A parameter box: control name, label, default text, its option.
  struct Box {
    const char* name;
    const char* label;
    const char* text;
    int option;
  };

  explicit EtAtForm(Session& session);

  static constexpr const char* kTitle = "ET and AT";
  /// The key code of Enter.
  static constexpr int kEnter = 13;
  static std::span<const Box> boxes();
  /// The captions of Option1..Option4.
  static std::span<const char* const> optionCaptions();
  static std::string control(const std::string& name);

  /// The form loads the first time anything touches it: it draws EtDay as
  /// it stands then.
  void loadOnce();
  void Form_Load();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();
  /// Clicks OptionN, N = 1..4.
  void chooseOption(int number);
  /// The equation selected, 0 while none is.
  int selectedOption() const { return selected_; }

  /// The text of a box becomes `text` (a keystroke, a paste, or a program
  /// writing it): its Change.
  void change(const std::string& box, const std::string& text);
  /// A key pressed in a box; Enter fills the table by the box's equation.
  void keyPress(const std::string& box, int keyCode);
  /// Main form: hides the form and shows the main form.
  void Command1_Click();
  void Form_Unload();

  const std::string& text(const std::string& box) const;
  const ChartContent& chart() const { return chart_; }
  /// Replaces what the chart shows (the main form draws on it too).
  void showChart(ChartContent content) { chart_ = std::move(content); }

private:
  void fill(int option);
  const Box& box(const std::string& name) const;

  Session& session_;
  int selected_ = 0;
  bool loaded_ = false;
  ChartContent chart_;
};

} // namespace vorlex
