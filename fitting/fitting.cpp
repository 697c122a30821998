#include "fitting/fitting.h"

#include "measured/measured_codec.h"

namespace parabolt {

void Fitting::follow() {
    const auto found = form_.windows.find(kMeasuredKey);
    const SharedText state = found == form_.windows.end() ? SharedText() : found->second;
    if (state == kept_)
        return;
    kept_ = state;
    session_ = decodeMeasured(state.text()).value_or(MeasuredSession());
    ++shotsNumber_;
    Changed();
}

void Fitting::take(const ImportPreview& preview, const std::string& source,
                   const ClubAnswers& answers) {
    form_.Wiping();
    session_.source = source;
    session_.device = preview.device;
    session_.computesCarry = preview.computesCarry;
    session_.entries.clear();
    for (const ImportRow& row : preview.rows)
        if (row.taken)
            session_.entries.push_back({.shot = row.shot, .struck = row.leftOut});
    for (const auto& [text, club] : answers)
        session_.answers[text] = club;
    ++shotsNumber_;
    keep();
}

void Fitting::change(const std::function<void(MeasuredSession&)>& how) {
    how(session_);
    keep();
}

void Fitting::keep() {
    if (shotTextsNumber_ != shotsNumber_) {
        shotTexts_ = encodeShots(session_);
        shotTextsNumber_ = shotsNumber_;
    }
    kept_ = encodeMeasured(session_, shotTexts_);
    form_.windows[kMeasuredKey] = kept_;
    Changed();
}

} // namespace parabolt
