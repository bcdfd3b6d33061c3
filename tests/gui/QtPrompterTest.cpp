// The dialogs the desktop program asks with.
#include "ui/QtPrompter.h"
#include "GuiSupport.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using vorlex::testing::whenDialogShows;
using vorlex::ui::QtPrompter;

class QtPrompterTest : public QObject {
  Q_OBJECT
private slots:
  void valueBoxShowsDefaultReadyAndGivesTypedText() {
    QtPrompter prompter;
    QString shownDefault, shownTitle, shownLabel;
    whenDialogShows([&](QWidget* dialog) {
      auto* input = qobject_cast<QInputDialog*>(dialog);
      if (!input) {
        dialog->close();
        return;
      }
      shownDefault = input->textValue();
      shownTitle = input->windowTitle();
      shownLabel = input->labelText();
      input->setTextValue(QStringLiteral("0.5"));
      input->accept();
    });
    const std::string answer =
        prompter.askValue("Enter the time unit\n(For any other, enter 1.)", "Each time unit =?", "1");
    QCOMPARE(shownDefault, QStringLiteral("1"));
    QCOMPARE(shownTitle, QStringLiteral("Each time unit =?"));
    QCOMPARE(shownLabel, QStringLiteral("Enter the time unit\n(For any other, enter 1.)"));
    QCOMPARE(answer, std::string("0.5"));
  }

  void cancelledValueBoxGivesEmptyText() {
    QtPrompter prompter;
    whenDialogShows([](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->reject(); });
    QCOMPARE(prompter.askValue("What is the day?", "Initial population released date?", "0"), std::string());
  }

  void yesNoHasTwoButtonsAndNoIcon() {
    QtPrompter prompter;
    QMessageBox::Icon icon = QMessageBox::Critical;
    QStringList buttons;
    whenDialogShows([&](QWidget* dialog) {
      auto* box = qobject_cast<QMessageBox*>(dialog);
      if (!box) {
        dialog->close();
        return;
      }
      icon = box->icon();
      for (QAbstractButton* button : box->buttons())
        buttons << button->text().remove(QLatin1Char('&'));
      box->button(QMessageBox::No)->click();
    });
    QCOMPARE(prompter.askYesNo("Physogastric reproduction?", "Attention"), false);
    QCOMPARE(icon, QMessageBox::NoIcon);
    buttons.sort();
    QCOMPARE(buttons, (QStringList{QStringLiteral("No"), QStringLiteral("Yes")}));

    whenDialogShows(
        [](QWidget* dialog) { qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Yes)->click(); });
    QCOMPARE(prompter.askYesNo("Do you need the record of program flow?", "Do you need flow record?"), true);
  }

  void informShowsTextWithOk() {
    QtPrompter prompter;
    QString text;
    int buttonCount = 0;
    whenDialogShows([&](QWidget* dialog) {
      auto* box = qobject_cast<QMessageBox*>(dialog);
      if (!box) {
        dialog->close();
        return;
      }
      text = box->text();
      buttonCount = static_cast<int>(box->buttons().size());
      box->button(QMessageBox::Ok)->click();
    });
    prompter.inform("The population died out on day 12.", "Attention");
    QCOMPARE(text, QStringLiteral("The population died out on day 12."));
    QCOMPARE(buttonCount, 1);
  }

  void fileDialogsFilterTextAndAllFiles() {
    QtPrompter prompter;
    QTemporaryDir dir;
    const QString chosen = dir.filePath(QStringLiteral("moth.txt"));
    QFile file(chosen);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();

    QStringList filters;
    whenDialogShows([&](QWidget* dialog) {
      if (auto* files = qobject_cast<QFileDialog*>(dialog))
        filters = files->nameFilters();
      vorlex::testing::chooseInFileDialog(dialog, chosen);
    });
    QCOMPARE(QString::fromStdString(prompter.chooseFileToOpen("Open the vorlex data file")), chosen);
    QCOMPARE(filters, (QStringList{QStringLiteral("Text files (*.txt)"), QStringLiteral("All files (*)")}));

    whenDialogShows([](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->reject(); });
    QCOMPARE(prompter.chooseFileToSave("Save the chart as PNG"), std::string());
  }

  void fileDialogsOpenLargeWithNamesAndDatesInView() {
    QtPrompter prompter;
    QTemporaryDir dir;
    for (const char* name : {"moth.txt", "a data file with a rather long name of its own.txt"}) {
      QFile file(dir.filePath(QString::fromLatin1(name)));
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    // As large as asked, unless the screen is smaller (the offscreen one is).
    const QSize expected =
        QSize(900, 600).boundedTo(QGuiApplication::primaryScreen()->availableGeometry().size() * 0.95);
    QVERIFY(expected.width() >= 700 && expected.height() >= 500);
    for (const bool open : {true, false}) {
      QSize size;
      QFileDialog::ViewMode mode = QFileDialog::List;
      int dateEnd = -1, viewWidth = 0;
      whenDialogShows([&](QWidget* dialog) {
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
          files->setDirectory(dir.path());
          // The folder is read in the background.
          auto* tree = files->findChild<QTreeView*>(QStringLiteral("treeView"));
          QTRY_VERIFY_WITH_TIMEOUT(tree && tree->model()->rowCount(tree->rootIndex()) == 2, 10000);
          QApplication::processEvents();
          size = files->size();
          mode = files->viewMode();
          QHeaderView* header = tree->header();
          const int date = header->count() - 1; // name, size, type, date modified
          if (!header->isSectionHidden(date))
            dateEnd = header->sectionViewportPosition(date) + header->sectionSize(date);
          viewWidth = tree->viewport()->width();
          // Every name and date whole in its column.
          for (const int column : {0, date})
            if (static_cast<QAbstractItemView*>(tree)->sizeHintForColumn(column) >
                header->sectionSize(column))
              dateEnd = -2 - column;
          if (open)
            files->grab().save(vorlex::testing::screenshotPath(QStringLiteral("file-dialog.png")));
        }
        qobject_cast<QDialog*>(dialog)->reject();
      });
      if (open)
        prompter.chooseFileToOpen("Open the vorlex data file");
      else
        prompter.chooseFileToSave("Save the chart as PNG");
      QCOMPARE(size, expected);
      QCOMPARE(mode, QFileDialog::Detail);
      // The dates show beside the names without scrolling.
      QVERIFY2(dateEnd > 0 && dateEnd <= viewWidth,
               qPrintable(QStringLiteral("%1 of %2").arg(dateEnd).arg(viewWidth)));
    }
  }
};

QTEST_MAIN(QtPrompterTest)
#include "QtPrompterTest.moc"
