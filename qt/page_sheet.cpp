#include "qt/page_sheet.h"

#include "qt/page_painter.h"

#include <QPainter>
#include <utility>

namespace parabolt {

PageSheet::PageSheet(std::function<std::optional<PreviewScale>()> scale,
                     std::function<void(Page&)> compose, QWidget* parent)
    : QWidget(parent),
      scale_(std::move(scale)),
      compose_(std::move(compose)) {}

void PageSheet::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const auto scale = scale_();
    if (!scale)
        return;
    PagePainter page = PagePainter::onScreen(painter, *scale);
    compose_(page);
}

} // namespace parabolt
