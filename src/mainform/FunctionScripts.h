#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vorlex {

class MainForm;

// The clicks and keystrokes of the carrying-capacity form and the threshold
// form, given as one short text, so that the command line runs exactly what
// a user does on the forms. The values are the texts typed into the boxes,
// in the order the forms show them.

/// A form script that names no form, or clicks a button that can't be
/// clicked now.
class FormScriptError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// An option of a form and the texts to type into its boxes.
struct FormChoice {
  int option = 0;
  std::vector<std::pair<std::string, std::string>> boxes; // box, text
};

/// "logistic:KMAX,K0,R", "polynomial:A,B,C,D,XFROM,XTO",
/// "parabola:Y0,YMAX,XMAX,XFROM,XTO" or "none". Throws
/// FormScriptError, naming the forms, for anything else.
FormChoice parseCarryingCapacity(const std::string& text);
/// "constant:A", "linear:A,B", "logistic:A,B,C,L" or "hyperbola:A,B".
FormChoice parseEtEquation(const std::string& text);

/// Density-dependent K?, the option, its boxes typed, Calculate (not for
/// "none"), Go back: with the simulation time in force now. Called after
/// the strategy is chosen and before the run, or, for a projection after
/// sampling, after the load and before that projection. Throws
/// FormScriptError when Density-dependent K? cannot be clicked now.
void applyCarryingCapacity(MainForm& form, const FormChoice& choice);
/// ET(t), the equation's option, its boxes typed, Enter in the last one,
/// Main form: EtDay then holds the equation for days 0..SimTime+1. Throws
/// FormScriptError when ET(t) cannot be clicked now.
void applyEtEquation(MainForm& form, const FormChoice& choice);

} // namespace vorlex
