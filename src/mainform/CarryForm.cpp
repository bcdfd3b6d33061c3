#include "mainform/CarryForm.h"

#include "functions/CarryingCapacity.h"
#include "functions/FunctionCharts.h"
#include "mainform/Forms.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <array>

namespace vorlex {

namespace {

constexpr std::array<CarryForm::Box, 15> kBoxes{{
    {"Text1", "The max. carrying capacity (Kmax) =", "10000", 1},
    {"Text2", "The initial carrying capacity K(0) =", "100", 1},
    {"Text3", "The increase rate (r) of K =", "0.2", 1},
    {"Text5", "a =", "10", 2},
    {"Text6", "b =", "50", 2},
    {"Text7", "c =", "-0.6", 2},
    {"Text8", "d =", "2", 2},
    {"Text9", "For x =", "0", 2},
    {"Text10", "to", "50", 2},
    {"Text11", "At x(0), y(0) =", "10", 3},
    {"Text12", "Max. y =", "600", 3},
    {"Text13", "x(max. y) =", "45", 3},
    {"Text15", "For x =", "10", 3},
    {"Text16", "to x =", "60", 3},
    {"Text14", "", "", 0},
}};

constexpr std::array<CarryForm::Option, 4> kOptions{{
    {"Option1", "Logistic equation", "Frame2"},
    {"Option2", "Polynomial equation", "Frame4"},
    {"Option3", "Find the parabola with given data", "Frame3"},
    {"Option4", "No density-dependent mortality", nullptr},
}};

// The instructions, in the pieces they are joined from.
constexpr const char* kInstructions[] = {
    " Select an equation to describe the change of",
    " the carrying capacity.  If you choose the",
    " polynomial equation, you can click on \"Preview\" ",
    " to view the graph.  After all parameters are set, click on",
    " \"Calculate K(i) and show graph\", then \"Go back to the mainform\" ",
    " then you can use them in the simulation.",
};

} // namespace

std::span<const CarryForm::Box> CarryForm::boxes() { return kBoxes; }
std::span<const CarryForm::Option> CarryForm::options() { return kOptions; }

std::string CarryForm::control(const std::string& name) {
  return std::string(forms::kCarryingCapacity) + "." + name;
}

CarryForm::CarryForm(Session& session) : session_(session) {
  auto& controls = session_.controls;
  controls[forms::kCarryingCapacity] = ControlState{true, false, kTitle, {}};
  controls[control("Frame1")] = ControlState{true, true, "Select an equation for carrying capacity", {}};
  controls[control("Frame2")] = ControlState{true, false, " Logistic model ", {}};
  controls[control("Frame4")] = ControlState{true, false, "Polynomial equation", {}};
  controls[control("Frame3")] = ControlState{true, false, "Parabola", {}};
  controls[control("lblPolynomial")] = ControlState{true, true, kPolynomialLabel, {}};
  for (const Option& option : kOptions)
    controls[control(option.name)] = ControlState{true, true, option.caption, {}};
  for (const Box& box : kBoxes)
    controls[control(box.name)] = ControlState{true, true, box.text, {}};
  // "No density-dependent mortality" stands selected, with the buttons as
  // its click leaves them.
  controls[control("Command1")] = ControlState{false, true, "Calculate K(i) and show graph", {}};
  controls[control("Command2")] = ControlState{true, true, "Go back to mainform", {}};
  controls[control("Command3")] = ControlState{true, true, "Preview", {}};
  controls[control("Command4")] = ControlState{true, true, "Find the parabola for the above data", {}};
  controls[control("MSChart1")] = ControlState{true, true, {}, {}};
  controls[control("Label12")] = ControlState{true, true, {}, {}};
}

void CarryForm::loadOnce() {
  if (!loaded_)
    Form_Load();
}

void CarryForm::Form_Load() {
  loaded_ = true;
  std::string text;
  for (const char* piece : kInstructions)
    text += piece;
  session_.controls[control("Label12")].caption = text;
}

void CarryForm::selectOption(int number) {
  selected_ = number;
  auto& controls = session_.controls;
  const char* shown = kOptions[number - 1].frame;
  for (const Option& option : kOptions)
    if (option.frame)
      controls[control(option.frame)].visible = std::string(option.frame) == shown;
  session_.flags.WithCarryingCapacity = "Yes";
  controls[control("Command1")].enabled = true;
  controls[control("Command2")].enabled = false;
}

void CarryForm::Option1_Click() { selectOption(1); }
void CarryForm::Option2_Click() { selectOption(2); }
void CarryForm::Option3_Click() { selectOption(3); }

void CarryForm::Option4_Click() {
  // The frames stay as they are.
  selected_ = 4;
  session_.flags.WithCarryingCapacity = "No";
  session_.controls[control("Command1")].enabled = false;
  session_.controls[control("Command2")].enabled = true;
}

void CarryForm::chooseOption(int number) {
  switch (number) {
  case 1:
    return Option1_Click();
  case 2:
    return Option2_Click();
  case 3:
    return Option3_Click();
  case 4:
    return Option4_Click();
  default:
    raise(ErrorCode::SubscriptOutOfRange, "Option" + std::to_string(number) + " of CarryFrm");
  }
}

double CarryForm::number(const char* box) const { return numberEntry(text(box)); }

void CarryForm::type(const std::string& box, const std::string& text) {
  const auto found = session_.controls.find(control(box));
  if (found == session_.controls.end())
    raise(ErrorCode::SubscriptOutOfRange, "No box " + box + " on " + forms::kCarryingCapacity);
  found->second.caption = text;
}

const std::string& CarryForm::text(const std::string& box) const {
  const auto found = session_.controls.find(control(box));
  if (found == session_.controls.end())
    raise(ErrorCode::SubscriptOutOfRange, "No box " + box + " on " + forms::kCarryingCapacity);
  return found->second.caption;
}

void CarryForm::showChart(ChartContent content) { chart_ = std::move(content); }

namespace {

PolynomialBoxes polynomialBoxes(const CarryForm& form) {
  auto n = [&form](const char* box) { return numberEntry(form.text(box)); };
  return {n("Text5"), n("Text6"), n("Text7"), n("Text8"), n("Text9"), n("Text10")};
}

ParabolaBoxes parabolaBoxes(const CarryForm& form) {
  auto n = [&form](const char* box) { return numberEntry(form.text(box)); };
  return {n("Text11"), n("Text12"), n("Text13"), n("Text15"), n("Text16")};
}

} // namespace

namespace {

// Where a failure of the form happened: the button and the form of K.
std::string placeOn(const char* button, int option) {
  std::string place = std::string("\"") + button + "\" on \"" + CarryForm::kTitle + "\"";
  if (option >= 1 && option <= 3)
    place += std::string(", ") + CarryForm::options()[option - 1].caption;
  return place;
}

} // namespace

void CarryForm::Command1_Click() {
  try {
    calculate();
  } catch (const RuntimeError& error) {
    throw error.at(placeOn("Calculate K(i) and show graph", selected_));
  }
}

void CarryForm::calculate() {
  Model& m = session_.model();
  switch (selected_) {
  case 1:
    fillLogisticCapacity(m, number("Text1"), number("Text2"), number("Text3"));
    showChart(ShowLogistic(m));
    break;
  case 2:
    fillPolynomialCapacity(m, polynomialBoxes(*this));
    showChart(ShowPolynomial(m));
    break;
  case 3:
    fillParabolaCapacity(m, parabolaBoxes(*this));
    showChart(ShowParabola(m));
    break;
  default:
    break;
  }
  auto& controls = session_.controls;
  controls[control("Label12")].visible = false;
  controls["cmdKandT"].enabled = false;
  controls[control("Command2")].enabled = true;
}

void CarryForm::Command3_Click() {
  Model& m = session_.model();
  try {
    fillPolynomialGrid(m, polynomialBoxes(*this));
  } catch (const RuntimeError& error) {
    throw error.at(placeOn("Preview", 2));
  }
  showChart(ShowPolynomial(m));
  session_.controls[control("MSChart1")].visible = true;
  session_.controls[control("Label12")].visible = false;
}

void CarryForm::Command4_Click() {
  Model& m = session_.model();
  try {
    fillParabolaGrid(m, parabolaBoxes(*this));
  } catch (const RuntimeError& error) {
    throw error.at(placeOn("Find the parabola for the above data", 3));
  }
  showChart(ShowParabola(m));
  auto& controls = session_.controls;
  controls[control("MSChart1")].visible = true;
  controls[control("Label12")].visible = false;
  controls[control("Text14")].caption = parabolaEquation(m);
}

void CarryForm::Command2_Click() {
  auto& controls = session_.controls;
  controls["cmdKandT"].enabled = false;
  for (const char* name : {"Command1", "Command3", "Frame1", "Frame2", "Frame3", "Frame4"})
    controls[control(name)].enabled = false;
  hideForm(session_, forms::kCarryingCapacity);
  controls["cmdKandT"].enabled = true;
  controls["Command16"].enabled = selected_ != 4;
  showForm(session_, forms::kMainform);
}

void CarryForm::Form_Unload() {
  hideForm(session_, forms::kCarryingCapacity);
  showForm(session_, forms::kMainform);
}

} // namespace vorlex
