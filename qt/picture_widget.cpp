#include "qt/picture_widget.h"

#include "qt/picture_painter.h"
#include "qt/text.h"

#include <QPainter>

namespace parabolt {

PictureWidget::PictureWidget(const PictureBox& picture, QWidget* parent)
    : QWidget(parent),
      picture_(picture) {
    setObjectName(toQt(picture.name()));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Rgb ground = picture_.background();
    painter.fillRect(rect(), QColor(ground.red, ground.green, ground.blue));
    paintPicture(painter, picture_, rect());
}

} // namespace parabolt
