#include "controls/focus.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace parabolt {
namespace {

struct Controls : testing::Test {
    ControlSet form;
    std::vector<std::string> log; ///< what happened, in its order
    using Log = std::vector<std::string>;
    std::function<void()> note(std::string entry) {
        return [this, entry] { log.push_back(entry); };
    }
};

TEST_F(Controls, ATextChangesOnlyWhenItDiffersAndInsideItsStatement) {
    TextBox box(form, "txtCor", ".83");
    TextBox nested(form, "txtWind");
    box.Change.connect([&] {
        nested.setText(box.text());
        log.push_back(box.text());
    });
    nested.Change.connect(note("nested"));
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

struct FocusTest : Controls {
    TextBox wind{form, "txtWind"};
    TextBox cor{form, "txtCor"};
    Button run{form, "Command1", "&Run"};
    Label title{form, "Label11", "Scale (Yard)"};
    Focus focus;

    FocusTest() {
        focus.give(wind);
        wind.LostFocus.connect([this] { log.push_back("left " + focus.active()->name()); });
        cor.LostFocus.connect(note("cor left"));
        focus.onMove = [this] { log.push_back("to " + focus.active()->name()); };
    }
};

TEST_F(FocusTest, WhatCannotTakeTheFocusRefusesIt) {
    TextBox boxes[] = {{form, "disabled"}, {form, "hidden"}, {form, "held"}};
    boxes[0].setEnabled(false);
    boxes[1].setVisible(false);
    boxes[2].setHeld(true);
    for (Control* control : std::initializer_list<Control*>{boxes, boxes + 1, boxes + 2, &title})
        EXPECT_FALSE(focus.give(*control)) << control->name();
    EXPECT_EQ(focus.active(), &wind);
    EXPECT_TRUE(log.empty());
}

// A validator that refuses a value pulls the focus back into its field: the press of another
// control doesn't reach it, and the field isn't validated a second time.
TEST_F(FocusTest, AHandlerDecidesWhereTheFocusGoes) {
    std::function<void()> judge = [&] { focus.give(wind); };
    wind.LostFocus.connect([&] { judge(); });
    EXPECT_FALSE(focus.give(run));
    EXPECT_EQ(focus.active(), &wind);
    EXPECT_EQ(std::count(log.begin(), log.end(), "left txtWind"), 1);
    judge = [] {};
    log.clear();
    EXPECT_TRUE(focus.give(run));
    EXPECT_EQ(log, (Log{"left txtWind", "to Command1"}));
    focus.give(wind);
    judge = [&] { focus.give(cor); };
    log.clear();
    EXPECT_FALSE(focus.give(run));
    EXPECT_EQ(log, (Log{"left txtWind", "to txtCor"}));
}

} // namespace
} // namespace parabolt
