#include "qt/flow_layout.h"

#include <QWidget>
#include <algorithm>

namespace parabolt {
namespace {

constexpr int kApart = 8; ///< pixels between neighbours, and between rows

} // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {
    setContentsMargins({});
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (itemAt(index) == nullptr)
        return nullptr;
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    return item;
}

/// All in one row.
QSize FlowLayout::sizeHint() const {
    QSize size;
    for (const auto& item : items_)
        size = {size.width() + (size.isEmpty() ? 0 : kApart) + item->sizeHint().width(),
                std::max(size.height(), item->sizeHint().height())};
    return size;
}

/// One below the other.
QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : items_)
        size = size.expandedTo(item->sizeHint());
    return size;
}

void FlowLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    lay(room, true);
}

/// Lays the rows, all of one height, or only measures them. Returns the height that they need.
int FlowLayout::lay(const QRect& room, bool moves) const {
    const int height = sizeHint().height();
    QPoint at = room.topLeft();
    for (const auto& item : items_) {
        const int width = item->sizeHint().width();
        if (at.x() > room.x() && at.x() + width > room.x() + room.width())
            at = {room.x(), at.y() + height + kApart};
        if (moves)
            item->setGeometry({at, QSize(width, height)});
        at.rx() += width + kApart;
    }
    return at.y() + height - room.y();
}

} // namespace parabolt
