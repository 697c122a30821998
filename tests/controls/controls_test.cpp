#include "controls/focus.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"

#include <gtest/gtest.h>

namespace parabolt {
namespace {

struct Controls : testing::Test {
    ControlSet form;
    std::vector<std::string> log; ///< what happened, in its order
    using Log = std::vector<std::string>;
};

TEST_F(Controls, ATextChangesOnlyWhenItDiffersAndInsideItsStatement) {
    TextBox box(form, "txtCor", ".83");
    TextBox nested(form, "txtWind");
    box.Change.connect([&] {
        nested.setText(box.text());
        log.push_back(box.text());
    });
    nested.Change.connect([&] { log.push_back("nested"); });
    box.setText(".83");
    box.setSelection(1, 2);
    box.setText(".84");
    EXPECT_EQ(log, (Log{"nested", ".84"}));
    EXPECT_EQ(box.selStart() + box.selLength(), 0U);
}

TEST_F(Controls, ALimitedTextLosesWholeCharacters) {
    TextBox box(form, "txtRange");
    box.setMaxLength(4);
    box.setText("a\u00e9\u00e9b!"); // four characters are six bytes here
    EXPECT_EQ(box.text(), "a\u00e9\u00e9b");
    box.setSelection(99, 1);
    EXPECT_EQ(box.selStart(), 6U);
}

// A validator that refuses a value pulls the focus back into its field: the press of another
// control doesn't reach it, and the field isn't validated a second time.
TEST_F(Controls, AHandlerDecidesWhereTheFocusGoes) {
    TextBox wind(form, "txtWind");
    Button run(form, "Command1", "&Run");
    Focus focus;
    bool refuses = true;
    focus.give(wind);
    wind.LostFocus.connect([&] {
        log.push_back("left " + focus.active()->name());
        if (refuses)
            focus.give(wind);
    });
    focus.onMove = [&] { log.push_back("to " + focus.active()->name()); };
    EXPECT_FALSE(focus.give(run));
    EXPECT_EQ(focus.active(), &wind);
    refuses = false;
    EXPECT_TRUE(focus.give(run));
    EXPECT_EQ(log, (Log{"left txtWind", "to txtWind", "left txtWind", "to Command1"}));
    wind.setVisible(false);
    EXPECT_FALSE(focus.give(wind));
}

} // namespace
} // namespace parabolt
