#include "qt/data_set_output.h"

#include "qt/picture_file.h"
#include "qt/picture_painter.h"
#include "qt/table_view.h"
#include "qt/text.h"
#include "sets/data_sets.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <array>

namespace parabolt {
namespace {

/// The plot in the size of its widget.
FilePicture plotPicture(MainForm& form, const QWidget& window) {
    const auto* plot = window.findChild<QWidget*>(toQt(form.Picture1.name()));
    return {"Flights", plot->size(),
            [plot = form.screenPlot()](QPainter& painter, const QRectF& target) {
                paintPlot(painter, plot, target);
            }};
}

/// Asks how dense the pixels of a picture of this size shall be; nothing if the user backs out.
std::optional<double> askDensity(QWidget& window, QSizeF size) {
    struct Choice {
        QString words;
        double density;
    };
    const std::array<Choice, 3> choices = {{
        {"As on the screen", window.devicePixelRatioF()},
        {"For documents, 192 per inch", kUsualDensity},
        {"For print, 300 per inch", 3.125},
    }};
    QInputDialog dialog(&window);
    dialog.setObjectName("exportDensity");
    dialog.setWindowTitle(toQt(kApplicationTitle));
    dialog.setLabelText("&Pixels of the picture:");
    QStringList items;
    for (const auto& [words, density] : choices) {
        const QSize pixels = (size * density).toSize();
        items << QString("%1 (%2 x %3)").arg(words).arg(pixels.width()).arg(pixels.height());
    }
    dialog.setComboBoxItems(items);
    dialog.setTextValue(items[1]);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return choices.at(static_cast<std::size_t>(items.indexOf(dialog.textValue()))).density;
}

} // namespace

DataSetOutput::DataSetOutput(frmMain& logic, QWidget& window) : logic_(logic), window_(window) {
    logic_.plotFile = [this](std::string_view ending) { return plotFile(ending); };
    logic_.copyTable = [this] {
        const DataSets sets(logic_.form.Runs);
        parabolt::copyTable(sets, completeTable(sets));
    };
    logic_.copyPlot = [this] {
        QApplication::clipboard()->setImage(pictureImage(plotPicture(logic_.form, window_)));
    };
}

DataSetOutput::~DataSetOutput() {
    logic_.plotFile = nullptr;
    logic_.copyTable = nullptr;
    logic_.copyPlot = nullptr;
}

std::optional<std::string> DataSetOutput::plotFile(std::string_view ending) {
    const FilePicture picture = plotPicture(logic_.form, window_);
    if (ending != "png")
        return pictureFile(picture, ending);
    const auto density = askDensity(window_, picture.size);
    return density ? std::optional(pictureFile(picture, ending, *density)) : std::nullopt;
}

} // namespace parabolt
