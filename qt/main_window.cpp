#include "qt/main_window.h"

#include "controls/units.h"
#include "qt/column_tips.h"
#include "qt/data_set_output.h"
#include "qt/form_binding.h"
#include "qt/main_menus.h"
#include "qt/picture_widget.h"
#include "qt/plot_readout.h"
#include "qt/rich_text_binding.h"
#include "qt/text.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QShortcutEvent>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// Shares of the form in twips: the width of the inputs, of the ball frame, of all but the weather
// frame; the height above the plot, and the least for the plot with the bars of the window.
constexpr double kInputsWidth = 4995;
constexpr double kBallWidth = 2070;
constexpr double kBesideWeather = 7140;
constexpr double kUpperHeight = 4000;
constexpr double kLeastPlot = 1850;
constexpr double kLegendWidth = 12340; ///< of twelve entries
constexpr int kAroundFrame = 8;        ///< pixels around a frame, a half on each side

/// The small window of `frmProgress`. It goes when the study ends; Esc, or a desktop that lets it
/// be closed all the same, stops the study.
class ProgressWindow : public QWidget {
public:
    ProgressWindow(QWidget* owner, const ProgressForm& form, Pause& pause)
        : QWidget(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
          pause_(pause) {
        setObjectName("frmProgress");
        setWindowTitle(toQt(ProgressForm::kCaption));
        setAttribute(Qt::WA_ShowWithoutActivating);
        auto* bar = new QProgressBar;
        bar->setObjectName(toQt(form.ProgressBar1.name()));
        bar->setTextVisible(false);
        bar->setAccessibleName("Calculating");
        auto* column = new QVBoxLayout(this);
        column->addWidget(bar);
        setFixedSize(fontMetrics().averageCharWidth() * 40, sizeHint().height());
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape)
            pause_.stop();
    }
    void closeEvent(QCloseEvent* /*event*/) override { pause_.stop(); }

private:
    Pause& pause_;
};

} // namespace

MainWindow::MainWindow(frmMain& logic)
    : logic_(logic),
      watch_([&logic] { logic.sessions.actionEnded(); }) {
    setObjectName("frmMain");
    // Scrolls where a large font leaves the form no room on its screen.
    auto* room = new QScrollArea;
    room->setFrameShape(QFrame::NoFrame);
    room->setFocusPolicy(Qt::NoFocus);
    room->setWidgetResizable(true);
    setCentralWidget(room);
    centre_ = new QWidget;
    centre_->installEventFilter(this);
    buildPlots();
    layout_ = layOutMainForm(logic.form, centre_);
    room->setWidget(centre_);
    connect(qApp, &QApplication::focusChanged, room, [this, room](QWidget*, QWidget* now) {
        if (now != nullptr && layout_.panel->isAncestorOf(now))
            room->ensureWidgetVisible(now);
    });
    buildMainMenus(*menuBar(), logic.form);
    statusBar()->setObjectName(toQt(logic.form.StatusBar1.name()));
    statusBar()->setSizeGripEnabled(false);
    unsaved_ = new QLabel("Unsaved", statusBar());
    unsaved_->setObjectName("lblUnsaved");
    statusBar()->addPermanentWidget(unsaved_);
    unsaved_->hide();

    progress_ = std::make_unique<ProgressWindow>(this, logic.frmProgress, logic.pause);
    progressBinding_ = std::make_unique<FormBinding>(*progress_, logic.frmProgress.controls,
                                                     logic.frmProgress.focus);
    binding_ = std::make_unique<FormBinding>(*this, logic.form.controls, logic.form.focus,
                                             &logic.form.Picture1);
    binding_->settleBefore(*menuBar());
    tableBinding_ = std::make_unique<RichTextBinding>(logic.form.txtResult,
                                                      *findChild<QPlainTextEdit*>("txtResult"));
    new ColumnTips(*findChild<QPlainTextEdit*>("txtResult"));
    connectLogic();
    output_ = std::make_unique<DataSetOutput>(logic, *this);
    describePlot();

    setLeastSize();
    resize(1280, 800);
    findChild<QWidget*>(toQt(logic.form.optManual.name()))->setFocus();
}

MainWindow::~MainWindow() {
    logic_.form.onCaption = nullptr;
    logic_.frmProgress.onShow = nullptr;
    logic_.pause.onRunning = nullptr;
}

