#include "measured/measured_codec.h"
#include "qt/bag_window.h"
#include "qt/chart_view.h"
#include "qt/main_window.h"
#include "qt/measured_window.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "tests/gui/as_soon_as.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

[[maybe_unused]] std::string dataFile(const char* name) {
    return std::string(PARABOLT_TEST_DATA) + "/measured/" + name;
}

TEST(Look, AtIt) {
    ScriptedForm user;
    FormServices services{user.messages, user.files,  user.preferences,
                          user.desktop,  user.events, "/program"};
    struct NoPrinter : Printer {
        PageSize paper() override { return {11, 8.5, 10.5, 8}; }
        Outcome<std::string, std::string> print(std::string_view,
                                                const std::function<void(Page&)>&) override {
            return std::string("x");
        }
    } printer;
    Fitting fitting(user.form);
    MeasuredWindow window(user.main, fitting, services, printer);
    BagWindow bag(user.main, fitting, services, printer);
    const QString out = qEnvironmentVariable("LOOK_OUT");
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.grab().save(out + "_empty.png");
    user.files.choose(qEnvironmentVariable("LOOK_FILE").toStdString());
    asSoonAs(window, [] { return QApplication::activeModalWidget() != nullptr; }, [out] {
        QWidget* modal = QApplication::activeModalWidget();
        modal->grab().save(out + "_import.png");
        if (auto* take = modal->findChild<QPushButton*>("importTake"); take && take->isEnabled())
            take->click();
        else
            modal->close();
    });
    window.findChild<QAction*>("measuredImport")->trigger();
    for (const auto& text : user.messages.texts)
        std::printf("message: %s\n", text.c_str());
    window.findChild<QCheckBox*>("measuredNormalise")->click();
    QTest::qWait(1500);
    window.findChild<TableView*>("measuredTable")->selectRow(1);
    window.findChild<QAction*>("measuredStrike")->trigger();
    QTest::qWait(100);
    window.grab().save(out + "_measured.png");
    bag.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&bag));
    bag.findChild<QAction*>("bagFlyCommand")->trigger();
    QTest::qWait(100);
    bag.grab().save(out + "_bag.png");
    asSoonAs(window, [] { return QApplication::activeModalWidget() != nullptr; }, [out] {
        QWidget* modal = QApplication::activeModalWidget();
        modal->grab().save(out + "_sheet.png");
        modal->close();
    });
    bag.findChild<QAction*>("bagPrint")->trigger();
}

} // namespace
} // namespace parabolt::support
