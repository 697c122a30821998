#include "qt/data_sets_window.h"
#include "qt/main_window.h"
#include "qt/printer.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QToolTip>
#include <span>

namespace parabolt::support {
namespace {

/// Prints into a file, as where there is no printer.
struct PdfPrinter : Printer {
    QString file;
    PageSize paper() override { return {11, 8.5, 10.6, 8.1}; }
    Outcome<std::string, std::string> print(std::string_view title,
                                            const std::function<void(Page&)>& compose) override {
        if (const auto written = writePdf(file, QPageSize::Letter, title, compose); !written)
            return because(written.why());
        return std::string("It is in the file.");
    }
};

/// Three launches at 9, 12 and 15 degrees, and the window beside the main form.
struct DataSetsWindowTest : testing::Test {
    DataSetsWindowTest() {
        user.main.showDataSets = [this] { sets.show(); };
        main.resize(1280, 800);
        main.show();
        main.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&main));
        form.optLaunch.select();
        for (const char* angle : {"9", "12", "15"}) {
            user.enter(form.txtLaunchAngle, angle);
            user.run();
        }
        QTest::keyClick(&main, Qt::Key_L, Qt::ControlModifier);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&sets));
        sets.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&sets));
        select(0, "Name");
    }

    template <class Widget>
    Widget* find(const char* name) {
        auto* widget = sets.findChild<Widget*>(name);
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    void trigger(const char* name) {
        find<QAction>(name)->trigger();
        QCoreApplication::processEvents();
    }
    int column(const QString& heading) {
        for (int i = 0; i < table->model()->columnCount(); ++i)
            if (table->model()->headerData(i, Qt::Horizontal).toString().startsWith(heading))
                return i;
        ADD_FAILURE() << "no column " << fromQt(heading);
        return 0;
    }
    bool waitForRows(int rows) {
        return QTest::qWaitFor([&] { return table->model()->rowCount() == rows; });
    }
    void select(int row, const QString& heading) {
        table->setCurrentIndex(table->model()->index(row, column(heading)));
    }
    std::string text(int row, const QString& heading) {
        return fromQt(table->model()->index(row, column(heading)).data().toString());
    }
    void type(const QString& name) {
        QTest::keyClick(table, Qt::Key_F2);
        auto* editor = table->viewport()->findChild<QLineEdit*>();
        ASSERT_TRUE(editor);
        QTest::keyClicks(editor, name);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    /// Acts in a modal dialog of that name, once it is there.
    void inDialog(const char* name, const std::function<void(QWidget&)>& act) {
        const auto isUp = [name] {
            const QWidget* modal = QApplication::activeModalWidget();
            return modal != nullptr && modal->objectName() == name;
        };
        asSoonAs(main, isUp, [act] { act(*QApplication::activeModalWidget()); });
    }
    QPoint onPlot(TrajectoryPoint at) {
        const CanvasScale& scale = form.Picture2.scale();
        const auto* plot = main.findChild<QWidget*>("Picture2");
        return {qRound((double{at.x} - scale.left) / scale.width * plot->width()),
                qRound((double{at.y} - scale.top) / scale.height * plot->height())};
    }

    ScriptedForm user;
    FormServices services{user.messages, user.files,  user.preferences,
                          user.desktop,  user.events, "/program"};
    PdfPrinter printer;
    MainWindow main{user.main};
    DataSetsWindow sets{user.main, services, printer};
    TableView* table = find<TableView>("dataSetsTable");
    MainForm& form = user.form;
};

TEST_F(DataSetsWindowTest, NamesTicksAndComparesByKeys) {
    auto* base = find<QComboBox>("dataSetsBase");
    const QImage landing = find<QWidget>("dataSetsLanding")->grab().toImage();
    select(0, "Carry"); // F2 types the name all the same
    QTest::keyClick(table, Qt::Key_Down);
    type("Low spin");
    EXPECT_EQ(form.Runs.tag(2).name, "Low spin");
    EXPECT_EQ(fromQt(base->itemText(1)), "2 Low spin");
    EXPECT_NE(find<QWidget>("dataSetsLanding")->grab().toImage(), landing);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(user.curves(), (std::vector{curveColour(1), curveColour(3)}));
    QTest::keyClick(table, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_Space); // by the first of those that are marked
    EXPECT_EQ(user.curves(), std::vector{curveColour(3)});
    trigger("dataSetsOnlyTicked");
    EXPECT_EQ(table->model()->rowCount(), 1);
    EXPECT_EQ(text(0, "No."), "3");
    trigger("dataSetsAll");
    EXPECT_EQ(table->model()->rowCount(), 3);
    EXPECT_FALSE(find<QAction>("dataSetsOnlyTicked")->isChecked());
    EXPECT_EQ(user.curves().size(), 3U);
    EXPECT_EQ(text(0, "Carry diff."), "0.0");
    const std::string before = text(1, "Carry diff.");
    EXPECT_EQ(before.front(), '+');
    base->setCurrentIndex(1);
    emit base->activated(1);
    EXPECT_EQ(text(0, "Carry diff."), "-" + before.substr(1));
    user.run(); // the window follows
    EXPECT_TRUE(waitForRows(4));
    user.messages.answers = {Answer::Yes};
    user.press(form.Command2);
    EXPECT_TRUE(waitForRows(0));
    EXPECT_FALSE(find<QAction>("dataSetsPrint")->isEnabled());
    EXPECT_TRUE(table->accessibleDescription().contains("Run a shot"));
    form.mnuGoBack.Click();
    EXPECT_TRUE(waitForRows(4));
    EXPECT_EQ(text(1, "Name"), "Low spin");
    EXPECT_EQ(base->currentIndex(), 1);
}

TEST_F(DataSetsWindowTest, TakesASetIntoTheFields) {
    user.enter(form.txtWind, "20");
    form.optManual.select();
    select(1, "Carry");
    trigger("dataSetsTake");
    EXPECT_TRUE(form.optLaunch.selected());
    EXPECT_EQ(form.txtLaunchAngle.text() + " " + form.txtWind.text(), "12 0");
    user.run();
    EXPECT_EQ(form.Runs[4].Path, form.Runs[2].Path);
    EXPECT_EQ(user.messages.texts, Texts());
    bool offered = true; // while a study runs
    user.events.meanwhile = [&] {
        QCoreApplication::processEvents();
        offered = find<QAction>("dataSetsTake")->isEnabled();
    };
    form.mnuStySpin.Click();
    EXPECT_FALSE(offered);
    QCoreApplication::processEvents();
    EXPECT_TRUE(find<QAction>("dataSetsTake")->isEnabled());
}

TEST_F(DataSetsWindowTest, IsAsItWasLeft) {
    const auto toggle = [this](const QString& heading) {
        for (QAction* action : table->columnsMenu()->actions())
            if (action->text().startsWith(heading))
                action->trigger();
    };
    emit table->columnsMenu()->aboutToShow();
    toggle("Mode");
    toggle("Air density");
    table->horizontalHeader()->moveSection(table->horizontalHeader()->visualIndex(column("Carry")),
                                           0);
    table->sortByColumn(column("Carry"), Qt::DescendingOrder);
    EXPECT_EQ(text(0, "No.") + text(1, "No.") + text(2, "No."), "321");
    sets.setGeometry(40, 30, 900, 600);
    trigger("dataSetsOnlyTicked");
    const std::string left = table->layoutText();
    sets.close();
    DataSetsWindow again(user.main, services, printer);
    again.show();
    auto* shown = again.findChild<TableView*>("dataSetsTable");
    EXPECT_EQ(shown->layoutText(), left);
    EXPECT_EQ(again.geometry(), QRect(40, 30, 900, 600));
    EXPECT_TRUE(again.findChild<QAction*>("dataSetsOnlyTicked")->isChecked());
    EXPECT_EQ(shown->model()->index(0, column("No.")).data(), "3");
    EXPECT_TRUE(shown->isColumnHidden(column("Mode")));
    emit shown->columnsMenu()->aboutToShow();
    for (QAction* action : shown->columnsMenu()->actions()) // the last column stays
        if (action->isCheckable() && action->isChecked())
            action->trigger();
    EXPECT_EQ(shown->horizontalHeader()->hiddenSectionCount() + 1, shown->model()->columnCount());
    shown->columnsMenu()->actions().back()->trigger();
    EXPECT_FALSE(shown->isColumnHidden(column("Mode")));
}

TEST_F(DataSetsWindowTest, SortsWhatHasNoFigureLastAndTellsNamesInFull) {
    form.Runs.add(); // a flight that failed
    const std::string name = "<b>" + std::string(80, 'x');
    form.Runs.setTag(2, {name, true, 4});
    ASSERT_TRUE(waitForRows(4));
    for (const auto& [order, rows] :
         {std::pair(Qt::AscendingOrder, "1234"), {Qt::DescendingOrder, "3214"}}) {
        table->sortByColumn(column("Carry"), order);
        EXPECT_EQ(text(0, "No.") + text(1, "No.") + text(2, "No.") + text(3, "No."), rows);
    }
    EXPECT_EQ(text(3, "Carry"), "no landing");
    const QString tip = table->model()->index(1, column("Name")).data(Qt::ToolTipRole).toString();
    EXPECT_EQ(tip, "&lt;b&gt;" + QString(57, 'x'));
}

TEST_F(DataSetsWindowTest, PrintsWhatIsTicked) {
    const TemporaryFolder folder;
    const auto* base = find<QComboBox>("dataSetsBase");
    printer.file = toQt(folder.path("page.pdf"));
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Space);
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_F2); // still being typed when the page comes
    QTest::keyClicks(QApplication::focusWidget(), "The driver");
    inDialog("sheetPreview", [](QWidget& dialog) {
        for (const int width : {100, 700}) { // less than its least size, and more
            dialog.resize(width, 100);
            const auto parts = dialog.findChildren<QWidget*>(
                QRegularExpression("sheet(Player|Fitter|Date|Note|Print|Close)"));
            EXPECT_EQ(parts.size(), 6);
            std::vector<QRect> places;
            for (const QWidget* part : parts) {
                places.emplace_back(part->mapTo(&dialog, QPoint()), part->size());
                EXPECT_TRUE(dialog.rect().contains(places.back())) << width;
                for (const QRect& other : std::span(places).first(places.size() - 1))
                    EXPECT_FALSE(places.back().intersects(other)) << width;
            }
        }
        const QImage before = dialog.findChild<QWidget*>("sheetPage")->grab().toImage();
        QTest::keyClicks(dialog.findChild<QLineEdit*>("sheetPlayer"), "Ann");
        QTest::keyClicks(dialog.findChild<QLineEdit*>("sheetNote"), "windy");
        EXPECT_NE(dialog.findChild<QWidget*>("sheetPage")->grab().toImage(), before);
        dialog.findChild<QPushButton*>("sheetPrint")->click();
        EXPECT_EQ(dialog.findChild<QLabel*>("sheetTold")->text(), "It is in the file.");
        dialog.findChild<QPushButton*>("sheetClose")->click();
    });
    trigger("dataSetsPrint");
    QProcess reader;
    reader.start("pdftotext", {"-layout", printer.file, "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const QString page = QString::fromUtf8(reader.readAllStandardOutput());
    const QString carry = toQt(text(0, "Carry"));
    for (const QString& part :
         {QString("Comparison of Data Sets"), QString("Player: Ann"), QString("Date: 0000-00-00"),
          QString("Note: windy"), QString("1 The driver"), QString("Height in yards"), carry})
        EXPECT_TRUE(page.contains(part)) << fromQt(part + page);
    EXPECT_FALSE(page.contains(toQt(text(1, "Carry")))) << "not ticked";
    EXPECT_EQ(form.windows["dataSets"], "Ann\n\n\nwindy\n") << "the day of another page is another";
    form.windows["dataSets"] = std::string("Ann\n\nin May\nwindy\n");
    inDialog("sheetPreview", [](QWidget& dialog) { dialog.close(); });
    trigger("dataSetsPrint");
    EXPECT_EQ(form.windows["dataSets"], "Ann\n\nin May\nwindy\n");
    sets.resize(512, 384);
    EXPECT_EQ(sets.size(), QSize(512, 384)) << "a small screen";
    EXPECT_TRUE(sets.rect().contains(QRect(base->mapTo(&sets, QPoint()), base->size())));
}

TEST_F(DataSetsWindowTest, GoesOntoTheClipboardAndIntoFiles) {
    const TemporaryFolder folder;
    trigger("dataSetsCopy");
    const QMimeData* copied = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->text().startsWith("No.\tName\tClub\tMode\tCarry [yd]\t"));
    EXPECT_EQ(copied->text().count('\n'), 4);
    EXPECT_TRUE(copied->html().contains("<th>Carry [yd]</th>"));
    EXPECT_FALSE(copied->text().contains("Air density"));
    main.findChild<QAction*>("mnuCopyTable")->trigger();
    copied = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->text().contains("Air density [kg/m3]"));
    EXPECT_TRUE(copied->data("text/csv").startsWith("Show,No.,Name,Club,"));
    user.files.choose(folder.path("mine.csv"));
    trigger("dataSetsExport");
    EXPECT_TRUE(contentOf(folder.path("mine.csv")).starts_with("No.,Name,Club,Mode,Carry [yd],"));

    main.findChild<QAction*>("mnuCopyPlot")->trigger();
    const QImage plot = QApplication::clipboard()->image();
    const QSize shown = main.findChild<QWidget*>("Picture1")->size();
    EXPECT_NEAR(double(plot.width()) / plot.height(), double(shown.width()) / shown.height(), 0.01);
    for (const auto& [choice, factor] : {std::pair(0, 0.5), {2, 1.5625}}) {
        inDialog("exportDensity", [&, index = choice](QWidget& dialog) {
            auto& input = dynamic_cast<QInputDialog&>(dialog);
            input.setTextValue(input.comboBoxItems().at(index));
            input.accept();
        });
        user.files.choose(folder.path("plot.png"));
        main.findChild<QAction*>("mnuExportPlot")->trigger();
        const QImage image(toQt(folder.path("plot.png")));
        EXPECT_NEAR(image.width(), plot.width() * factor, 2);
        EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, 96 * 2 * factor, 1);
    }
    inDialog("exportDensity", [](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).reject(); });
    user.files.choose(folder.path("none.png"));
    main.findChild<QAction*>("mnuExportPlot")->trigger();
    for (const auto& [name, begin] : {std::pair("plot.svg", "<?xml"), {"plot.pdf", "%PDF"}}) {
        user.files.choose(folder.path(name));
        main.findChild<QAction*>("mnuExportPlot")->trigger();
        EXPECT_TRUE(contentOf(folder.path(name)).starts_with(begin)) << name;
    }
    EXPECT_EQ(folder.entries(), 4);
}

