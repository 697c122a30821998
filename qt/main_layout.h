#pragma once

class QWidget;

namespace parabolt {

struct MainForm;

/// The upper part of the main form: title, data sets and buttons in a strip, the input frames at
/// the left, the result table and below it ball and weather at the right.
struct MainLayout {
    QWidget* panel;   ///< holds all of it
    QWidget* inputs;  ///< the frames at the left
    QWidget* ball;    ///< `Frame6`
    QWidget* table;   ///< `txtResult`
    QWidget* weather; ///< `Frame7`
};

/// Creates the widgets of the upper part under the names of their controls.
MainLayout layOutMainForm(const MainForm& form, QWidget* parent);

} // namespace parabolt
