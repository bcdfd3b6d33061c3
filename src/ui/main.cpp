// vorlex-gui: the desktop program.
#include "Desktop.h"
#include "MainWindow.h"
#include "QtPrompter.h"
#include "SaveChartsCommand.h"
#include "cli/PictureOptions.h"

#include <QApplication>

#include <iostream>
#include <string>
#include <vector>

namespace {

const char* const kUsage = "Usage:\n"
                           "  vorlex-gui\n"
                           "      Opens the main form.\n";

/// Without a display Qt warns of things that don't matter to pictures (no
/// runtime folder of the user); the rest of what it says is passed on.
void quietWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtWarningMsg && message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
    return;
  std::cerr << qPrintable(qFormatLogMessage(type, context, message)) << '\n';
}

} // namespace

int main(int argc, char* argv[]) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (!args.empty() && (args[0] == "--help" || args[0] == "-h")) {
    std::cout << kUsage << vorlex::cli::kSaveChartsUsage
              << "  vorlex-gui --version\n      Prints the version.\n";
    return 0;
  }
  if (!args.empty() && args[0] == "--version") {
    std::cout << "vorlex-gui " << VORLEX_VERSION << '\n';
    return 0;
  }
  if (vorlex::cli::asksToSaveCharts(args)) {
    // The charts are drawn without a window, with or without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietWithoutDisplay);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vorlex"));
    return vorlex::ui::saveChartsCommand(args, std::cout, std::cerr);
  }

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
