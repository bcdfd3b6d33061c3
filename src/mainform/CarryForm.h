#pragma once

#include "charts/ChartContent.h"

#include <span>
#include <string>

namespace vorlex {

class Session;

/// The form "K(0), Kmax, r and simulation time" (CarryFrm) without its
/// widgets: four options for the form of the carrying capacity K(t), a
/// frame of boxes for each of the first three, Calculate, Preview, Find the
/// parabola, Go back, and a chart. Its controls live in session.controls as
/// "CarryFrm.<name>", a box keeping its text as its caption; the form
/// itself as "CarryFrm".
///
/// The form passes through three stages: editing; calculated (Go back
/// enabled); left (frames, Calculate and Preview disabled for good, so the
/// form can be looked at and no more changed). Choosing an option after
/// Calculate disables Go back again until the next Calculate; "No
/// density-dependent mortality" needs no Calculate.
class CarryForm {
public:
  /// A parameter box: control name, label, default text, the option whose
  /// frame holds it (0 for the output box of the parabola).
  struct Box {
    const char* name;
    const char* label;
    const char* text;
    int option;
  };
  /// An option: control name, caption, and the frame it shows (none for 4).
  struct Option {
    const char* name;
    const char* caption;
    const char* frame;
  };

  explicit CarryForm(Session& session);

  static constexpr const char* kTitle = "K(0), Kmax, r and simulation time";
  static constexpr const char* kPolynomialLabel = " y = a + b * x + c * x ^ d ";
  /// The boxes in their order on the form, and the four options.
  static std::span<const Box> boxes();
  static std::span<const Option> options();

  /// The control name of one of the form's controls in the session.
  static std::string control(const std::string& name);

  /// Loads the form the first time it is shown: the instructions label.
  void loadOnce();
  void Form_Load();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void Option4_Click();
  /// Clicks OptionN, N = 1..4.
  void chooseOption(int number);
  /// The option selected; "No density-dependent mortality" at the start.
  int selectedOption() const { return selected_; }

  /// Calculate K(i) and show graph: fills K(t) and the day coefficients of
  /// the selected form and draws it.
  void Command1_Click();
  /// Go back to mainform: locks the form and shows the main form.
  void Command2_Click();
  /// Preview: the polynomial's K(t) drawn, the coefficients left alone.
  void Command3_Click();
  /// Find the parabola for the above data: draws it and writes its
  /// equation into Text14.
  void Command4_Click();
  /// The window is closed: back to the main form.
  void Form_Unload();

  /// Types a text into a box (replacing what it held).
  void type(const std::string& box, const std::string& text);
  const std::string& text(const std::string& box) const;

  /// What the chart shows.
  const ChartContent& chart() const { return chart_; }

private:
  void selectOption(int number);
  void calculate();
  double number(const char* box) const;
  void showChart(ChartContent content);

  Session& session_;
  int selected_ = 4;
  bool loaded_ = false;
  ChartContent chart_;
};

} // namespace vorlex
