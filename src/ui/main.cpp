// vorlex-gui: the desktop program.
#include "Desktop.h"
#include "MainWindow.h"
#include "QtPrompter.h"

#include <QApplication>

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Vorlex"));
  // Hiding the main form for another form must not end the program; it
  // ends through the closing screen, or when the main form is closed.
  QApplication::setQuitOnLastWindowClosed(false);

  vorlex::ui::QtPrompter prompter;
  vorlex::ui::Desktop desktop(prompter);
  prompter.setParent(&desktop.mainWindow());
  QObject::connect(&desktop, &vorlex::ui::Desktop::programEnded, &app, &QApplication::exit,
                   Qt::QueuedConnection);
  desktop.start();
  return QApplication::exec();
}
