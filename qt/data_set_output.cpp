#include "qt/data_set_output.h"

#include "controls/units.h"
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

/// The plot as it stands on the screen.
FilePicture plotPicture(MainForm& form) {
    const PictureBox::Geometry& outer = form.Picture1.geometry();
    return {"Flights", QSizeF(outer.width, outer.height) / kTwipsPerPixel,
            [plot = form.screenPlot()](QPainter& painter, const QRectF& target) {
                paintPlot(painter, plot, target);
            }};
}

/// Asks how dense the pixels of a picture shall be; nothing if the user backs out.
std::optional<double> askDensity(QWidget& window) {
    struct Choice {
        const char* words;
        double density;
    };
    static constexpr std::array<Choice, 3> kChoices = {{
        {"As on the screen (96 per inch)", 1},
        {"For documents (192 per inch)", kUsualDensity},
        {"For print (300 per inch)", 3.125},
    }};
    QInputDialog dialog(&window);
    dialog.setObjectName("exportDensity");
    dialog.setWindowTitle(toQt(kApplicationTitle));
    dialog.setLabelText("&Pixels of the picture:");
    QStringList items;
    for (const Choice& choice : kChoices)
        items << choice.words;
    dialog.setComboBoxItems(items);
    dialog.setTextValue(items[1]);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return kChoices.at(static_cast<std::size_t>(items.indexOf(dialog.textValue()))).density;
}

} // namespace

DataSetOutput::DataSetOutput(frmMain& logic, QWidget& window) : logic_(logic), window_(window) {
    logic_.plotFile = [this](std::string_view ending) { return plotFile(ending); };
    logic_.copyTable = [this] {
        const DataSets sets(logic_.form.Runs);
        parabolt::copyTable(sets, wholeTable(sets));
    };
    logic_.copyPlot = [this] {
        QApplication::clipboard()->setImage(pictureImage(plotPicture(logic_.form)));
    };
}

DataSetOutput::~DataSetOutput() {
    logic_.plotFile = nullptr;
    logic_.copyTable = nullptr;
    logic_.copyPlot = nullptr;
}

std::optional<std::string> DataSetOutput::plotFile(std::string_view ending) {
    const FilePicture picture = plotPicture(logic_.form);
    if (ending != "png")
        return pictureFile(picture, ending);
    const auto density = askDensity(window_);
    return density ? std::optional(pictureFile(picture, ending, *density)) : std::nullopt;
}

} // namespace parabolt