void MainWindow::showKeeping(const QString& trouble) {
    unsaved_->setToolTip("Your work can't be kept for a recovery: " + trouble);
    unsaved_->setVisible(!trouble.isEmpty());
}

void MainWindow::buildPlots() {
    auto* outer = new PictureWidget(logic_.form.Picture1, centre_);
    outer->setAccessibleName("Plot of the flights");
    auto* inner = new PictureWidget(logic_.form.Picture2, outer);
    readout_ = new PlotReadout(logic_.form, *outer, *inner);
}

void MainWindow::connectLogic() {
    auto* run = findChild<QPushButton*>("Command1");
    // "&Run" and the menu "&Reset" both ask for Alt+R: it runs. Reset answers to its own keys.
    for (QObject* answering :
         std::initializer_list<QObject*>{run, findChild<QPushButton*>("Command2"), menuBar()})
        answering->installEventFilter(this);
    auto* runKey = new QShortcut(Qt::Key_F5, this);
    runKey->setAutoRepeat(false);
    connect(runKey, &QShortcut::activated, this, [this] { runInPlace(); });
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this, [this] {
        if (!binding_->settle()) // a message has come up, and the field waits
            return;
        menuBar()->setFocus(Qt::MenuBarFocusReason);
        menuBar()->setActiveAction(menuBar()->actions().first());
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] {
        logic_.pause.stop();
        readout_->clear();
    });
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { walkPlot(); });
    logic_.form.StatusBar1.onViewChange = [this] { showOutcome(); };

    const auto showCaption = [this] { setWindowTitle(toQt(logic_.form.caption)); };
    logic_.form.onCaption = showCaption;
    showCaption();
    logic_.frmProgress.onShow = [this](bool shown) {
        progress_->move(screen()->availableGeometry().center() - progress_->rect().center());
        progress_->setVisible(shown);
    };
    logic_.pause.onRunning = [this](bool running) {
        watch_.setBusy(running);
        if (running)
            statusBar()->showMessage("Press Esc to stop.");
        else
            showOutcome();
        // Rows go where the caret stands: it stays until the last has been written.
        findChild<QPlainTextEdit*>("txtResult")
            ->setTextInteractionFlags(running ? Qt::NoTextInteraction : Qt::TextEditorInteraction);
    };
}

/// A run by its key: the field being edited is judged, and keeps the focus for the next value.
void MainWindow::runInPlace() {
    MainForm& form = logic_.form;
    Control* edited = form.focus.active();
    if (!form.Command1.enabled() || !binding_->settle())
        return;
    form.Command1.Click();
    if (edited == nullptr || form.focus.active() != &form.Picture1 || !form.focus.give(*edited))
        return;
    if (auto* field = dynamic_cast<TextBox*>(edited)) // the run may have written another text
        SelectWholeText(*field);
}

/// What came of the newest data set, once nothing runs any more.
void MainWindow::showOutcome() {
    if (!watch_.busy())
        statusBar()->showMessage(toQt(logic_.form.StatusBar1.caption()));
}

/// Lets the keys walk along the curves, or goes back to where they were before.
void MainWindow::walkPlot() {
    QWidget* plot = findChild<QWidget*>(toQt(logic_.form.Picture1.name()));
    QWidget* before = focusWidget();
    if (before != plot) {
        if (!binding_->settle())
            return;
        beforePlot_ = before;
        plot->setFocus(Qt::ShortcutFocusReason);
        readout_->begin();
    } else if (readout_->walking() || !readout_->begin()) {
        readout_->clear();
        if (beforePlot_ != nullptr)
            beforePlot_->setFocus(Qt::ShortcutFocusReason);
    }
}

/// Tells what the plot shows to those who can't see it, once a change has been drawn completely.
void MainWindow::describePlot() {
    auto* drawn = new QTimer(this);
    drawn->setSingleShot(true);
    connect(drawn, &QTimer::timeout, this, [this] {
        findChild<PictureWidget*>(toQt(logic_.form.Picture1.name()))
            ->setAccessibleDescription(toQt(logic_.plot.inWords()));
    });
    PictureBox& curves = logic_.form.Picture2;
    curves.onViewChange = [this, repaint = curves.onViewChange, drawn] {
        repaint();
        drawn->start(0);
        readout_->clear();
    };
    curves.onViewChange();
}

