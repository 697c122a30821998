#include "qt/map_steps_view.h"

#include "maps/map_words.h"
#include "qt/text.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

namespace parabolt {
namespace {

// Two colours that all kinds of colour vision tell apart (M. Okabe, K. Ito): one step down, one up.
constexpr QColor kLessColour(230, 159, 0);
constexpr QColor kMoreColour(0, 114, 178);

/// Paints both gains of a row as bars from a middle line: losses to the left.
class BarDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const double greatest = index.data(MapStepsModel::Greatest).toDouble();
        const QRectF cell = QRectF(option.rect).adjusted(4, 3, -4, -3);
        const double middle = cell.center().x();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawLine(QLineF(middle, cell.top(), middle, cell.bottom()));
        painter->setPen(Qt::NoPen);
        const double height = cell.height() / 2;
        double top = cell.top();
        for (const auto& [role, colour] : {std::pair(MapStepsModel::LessGain, kLessColour),
                                           {MapStepsModel::MoreGain, kMoreColour}}) {
            const QVariant gain = index.data(role);
            const double length = greatest > 0 ? gain.toDouble() / greatest * cell.width() / 2 : 0;
            painter->setBrush(colour);
            painter->drawRect(QRectF(middle, top, length, height - 1).normalized());
            top += height;
        }
        painter->restore();
    }
};

/// What explains the colour of a bar.
QPixmap swatch(QColor colour) {
    QPixmap square(10, 10);
    square.fill(colour);
    return square;
}

} // namespace

void MapStepsModel::show(std::vector<StepEffect> effects) {
    beginResetModel();
    effects_ = std::move(effects);
    endResetModel();
}

int MapStepsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(effects_.size());
}

int MapStepsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant MapStepsModel::textOf(const StepEffect& effect, int column) const {
    switch (column) {
    case Input:
        return toQt(std::string(effect.input->name) + " " + wordsOfStep(*effect.input));
    case Less:
        return toQt(wordsOfGain(effect.less));
    case More:
        return toQt(wordsOfGain(effect.more));
    default:
        return {};
    }
}

QVariant MapStepsModel::data(const QModelIndex& index, int role) const {
    const StepEffect& effect = effects_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return textOf(effect, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(index.column() == Input ? Qt::AlignLeft | Qt::AlignVCenter
                                                : Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole:
        return toQt(std::string(effect.input->name) + " is " + words(*effect.input, effect.value));
    case Qt::AccessibleTextRole:
        if (index.column() == Bar)
            return "Bars of the two figures";
        return textOf(effect, index.column());
    case LessGain:
        return effect.less.value_or(0);
    case MoreGain:
        return effect.more.value_or(0);
    case Greatest:
        return effects_.front().greatest();
    default:
        return {};
    }
}

QVariant MapStepsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return QStringList{"One step of", "Down, yd", "Up, yd", ""}.at(section);
    if (role == Qt::DecorationRole && (section == Less || section == More))
        return swatch(section == Less ? kLessColour : kMoreColour);
    return {};
}

MapStepsView::MapStepsView(QWidget* parent) : QTableView(parent) {
    setObjectName("mapSteps");
    setAccessibleName("What one step changes");
    setModel(&model_);
    setItemDelegateForColumn(MapStepsModel::Bar, new BarDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(MapStepsModel::Bar, QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
}

void MapStepsView::show(const std::vector<StepEffect>& effects) {
    model_.show(effects);
    updateGeometry();
}

QSize MapStepsView::sizeHint() const {
    const int rows = std::max(model_.rowCount(), 1);
    return {27 * fontMetrics().height(),
            horizontalHeader()->sizeHint().height() + rows * rowHeight(0) + 2 * frameWidth()};
}

} // namespace parabolt