TEST_F(DataSetsWindowTest, ThePlotAnswersToPointerAndKeys) {
    auto* plot = main.findChild<QWidget*>("Picture2");
    auto* readout = main.findChild<QLabel*>("plotReadout");
    ASSERT_TRUE(readout);
    sets.hide(); // no window manager would keep it off the plot
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    form.Runs.setTag(2, {"Mine", true, 4});
    const auto& path = form.Runs[2].Path;
    const TrajectoryPoint at = path.at(350);
    const QImage before = plot->grab().toImage();
    QTest::mouseMove(plot, onPlot(at) + QPoint(0, 200));
    QTest::mouseMove(plot, onPlot(at));
    ASSERT_TRUE(QTest::qWaitFor([&] { return readout->isVisible(); }));
    const QStringList told = readout->text().split('\n');
    ASSERT_EQ(told.size(), 3);
    EXPECT_EQ(told[0], "Data set 2 Mine");
    const auto number = [&](int line, int word) { return told[line].split(' ')[word].toDouble(); };
    EXPECT_NEAR(number(1, 1), at.x, 1.5);
    EXPECT_NEAR(number(1, 4), at.y, 1.5);
    EXPECT_NEAR(number(2, 0), 3.5, 0.04);
    EXPECT_TRUE(plot->rect().contains(readout->geometry()));
    const QImage lifted = plot->grab().toImage();
    const QPoint spot = onPlot(path.at(150));
    EXPECT_NE(lifted.pixelColor(spot), before.pixelColor(spot)) << "the whole curve";
    QTest::mouseMove(plot, QPoint(plot->width() / 2, 2)); // far from all curves
    EXPECT_TRUE(QTest::qWaitFor([&] { return !readout->isVisible(); }));
    EXPECT_EQ(plot->grab().toImage(), before) << "as if nothing had been";

    form.Runs.setTag(2, {QString(60, 'W').toStdString(), true, 4});
    QTest::mouseMove(plot, onPlot(at));
    ASSERT_TRUE(QTest::qWaitFor([&] { return readout->isVisible(); }));
    EXPECT_LT(readout->width(), plot->width() / 2);
    EXPECT_TRUE(readout->accessibleName().contains(QString(60, 'W')));
    form.focus.give(form.Picture1);
    QTest::keyClick(&main, Qt::Key_F6); // the pointer rests in the plot, which has the keys
    EXPECT_TRUE(readout->text().startsWith("Data set 3\n")) << fromQt(readout->text());
    QTest::keyClick(&main, Qt::Key_F6);

    user.form.focus.give(form.txtWind);
    QTest::keyClick(&main, Qt::Key_F6);
    ASSERT_TRUE(readout->isVisible());
    EXPECT_TRUE(readout->text().startsWith("Data set 3\n")) << fromQt(readout->text());
    const auto press = [&](int key) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
        return fromQt(readout->text());
    };
    EXPECT_TRUE(press(Qt::Key_Up).starts_with("Data set 1\n"));
    EXPECT_NE(press(Qt::Key_Home).find("\n0.00 s"), std::string::npos);
    EXPECT_NE(press(Qt::Key_Right).find("\n0.10 s"), std::string::npos);
    EXPECT_NE(press(Qt::Key_End).find("height -"), std::string::npos)
        << readout->text().toStdString();
    press(Qt::Key_F6);
    EXPECT_FALSE(readout->isVisible());
    EXPECT_EQ(form.focus.active(), &form.txtWind) << "back where the keys were";
    QTest::keyClick(&main, Qt::Key_F6);
    press(Qt::Key_Escape);
    EXPECT_FALSE(readout->isVisible());
    press(Qt::Key_F6);
    EXPECT_TRUE(readout->isVisible());
    press(Qt::Key_F6);
    EXPECT_EQ(form.focus.active(), &form.txtWind) << "also after Esc";
    user.messages.answers = {Answer::Yes};
    user.press(form.Command2);
    user.form.focus.give(form.txtWind);
    press(Qt::Key_F6);
    press(Qt::Key_F6);
    EXPECT_EQ(form.focus.active(), &form.txtWind) << "also without data sets";
    user.run(3);
    EXPECT_TRUE(main.statusBar()->currentMessage().startsWith("Data set 3: carry "));
}

TEST_F(DataSetsWindowTest, TheResultTableNamesTheColumnUnderThePointer) {
    auto* results = main.findChild<QPlainTextEdit*>("txtResult");
    const auto tipAt = [&](int character) {
        QTextCursor cursor(results->document());
        cursor.setPosition(character);
        const QPoint place = results->cursorRect(cursor).center() + QPoint(2, 20);
        QHelpEvent asks(QEvent::ToolTip, place, results->viewport()->mapToGlobal(place));
        QApplication::sendEvent(results->viewport(), &asks);
        return fromQt(QToolTip::text());
    };
    EXPECT_EQ(tipAt(3), "Wood or iron, its number, and the number of the data set");
    EXPECT_EQ(tipAt(21), "Carry: distance to the landing, yards");
    EXPECT_EQ(tipAt(48), "Back spin at the start, rpm");
}

} // namespace
} // namespace parabolt::support
