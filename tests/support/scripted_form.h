#pragma once

#include "shell/frm_main.h"
#include "tests/support/scripted_services.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace parabolt::support {

/// What of one kind stands on a canvas.
template <class Shape>
std::vector<Shape> shapesOf(const PictureBox& box) {
    std::vector<Shape> found;
    for (const Drawing& drawing : box.drawings())
        if (const auto* shape = std::get_if<Shape>(&drawing))
            found.push_back(*shape);
    return found;
}

/// Time that passes at once: each yield is a tick of the form's timer, and calls `meanwhile`.
struct ScriptedEventLoop : EventLoop {
    Timer* timer = nullptr;
    int yields = 0;
    std::function<void()> meanwhile = [] {};
    void yield() override {
        ++yields;
        meanwhile();
        if (timer->enabled())
            timer->Tick();
    }
};

/// The control of that name.
inline Control& controlOf(const FormCore& form, std::string_view name) {
    const auto& all = form.controls.all();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const Control* control) { return control->name() == name; });
    if (found == all.end())
        throw std::out_of_range("there is no control " + std::string(name));
    return **found;
}

/// The main form with all its handlers, loaded as at start-up, on scripted services and without
/// widgets.
struct ScriptedForm {
    /// A state folder keeps the desk safe there; time is as the test says.
    explicit ScriptedForm(const std::string& stateFolder = {})
        : main{{messages,
                files,
                preferences,
                desktop,
                events,
                "/program",
                {stateFolder, [this] { return time; }, [](const std::string&) {}}}} {
        events.timer = &form.Timer1;
        main.showClubEditor = [this] { shown.emplace_back("club editor"); };
        main.showPrintView = [this] { shown.emplace_back("print view"); };
        main.showAbout = [this] { shown.emplace_back("about"); };
        main.endProgram = [this] { shown.emplace_back("end"); };
        main.Form_Load();
        main.plot.Form_Resize({15000, 12000, 300}, false);
    }

    /// Types a text into a field, as the user does: the focus comes, and stays.
    void type(TextBox& field, std::string_view text) {
        form.focus.give(field);
        field.setText(text);
    }
    /// Types into a field and leaves it for the plot.
    void enter(TextBox& field, std::string_view text) {
        type(field, text);
        form.focus.give(form.Picture1);
    }
    /// Presses a button as a click does: the focus first.
    void press(Button& button) {
        if (form.focus.give(button))
            button.Click();
    }
    void run(int times = 1) {
        while (times-- > 0)
            press(form.Command1);
    }
    /// Lines of the result table behind the headings.
    Texts rows() const {
        std::istringstream table(form.txtResult.text());
        Texts lines;
        for (std::string line; std::getline(table, line);)
            lines.push_back(line);
        return {lines.begin() + 3, lines.end()};
    }
    /// The colours of the curves in the plot, in the order of drawing.
    std::vector<Rgb> curves() const {
        std::vector<Rgb> colours;
        for (const DrawnCurve& curve : shapesOf<DrawnCurve>(form.Picture2))
            colours.push_back(curve.colour);
        return colours;
    }

    ScriptedMessageBoxes messages;
    ScriptedFileDialog files;
    MemoryPreferences preferences;
    RecordingDesktop desktop;
    ScriptedEventLoop events;
    std::string time = "2026-11-23 10:32";
    frmMain main;
    MainForm& form = main.form;
    Texts shown; ///< windows and ends that were asked for
};

} // namespace parabolt::support
