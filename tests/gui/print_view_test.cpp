#include "plots/curves.h"
#include "qt/form_binding.h"
#include "qt/print_view_window.h"
#include "qt/printer.h"
#include "qt/text.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPageLayout>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <stdexcept>

namespace parabolt::support {
namespace {

constexpr int kRows = 12;

/// A part of a window that the test can't do without.
template <class Widget>
Widget* part(const QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    return found != nullptr ? found : throw std::logic_error(name);
}

/// What the main form would hand over: a plot of one red path of 240 yards on a scale of 300, and a
/// table whose rows are as wide as they get.
struct PrintedReport : testing::Test {
    PrintedReport() {
        qputenv("CUPS_SERVER", "/nonexistent"); // tests reach no printer
        outer.setGeometry({0, 0, 11000, 4400});
        inner.setGeometry({390, 420, 10200, 3600});
        RunRecord run;
        run.CurveColor = {255, 0, 0};
        run.Path = {{0, 0}, {120, 60}, {240, 0}};
        DrawPrintFrame({outer, inner}, 300);
        DrawPrintCurves({outer, inner}, std::vector{RunRecord{}, run}, std::vector{1});
        for (int i = 1; i <= kRows; ++i)
            table += "row" + std::to_string(i) + std::string(i < 10 ? 116 : 115, ' ') + "last\n";
        txtResult.insert(0, table, kBlack);
    }
    Outcome<void, std::string> write(const QString& name, QPageSize::PageSizeId paper) {
        return writePdf(name, paper, "The title", [this](Page& page) {
            ComposeReport(page, 1, 2.5, {"Fitting", table, {outer, inner}});
        });
    }
    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(-1) && process.exitCode() == 0)
            << program.toStdString();
        return process.readAllStandardOutput();
    }

    ControlSet mainForm;
    PictureBox outer{mainForm, "Picture3", kWhite, kBlack};
    PictureBox inner{mainForm, "Picture4", kWhite, kBlack};
    RichTextBox txtResult{mainForm, "txtResult"};
    std::string table;
    QtPrinter printer;
    ScriptedMessageBoxes messages;
    frmPrintView frm{{outer, inner}, txtResult, printer, messages};
    PrintViewForm& form = frm.form;
    TemporaryFolder folder;
    QString file = toQt(folder.path("report.pdf"));
};

TEST_F(PrintedReport, IsTextAndLinesInsideItsFrameOnEachPaper) {
    static const QRegularExpression boxed(
        R"re(<word xMin="(\S+)" yMin="(\S+)" xMax="(\S+)" yMax="(\S+)">(\S+)<)re");
    for (const auto& [paper, size] : {std::pair{QPageSize::A4, "842 x 595 pts (A4)"},
                                      {QPageSize::Letter, "792 x 612 pts (letter)"},
                                      {QPageSize::A5, "595 x 420 pts (A5)"}}) {
        ASSERT_TRUE(write(file, paper));
        const QString info = output("pdfinfo", {file});
        EXPECT_TRUE(info.contains("The title") && info.contains(size)) << info.toStdString();
        EXPECT_EQ(output("pdfimages", {"-list", file}).count('\n'), 2) << "the head, and no image";
        EXPECT_TRUE(output("pdffonts", {file}).contains("Bold"));
        const std::string picture = folder.path("page");
        output("pdftoppm", {"-r", "72", "-aaVector", "no", "-singlefile", file, toQt(picture)});
        const QImage page(toQt(picture + ".ppm"));
        QRectF ink, red; // in points
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x) {
                if (page.pixelColor(x, y) != QColor(Qt::white))
                    ink |= QRectF(x, y, 1, 1);
                if (page.pixelColor(x, y) == QColor(Qt::red) && y > 72) // below the legend
                    red |= QRectF(x, y, 1, 1);
            }
        EXPECT_TRUE(QRectF(page.rect()).adjusted(14, 14, -14, -14).contains(ink));
        EXPECT_NEAR(ink.left(), page.width() * 0.2 / 11 + 14.4, 2)
            << "the frame stands beside the margin";
        QMultiHash<QString, QRectF> words;
        for (const auto& match : boxed.globalMatch(output("pdftotext", {"-bbox", file, "-"}))) {
            const auto point = [&](int x) {
                return QPointF(match.captured(x).toDouble(), match.captured(x + 1).toDouble());
            };
            words.insert(match.captured(5), {point(1), point(3)});
            EXPECT_TRUE(ink.adjusted(4, 4, -4, -4).contains(words.value(match.captured(5))));
        }
        EXPECT_EQ(words.count("last"), kRows);
        const auto top = [&](const char* word) { return words.value(word).top(); };
        const double down[] = {top("Fitting"),     red.top(),   red.bottom(), top("300"),
                               top("Parameters:"), top("row1"), top("row12")};
        EXPECT_TRUE(std::is_sorted(std::begin(down), std::end(down)));
        // The ring around the landing reaches a yard beyond it.
        EXPECT_NEAR(red.width() / red.height(), 241 / 60.0, 0.1) << "both axes on one scale";
        EXPECT_NEAR((words.value("300").left() - red.left()) / red.width(), 300 / 241.0, 0.01);
    }
    const qint64 size = QFileInfo(file).size();
    {
        const FailingDisk disk(1000);
        EXPECT_FALSE(write(file, QPageSize::A4));
    }
    EXPECT_EQ(QFileInfo(file).size(), size);
    const auto refused = write("/dev/full", QPageSize::A4);
    ASSERT_FALSE(refused);
    EXPECT_NE(refused.why().find("not an ordinary file"), std::string::npos) << refused.why();
}

