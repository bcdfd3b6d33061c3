#pragma once

class QPrinter;
class QWidget;

namespace vorlex::ui {

/// Prints a form as a picture, as large as the page allows with its shape
/// kept, on a printer that is set up (a PDF file works too). Returns false
/// when the printer cannot start.
bool printForm(QWidget& form, QPrinter& printer);

/// Asks through the print dialog (a printer, or a PDF file) and prints the
/// form as a picture. Nothing happens when the dialog is cancelled.
void printFormWithDialog(QWidget& form);

} // namespace vorlex::ui
