#pragma once

#include "ui/info/InfoScreen.h"

#include <QString>
#include <QWidget>

namespace vorlex::ui {

/// The screen of one information form, by the form's name: "Introfrm",
/// "Intro1", "Intro2" and "Intro0" (the introductions I1 to I4),
/// "Referenc" (the references) and "HowToPrint". The screen carries the
/// form's name as its objectName. nullptr for any other name. The header
/// brings InfoScreen along, so a caller can connect to what it gets.
InfoScreen* makeInformationScreen(const QString& formName, QWidget* parent = nullptr);

} // namespace vorlex::ui
