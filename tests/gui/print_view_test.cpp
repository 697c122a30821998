#include "plots/curves.h"
#include "qt/print_view_window.h"
#include "qt/printer.h"
#include "qt/text.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

namespace parabolt::support {
namespace {

constexpr int kRows = 12;

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
        DrawPrintCurves({outer, inner}, std::vector{RunRecord{}, run});
        for (int i = 1; i <= kRows; ++i)
            table += "row" + std::to_string(i) + std::string(i < 10 ? 116 : 115, ' ') + "last\n";
        txtResult.insert(0, table, kBlack);
    }
    std::optional<std::string> write(const QString& name, QPageSize::PageSizeId paper) {
        return writePdf(name, paper, "The title", [this](Page& page) {
            ComposeReport(page, 1, 2.5, {"Fitting", table, {outer, inner}});
        });
    }
    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
        return process.readAllStandardOutput();
    }

    ControlSet mainForm;
    PictureBox outer{mainForm, "Picture3", kWhite, kBlack};
    PictureBox inner{mainForm, "Picture4", kWhite, kBlack};
    RichTextBox txtResult{mainForm, "txtResult"};
    std::string table;
    QtPrinter printer;
    ScriptedMessageBoxes messages;
    PrintView view{{outer, inner}, txtResult, printer, messages};
    TemporaryFolder folder;
    QString file = QString::fromStdString(folder.path("report.pdf"));
};

TEST_F(PrintedReport, IsTextAndLinesWhereTheyBelongOnEachPaper) {
    static const QRegularExpression form(
        R"re(<word xMin="(\S+)" yMin="(\S+)" xMax="(\S+)" yMax="(\S+)">(\S+)<)re");
    const struct {
        QPageSize::PageSizeId paper;
        const char* size;
        double scale; ///< of the layout, which Letter is too narrow for
    } papers[] = {{QPageSize::A4, "842 x 595 pts (A4)", 1},
                  {QPageSize::Letter, "792 x 612 pts (letter)", 0.946}};
    for (const auto& [paper, size, scale] : papers) {
        ASSERT_EQ(write(file, paper), std::nullopt);
        QMultiHash<QString, QRectF> words; // with their boxes, in inches
        for (const auto& match : form.globalMatch(output("pdftotext", {"-bbox", file, "-"}))) {
            const auto inches = [&](int group) { return match.captured(group).toDouble() / 72; };
            words.insert(match.captured(5),
                         {QPointF(inches(1), inches(2)), QPointF(inches(3), inches(4))});
        }
        // On paper, behind the margin of 0.2 inches.
        const std::tuple<const char*, double, double> places[] = {
            {"Fitting", 0.3, 0.35},
            {"Parameters:", 0.4, 4.4},
            {"row1", 0.4, 4.7},
            {"300", 0.3 + (400 + 10200) / 11000.0 * 9.25 + 0.03, 0.6 + 4070 / 4400.0 * 3.7}};
        for (const auto& [word, x, y] : places) {
            EXPECT_NEAR(words.value(word).left(), 0.2 + x * scale, 0.02) << word;
            EXPECT_NEAR(words.value(word).top(), 0.2 + y * scale, 0.04) << word;
        }
        EXPECT_EQ(words.count("last"), kRows);
        for (const QRectF& box : words.values("last"))
            EXPECT_TRUE(box.right() < 0.2 + 11 * scale && box.bottom() < 0.2 + 7.5 * scale);
        const QString info = output("pdfinfo", {file});
        EXPECT_TRUE(info.contains("The title") && info.contains(size)) << info.toStdString();
        EXPECT_EQ(output("pdfimages", {"-list", file}).count('\n'), 2) << "the head, and no image";
        // The tee stands at the left end of the axis; the ring reaches beyond the landing.
        const std::string picture = folder.path("page");
        output("pdftoppm", {"-r", "100", "-singlefile", file, QString::fromStdString(picture)});
        const QImage page(QString::fromStdString(picture + ".ppm"));
        QRectF ink;
        for (int y = 100; y < page.height(); ++y) // below the legend
            for (int x = 0; x < page.width(); ++x)
                if (page.pixelColor(x, y) == QColor(Qt::red))
                    ink |= QRectF(x / 100.0, y / 100.0, 0.01, 0.01);
        const double yard = 10200 / 300.0 / 11000 * 9.25;
        EXPECT_NEAR(ink.left(), 0.2 + (0.3 + 0.33) * scale, 0.03);
        EXPECT_NEAR(ink.right(), 0.2 + (0.3 + 0.32 + 241 * yard) * scale, 0.05);
        EXPECT_NEAR(ink.height(), 60 * yard * scale, 0.03) << "both axes on one scale";
    }
    const qint64 size = QFileInfo(file).size();
    {
        const FailingDisk disk(1000);
        EXPECT_NE(write(file, QPageSize::A4), std::nullopt);
    }
    EXPECT_EQ(QFileInfo(file).size(), size);
}

TEST_F(PrintedReport, IsPreviewedInThePagesShapeAndPrintedToANamedFile) {
    EXPECT_EQ(usualPaper(QLocale("fr_CA")), QPageSize::Letter);
    EXPECT_EQ(usualPaper(QLocale("en_GB")), QPageSize::A4);
    PrintViewWindow window(view);
    for (const Control* control : view.controls.all())
        EXPECT_TRUE(window.findChild<QWidget*>(control->name().c_str())) << control->name();
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto press = [&](const char* name) {
        QTest::mouseClick(window.findChild<QPushButton*>(name), Qt::LeftButton);
    };
    const auto print = [&](const std::string& name) {
        QTimer::singleShot(200, [this, name] {
            auto* dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->objectName(), "printFileDialog");
            dialog->findChild<QLineEdit*>("fileNameEdit")
                ->setText(QString::fromStdString(folder.path(name)));
            static_cast<QDialog*>(dialog)->accept();
        });
        press("cmdPrint");
    };
    const auto textOf = [&](const char* name) {
        return output("pdftotext", {QString::fromStdString(folder.path(name)), "-"});
    };
    auto* sheet = window.findChild<QWidget*>("Picture0");
    view.txtCaption.setText("Before");
    print("first"); // no preview is needed
    EXPECT_TRUE(textOf("first.pdf").contains("Before") && textOf("first.pdf").contains("row12"));
    EXPECT_FALSE(view.preview());
    press("cmdPrintPreview");
    const PageSize paper = printer.paper();
    EXPECT_NEAR(sheet->width() * paper.height / paper.width, sheet->height(), 3);
    EXPECT_TRUE(window.rect().contains(sheet->geometry()));
    const QImage before = sheet->grab().toImage();
    view.txtCaption.setText("After"); // shows at the next preview, and prints at once
    EXPECT_EQ(sheet->grab().toImage(), before);
    print("second.pdf");
    EXPECT_TRUE(textOf("second.pdf").contains("After"));
    press("cmdPrintPreview");
    EXPECT_NE(sheet->grab().toImage(), before);
    EXPECT_TRUE(messages.texts.empty());
    std::filesystem::create_directory(folder.path("taken.pdf"));
    print("taken.pdf/x/y");
    EXPECT_EQ(messages.texts.size(), 1U);
}

} // namespace
} // namespace parabolt::support
