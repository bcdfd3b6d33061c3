#include "SaveChartsCommand.h"

#include "ChartPictures.h"
#include "cli/AnswerPrompter.h"
#include "cli/PictureOptions.h"
#include "cli/RunCommand.h"
#include "mainform/RunCharts.h"
#include "textio/RuntimeError.h"

#include <QDir>

namespace vorlex::ui {

namespace {

int saveCharts(Session& session, const cli::PictureOptions& options, std::ostream& out, std::ostream& err) {
  QDir folder(QString::fromStdString(options.folder));
  if (!folder.mkpath(QStringLiteral("."))) {
    err << "vorlex-gui: the folder " << options.folder << " cannot be made\n";
    return 1;
  }
  const QSize size(options.width, options.height);
  out << "Charts saved in " << options.folder << " (" << options.width << " x " << options.height
      << " pixels, " << options.dpi << " dpi):\n";
  int saved = 0, skipped = 0;
  for (const RunChart& chart : chartsOfRun(session)) {
    if (!chart.content) {
      out << "  " << skippedLine(chart) << '\n';
      ++skipped;
      continue;
    }
    const QString path = folder.filePath(QString::fromStdString(chart.name));
    const QString failure = saveChartPictures(*chart.content, path, size, options.dpi);
    if (!failure.isEmpty()) {
      err << "vorlex-gui: " << failure.toStdString() << '\n';
      return 1;
    }
    out << "  " << chart.name << ".png, .svg\n";
    ++saved;
  }
  out << saved << " charts saved, " << skipped << " skipped.\n";
  return 0;
}

} // namespace

int saveChartsCommand(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
  cli::PictureOptions options;
  try {
    options = cli::takePictureOptions(args);
  } catch (const cli::AnswerError& error) {
    err << "vorlex-gui: " << error.what() << "\nUsage:\n" << cli::kSaveChartsUsage;
    return 2;
  }
  try {
    return cli::runCommand(args, out, err,
                           [&](Session& session) { return saveCharts(session, options, out, err); });
  } catch (const RuntimeError& error) {
    err << "vorlex-gui: " << error.what() << "\nLikely cause: " << error.likelyCause() << '\n';
    return 1;
  } catch (const ProgramEnd& end) {
    err << "vorlex-gui: " << end.what() << '\n';
    return 1;
  }
}

} // namespace vorlex::ui
