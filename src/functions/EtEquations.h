#pragma once

namespace vorlex {

struct Model;

/// The equations of ET(t) the threshold form offers, by the number of
/// their option on the form.
enum class EtEquation { Constant = 1, Linear = 2, Logistic = 3, Hyperbola = 4 };

/// The parameters of an equation, by name; each equation reads its own.
struct EtParameters {
  double a = 0, b = 0, c = 0, L = 0;
};

/// Fills EtDay for days 0..SimTime+1 (t counts time steps):
///   constant   ET(t) = a
///   linear     ET(t) = a + t b
///   logistic   ET(t) = L + a / (1 + b exp(c t))
///   hyperbola  ET(t) = a t / (t + b)
/// A division by zero or an overflow stops with the platform's error, the
/// days before it filled.
void fillEtFromEquation(Model& m, EtEquation equation, const EtParameters& p);

} // namespace vorlex
