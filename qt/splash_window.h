#pragma once

#include "qt/form_binding.h"
#include "shell/frm_splash.h"

#include <QDialog>
#include <memory>

namespace parabolt {

/// The view of the splash: a borderless window in the middle of the screen. At start-up it is
/// shown, as the About box it is executed; it closes when the form unloads, and a close by other
/// means unloads the form. Its colours are its own, in dark and light desktops alike.
class SplashWindow : public QDialog {
public:
    explicit SplashWindow(frmSplash& splash, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void done(int result) override;

private:
    Splash& splash_;
    std::unique_ptr<FormBinding> binding_;
};

} // namespace parabolt
