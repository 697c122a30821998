#pragma once

#include <QWidget>

namespace parabolt {

class PictureBox;

/// Shows a canvas, in any size and sharp at any density.
class PictureWidget : public QWidget {
    Q_OBJECT

public:
    PictureWidget(const PictureBox& picture, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PictureBox& picture_;
};

} // namespace parabolt
