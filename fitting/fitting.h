#pragma once

#include "mainform/main_form.h"
#include "measured/measured_session.h"
#include "measured/shot_import.h"

namespace parabolt {

/// What the windows of measured shots and of the bag stand on: one session for both, which the desk
/// of the main form carries as a text. The text is written when the session changes, and read when
/// another desk is laid; a look that finds neither costs nothing.
class Fitting {
public:
    explicit Fitting(MainForm& form) : form_(form) {}

    const MeasuredSession& session() const { return session_; }
    /// Rises when the shots themselves are others, not when one is struck through or checked.
    std::uint64_t shotsNumber() const { return shotsNumber_; }

    /// Takes over the session of a desk that was laid on the form since the last look.
    void follow();
    /// Takes what the user has left in the preview of a file, in place of the shots that are there:
    /// the way back leads to those.
    void take(const ImportPreview& preview, const std::string& source, const ClubAnswers& answers);
    /// Changes anything but the shots themselves.
    void change(const std::function<void(MeasuredSession&)>& how);

    /// The session has changed, here or with the desk.
    Event<> Changed;

private:
    void keep();

    MainForm& form_;
    MeasuredSession session_;
    SharedText kept_; ///< what the desk last held of it
    std::uint64_t shotsNumber_ = 0;
    std::vector<std::string> shotTexts_; ///< the shots as the text holds them
    std::uint64_t shotTextsNumber_ = 0;  ///< of those shots
};

} // namespace parabolt
