#include "FormPrinting.h"

#include <QPainter>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QWidget>

namespace vorlex::ui {

bool printForm(QWidget& form, QPrinter& printer) {
  const QPixmap picture = form.grab();
  QPainter painter;
  if (!painter.begin(&printer))
    return false;
  const QRect page = painter.viewport();
  QSize size = picture.size();
  size.scale(page.size(), Qt::KeepAspectRatio);
  painter.setViewport(page.x(), page.y(), size.width(), size.height());
  painter.setWindow(picture.rect());
  painter.drawPixmap(0, 0, picture);
  return painter.end();
}

void printFormWithDialog(QWidget& form) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(form.width() > form.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPrintDialog dialog(&printer, &form);
  dialog.setWindowTitle(QObject::tr("Print %1").arg(form.windowTitle()));
  if (dialog.exec() == QDialog::Accepted)
    printForm(form, printer);
}

} // namespace vorlex::ui
