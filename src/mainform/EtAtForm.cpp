#include "mainform/EtAtForm.h"

#include "functions/EtEquations.h"
#include "functions/FunctionCharts.h"
#include "mainform/Forms.h"
#include "model/Session.h"
#include "textio/NumberForms.h"
#include "textio/RuntimeError.h"

#include <array>

namespace vorlex {

namespace {

constexpr std::array<EtAtForm::Box, 9> kBoxes{{
    {"Text1", "a = ", "10", 1},
    {"Text2", "a = ", "10", 2},
    {"Text3", "b = ", "0.5", 2},
    {"txtA", "a = ", "20", 3},
    {"txtB", "b = ", "100", 3},
    {"txtC", "c = ", "-0.25", 3},
    {"txtL", "L =", "1", 3},
    {"Text7", "a = ", "100", 4},
    {"Text8", "b = ", "20", 4},
}};

constexpr std::array<const char*, 4> kOptionCaptions{{
    "Constant ET or At: ET(t) = a",
    "Linear equation: ET(t) = a + b * t",
    "Logistic equation:   ET(t) = L + a / [1+b* exp( c * t )]",
    "Hyperbola equation: ET(t) = a* t / (b + t)",
}};

} // namespace

std::span<const EtAtForm::Box> EtAtForm::boxes() { return kBoxes; }
std::span<const char* const> EtAtForm::optionCaptions() { return kOptionCaptions; }

std::string EtAtForm::control(const std::string& name) { return std::string(forms::kEtAndAt) + "." + name; }

EtAtForm::EtAtForm(Session& session) : session_(session) {
  auto& controls = session_.controls;
  controls[forms::kEtAndAt] = ControlState{true, false, kTitle, {}};
  controls[control("Frame1")] = ControlState{true, true, " Eequation for ET or AT ", {}};
  for (std::size_t i = 0; i < kOptionCaptions.size(); ++i)
    controls[control("Option" + std::to_string(i + 1))] = ControlState{true, true, kOptionCaptions[i], {}};
  for (const Box& box : kBoxes)
    controls[control(box.name)] = ControlState{true, true, box.text, {}};
  controls[control("Label9")] = ControlState{true, true, "Change of ET or AT with time", {}};
  controls[control("Command1")] = ControlState{true, true, "Main form", {}};
  controls[control("MSChart1")] = ControlState{true, true, {}, {}};
}

void EtAtForm::loadOnce() {
  if (!loaded_)
    Form_Load();
}

void EtAtForm::Form_Load() {
  loaded_ = true;
  showChart(ShowEtorAt(session_.model()));
}

const EtAtForm::Box& EtAtForm::box(const std::string& name) const {
  for (const Box& b : kBoxes)
    if (name == b.name)
      return b;
  raise(ErrorCode::SubscriptOutOfRange, "No box " + name + " on " + forms::kEtAndAt);
}

const std::string& EtAtForm::text(const std::string& name) const {
  return session_.controls.at(control(box(name).name)).caption;
}

void EtAtForm::fill(int option) {
  auto n = [this](const char* name) { return numberEntry(text(name)); };
  EtParameters p;
  switch (option) {
  case 1:
    p.a = n("Text1");
    break;
  case 2:
    p.a = n("Text2");
    p.b = n("Text3");
    break;
  case 3:
    p.a = n("txtA");
    p.b = n("txtB");
    p.c = n("txtC");
    p.L = n("txtL");
    break;
  case 4:
    p.a = n("Text7");
    p.b = n("Text8");
    break;
  default:
    raise(ErrorCode::SubscriptOutOfRange, "Option" + std::to_string(option) + " of ETandAT");
  }
  Model& m = session_.model();
  try {
    fillEtFromEquation(m, static_cast<EtEquation>(option), p);
  } catch (const RuntimeError& error) {
    throw error.at(std::string("\"") + kOptionCaptions[option - 1] + "\" on \"" + kTitle + "\"");
  }
  showChart(ShowEtorAt(m));
}

void EtAtForm::chooseOption(int number) {
  loadOnce();
  if (number < 1 || number > 4)
    raise(ErrorCode::SubscriptOutOfRange, "Option" + std::to_string(number) + " of ETandAT");
  selected_ = number;
  fill(number);
}

void EtAtForm::Option1_Click() { chooseOption(1); }
void EtAtForm::Option2_Click() { chooseOption(2); }
void EtAtForm::Option3_Click() { chooseOption(3); }
void EtAtForm::Option4_Click() { chooseOption(4); }

void EtAtForm::change(const std::string& name, const std::string& newText) {
  loadOnce();
  const Box& changed = box(name);
  session_.controls[control(changed.name)].caption = newText;
  // Setting an option that is already selected does not click it again.
  if (selected_ != changed.option)
    chooseOption(changed.option);
}

void EtAtForm::keyPress(const std::string& name, int keyCode) {
  loadOnce();
  const Box& pressed = box(name);
  if (keyCode == kEnter)
    fill(pressed.option);
}

void EtAtForm::Command1_Click() {
  hideForm(session_, forms::kEtAndAt);
  showForm(session_, forms::kMainform);
}

void EtAtForm::Form_Unload() { Command1_Click(); }

} // namespace vorlex