TEST(Paper, IsThatOfTheUsersCountry) {
    struct Setting {
        const char *all, *paper, *lang;
        QPageSize::PageSizeId expected;
    };
    const char* const names[] = {"LC_ALL", "LC_PAPER", "LANG"};
    const QByteArray before[] = {qgetenv(names[0]), qgetenv(names[1]), qgetenv(names[2])};
    for (const auto& [all, paper, lang, expected] :
         {Setting{"", "fr_CA.UTF-8", "fr_FR.UTF-8", QPageSize::Letter},
          {"", "en_GB", "en_US.UTF-8", QPageSize::A4},
          {"", "", "en_US.UTF-8", QPageSize::Letter},
          {"de_DE@euro", "en_US", "en_US", QPageSize::A4}}) {
        qputenv(names[0], all);
        qputenv(names[1], paper);
        qputenv(names[2], lang);
        EXPECT_EQ(usualPaper(), expected) << all << paper << lang;
    }
    for (std::size_t i = 0; i < std::size(names); ++i)
        qputenv(names[i], before[i]);
}

// The side to which the printer turns the page isn't known: what is drawn has to fit both ways.
TEST(Paper, KeepsThePrintersWidestMarginsWhenItIsTurned) {
    const PageSize page = turnedToLandscape({QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                             QMarginsF(11, 17, 23, 85), QPageLayout::Point});
    constexpr double kPoints = 72;
    EXPECT_NEAR(page.width * kPoints, 842, 0.5);
    EXPECT_NEAR(page.height * kPoints, 595, 0.5);
    EXPECT_NEAR((page.width - page.printableWidth) * kPoints, 85 + 85, 0.01);
    EXPECT_NEAR((page.height - page.printableHeight) * kPoints, 23 + 23, 0.01);
}

TEST_F(PrintedReport, IsPreviewedInThePagesShapeAndPrintedToANamedFile) {
    PrintViewWindow window(frm);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(window.focusWidget()->objectName(), "txtCaption");
    const auto press = [&](const char* name) {
        QTest::mouseClick(part<QPushButton>(window, name), Qt::LeftButton);
    };
    const auto print = [&](const std::string& name) {
        const auto dialog = [] {
            auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            return modal != nullptr && modal->objectName() == "printFileDialog" ? modal : nullptr;
        };
        asSoonAs(
            window, [=] { return dialog() != nullptr; },
            [=, this] {
                auto* edit = dialog()->findChild<QLineEdit*>("fileNameEdit");
                if (edit == nullptr) {
                    ADD_FAILURE() << "no place for a name";
                    return dialog()->reject();
                }
                edit->setText(toQt(folder.path(name)));
                dialog()->accept();
            });
        press("cmdPrint");
    };
    auto* sheet = part<QWidget>(window, "Picture0");
    const auto* result = part<QLabel>(window, "lblResult");
    form.txtCaption.setText("Before");
    print("report"); // no preview is needed
    EXPECT_TRUE(result->text().contains(toQt(folder.path("report.pdf"))));
    const QString printed = output("pdftotext", {toQt(folder.path("report.pdf")), "-"});
    EXPECT_TRUE(printed.contains("Before") && printed.contains("row12"));
    press("cmdPrintPreview");
    const PageSize paper = printer.paper();
    EXPECT_NEAR(sheet->width() * paper.height / paper.width, sheet->height(), 3);
    EXPECT_TRUE(window.rect().contains(sheet->geometry()));
    const QImage before = sheet->grab().toImage();
    int red = 0; // of the curve, and more than its swatch in the legend
    for (int x = 0; x < before.width(); ++x)
        for (int y = before.height() / 5; y < before.height(); ++y)
            red += before.pixelColor(x, y).green() < 150 && before.pixelColor(x, y).red() > 200;
    EXPECT_GT(red, before.width() / 4);
    form.txtCaption.setText("After"); // shows at the next preview
    EXPECT_EQ(sheet->grab().toImage(), before);
    int updates = 0;
    form.Picture0.onViewChange = [&, show = form.Picture0.onViewChange] {
        ++updates;
        show();
    };
    press("cmdPrintPreview");
    EXPECT_GT(updates, 0) << "the old page would stay";
    EXPECT_NE(sheet->grab().toImage(), before);
    std::filesystem::create_directory(folder.path("taken.pdf"));
    print("taken.pdf/x/y");
    EXPECT_EQ(messages.texts.size(), 1U);
    EXPECT_EQ(result->text(), "");
    txtResult.insert(0, QString("further\n").repeated(12).toStdString(), kBlack);
    const frmPrintView longer({outer, inner}, txtResult, printer, messages);
    EXPECT_EQ(longer.form.lblRows.caption().substr(0, 2), "6 ") << "twelve and twelve, of eighteen";
    form.txtCaption.setText("");
    print("untitled");
    EXPECT_TRUE(
        output("pdfinfo", {toQt(folder.path("untitled.pdf"))}).contains(" Parabolt - Report\n"));
    press("cmdClose");
    EXPECT_FALSE(window.isVisible());
}

} // namespace
} // namespace parabolt::support
