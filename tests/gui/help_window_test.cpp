#include "mainform/main_form.h"
#include "mainform/validators.h"
#include "numbers/text_number.h"
#include "qt/help_window.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace parabolt {
namespace {

const QString kManual = QDir::cleanPath(PARABOLT_TEST_DATA "/../../help");

QString page(const QString& name) {
    QFile file(kManual + "/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

TEST(Help, ListsEveryPageAndEveryLinkLeadsToOne) {
    HelpWindow window{kManual};
    const auto* contents = window.findChild<QListWidget*>("helpContents");
    auto* search = window.findChild<QLineEdit*>("helpSearch");
    ASSERT_TRUE(contents && search);
    const auto listed = [contents] {
        QStringList shown;
        for (int row = 0; row < contents->count(); ++row)
            if (!contents->item(row)->isHidden())
                shown += contents->item(row)->text();
        shown.sort();
        return shown;
    };
    static const QRegularExpression link("(?:href|src)=\"([^\"]*)\"");
    QStringList titles;
    for (const QString& file : QDir(kManual).entryList({"*.html"})) {
        const QString html = page(file);
        titles += html.section("<title>", 1).section("</title>", 0, 0);
        EXPECT_TRUE(html.contains(link)) << file.toStdString() << " is a dead end";
        for (const auto& match : link.globalMatch(html))
            EXPECT_TRUE(QFile::exists(kManual + "/" + match.captured(1)))
                << file.toStdString() << " -> " << match.captured(1).toStdString();
    }
    titles.sort();
    EXPECT_EQ(listed(), titles);
    QTest::keyClicks(search, "preview  LANDSCAPE");
    EXPECT_EQ(listed(), QStringList{"Printing"}) << "the only page with both words";
}

TEST(Manual, TellsEveryFieldWithItsLimitsAndFallback) {
    const MainForm form;
    const QString fields = page("fields.html");
    const auto& controls = form.controls.all();
    for (const FieldRule& rule : fieldRules()) {
        // The label of a field was made just before it.
        const auto at = std::find(controls.begin(), controls.end(), &(form.*rule.field));
        ASSERT_TRUE(at != controls.begin() && at != controls.end()) << rule.fallback;
        const auto* label = dynamic_cast<const Label*>(*std::prev(at));
        ASSERT_NE(label, nullptr) << (*at)->name();
        const QString caption = QString::fromStdString(label->caption());
        const QStringList cells =
            fields.section("<tr><td>" + caption + "</td>", 1).section("</tr>", 0, 0).split("</td>");
        ASSERT_GE(cells.size(), 5) << label->caption() << " has no row in fields.html";
        EXPECT_EQ(cells[2].section("<td>", 1).toStdString(),
                  shortestText(rule.lowest) + " to " + shortestText(rule.highest));
        EXPECT_EQ(cells[4].section("<td>", 1).toStdString(), rule.fallback) << label->caption();
    }
}

} // namespace
} // namespace parabolt
