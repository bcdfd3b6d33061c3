#include "mainform/FunctionScripts.h"

#include "mainform/MainForm.h"

namespace vorlex {

namespace {

struct FormShape {
  const char* word;
  int option;
  std::vector<const char*> boxes;
};

const std::vector<FormShape> kCapacityForms = {
    {"logistic", 1, {"Text1", "Text2", "Text3"}},
    {"polynomial", 2, {"Text5", "Text6", "Text7", "Text8", "Text9", "Text10"}},
    {"parabola", 3, {"Text11", "Text12", "Text13", "Text15", "Text16"}},
    {"none", 4, {}},
};

const std::vector<FormShape> kEtForms = {
    {"constant", 1, {"Text1"}},
    {"linear", 2, {"Text2", "Text3"}},
    {"logistic", 3, {"txtA", "txtB", "txtC", "txtL"}},
    {"hyperbola", 4, {"Text7", "Text8"}},
};

std::vector<std::string> splitAtCommas(const std::string& text) {
  std::vector<std::string> pieces(1);
  for (char c : text)
    if (c == ',')
      pieces.emplace_back();
    else
      pieces.back() += c;
  return pieces;
}

FormChoice parse(const std::string& text, const std::vector<FormShape>& shapes, const char* usage) {
  const auto colon = text.find(':');
  const std::string word = text.substr(0, colon);
  for (const FormShape& shape : shapes) {
    if (word != shape.word)
      continue;
    FormChoice choice{shape.option, {}};
    if (shape.boxes.empty()) {
      if (colon != std::string::npos)
        break;
      return choice;
    }
    if (colon == std::string::npos)
      break;
    const std::vector<std::string> values = splitAtCommas(text.substr(colon + 1));
    if (values.size() != shape.boxes.size())
      break;
    for (std::size_t i = 0; i < values.size(); ++i)
      choice.boxes.emplace_back(shape.boxes[i], values[i]);
    return choice;
  }
  throw FormScriptError("'" + text + "' is none of " + usage);
}

bool enabled(MainForm& form, const char* name) { return form.controlEnabled(name); }

} // namespace

FormChoice parseCarryingCapacity(const std::string& text) {
  return parse(text, kCapacityForms,
               "logistic:KMAX,K0,R, polynomial:A,B,C,D,XFROM,XTO, parabola:Y0,YMAX,XMAX,XFROM,XTO, none");
}

FormChoice parseEtEquation(const std::string& text) {
  return parse(text, kEtForms, "constant:A, linear:A,B, logistic:A,B,C,L, hyperbola:A,B");
}

void applyCarryingCapacity(MainForm& form, const FormChoice& choice) {
  if (!enabled(form, "cmdKandT"))
    throw FormScriptError("\"Density-dependent K?\" can't be clicked now: it opens once a data file is read");
  form.cmdKandT_Click();
  CarryForm& carry = form.carryingCapacity();
  carry.chooseOption(choice.option);
  for (const auto& [box, text] : choice.boxes)
    carry.type(box, text);
  if (choice.option != 4)
    carry.Command1_Click();
  carry.Command2_Click();
}

void applyEtEquation(MainForm& form, const FormChoice& choice) {
  if (!enabled(form, "cmdETandAT"))
    throw FormScriptError("\"ET(t)\" can't be clicked now: it opens once a data file is read");
  form.cmdETandAT_Click();
  EtAtForm& threshold = form.threshold();
  threshold.chooseOption(choice.option);
  for (const auto& [box, text] : choice.boxes)
    threshold.change(box, text);
  threshold.keyPress(choice.boxes.back().first, EtAtForm::kEnter);
  threshold.Command1_Click();
}

} // namespace vorlex