/// The twip grows with the font, so that all that stands above the plot fits into its share.
double MainWindow::pixelsPerTwip() const {
    const QSize inputs = layout_.inputs->minimumSizeHint();
    return std::max({1.0 / kTwipsPerPixel, (inputs.width() + kAroundFrame) / kInputsWidth,
                     (layout_.ball->minimumSizeHint().width() + kAroundFrame / 2) / kBallWidth,
                     layout_.panel->minimumSizeHint().height() / kUpperHeight});
}

void MainWindow::setLeastSize() {
    const double scale = pixelsPerTwip();
    const QSize least(static_cast<int>(std::ceil(kBesideWeather * scale)) +
                          layout_.weather->minimumSizeHint().width(),
                      static_cast<int>(std::ceil((kUpperHeight + kLeastPlot) * scale)));
    centre_->setMinimumSize(least);
    const int bars = menuBar()->sizeHint().height() + statusBar()->sizeHint().height();
    setMinimumSize((least + QSize(0, bars)).boundedTo(screen()->availableSize() * 0.95));
}

/// What a twip measures in the plot: no more than lets the whole legend stand in its width.
double MainWindow::pixelsPerPlotTwip() const {
    return std::min(pixelsPerTwip(), centre_->width() / kLegendWidth);
}

void MainWindow::fitToSize() {
    const double scale = pixelsPerTwip();
    const double plotScale = pixelsPerPlotTwip();
    const auto pixels = [scale](double twips) {
        return static_cast<int>(std::lround(twips * scale));
    };
    const QSize area = centre_->size();
    const int upper = pixels(kUpperHeight);
    // The form as the plot sees it; what stands above takes the form's own twips.
    const double width = area.width() / plotScale + 120;
    const double bar = statusBar()->height() / plotScale;
    logic_.plot.Form_Resize(
        {width, kUpperHeight + (area.height() - upper) / plotScale + bar + 690, bar},
        isMinimized());
    const auto reachingRight = [&](double twips) {
        return area.width() - pixels(width - 120 - twips);
    };
    layout_.panel->setGeometry(0, 0, area.width(), upper);
    layout_.inputs->setFixedWidth(pixels(kInputsWidth) - kAroundFrame);
    layout_.ball->setFixedWidth(pixels(kBallWidth) - kAroundFrame / 2);
    layout_.table->setFixedWidth(reachingRight(logic_.form.txtResult.width()));
    layout_.weather->setFixedWidth(reachingRight(logic_.form.Frame7.width()));
    place(logic_.form.Picture1, upper - kUpperHeight * plotScale);
    place(logic_.form.Picture2, 0);
}

void MainWindow::place(const PictureBox& picture, double down) {
    const double scale = pixelsPerPlotTwip();
    const auto& twips = picture.geometry();
    findChild<QWidget*>(toQt(picture.name()))
        ->setGeometry(static_cast<int>(std::lround(twips.left * scale)),
                      static_cast<int>(std::lround(twips.top * scale + down)),
                      static_cast<int>(std::lround(twips.width * scale)),
                      static_cast<int>(std::lround(twips.height * scale)));
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange && layout_.panel != nullptr) {
        setLeastSize();
        fitToSize();
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    logic_.endProgram();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centre_ && event->type() == QEvent::Resize)
        fitToSize();
    if (event->type() == QEvent::Shortcut) {
        const bool ambiguous = static_cast<QShortcutEvent*>(event)->isAmbiguous();
        auto* button =
            ambiguous ? findChild<QPushButton*>("Command1") : qobject_cast<QPushButton*>(watched);
        if (button != nullptr) { // at once: by itself it would wait, until a dialog may be up
            button->click();
            return true;
        }
    }
    // A menu bar that is being walked through by keys takes Esc for itself.
    if (watched == menuBar() && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        logic_.pause.stop();
    return QMainWindow::eventFilter(watched, event);
}

bool MainWindow::event(QEvent* event) {
    // Menus would wipe the status bar with the tips that they don't have.
    return event->type() == QEvent::StatusTip || QMainWindow::event(event);
}

} // namespace parabolt
