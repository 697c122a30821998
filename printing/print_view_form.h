#pragma once

#include "controls/focus.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "plots/picture_box.h"

namespace parabolt {

/// The inventory of the print view `frmPrintView`: its controls under their given names. It has no
/// behaviour; the handlers work on it.
struct PrintViewForm {
    static constexpr std::string_view kCaption = "Parabolt - Print Preview";
    static constexpr int kRowOfControls = 1200; ///< height above `Picture0`, twips
    static constexpr int kGapAtSides = 200;     ///< between `Picture0` and the form's edges, twips

    std::function<void()> onUnload; ///< set by the view: closes the form

    ControlSet controls;
    Focus focus;

    Label Label1{controls, "Label1", "Caption"};
    TextBox txtCaption{controls, "txtCaption"};
    Button cmdPrintPreview{controls, "cmdPrintPreview", "Pre&view"};
    Button cmdPrint{controls, "cmdPrint", "&Print"};
    Button cmdClose{controls, "cmdClose", "&Close"};
    Label lblRows{controls, "lblRows", ""};     ///< how much of the table the page leaves out
    Label lblResult{controls, "lblResult", ""}; ///< where the last report went
    PictureBox Picture0{controls, "Picture0", kWhite, kBlack}; ///< the page on the screen
};

} // namespace parabolt
