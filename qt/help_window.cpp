#include "qt/help_window.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>

namespace parabolt {

namespace {

constexpr QSize kStartSize{960, 680};
constexpr int kHalfLight = 128; ///< of a colour's 255
constexpr auto kLightStyle = "a { color: #0a58a8; } th { background-color: #e4ebf0; }"
                             "table { margin-top: 8px; margin-bottom: 8px; }";
constexpr auto kDarkStyle = "a { color: #7fc4ff; } th { background-color: #2c3e4a; }"
                            "table { margin-top: 8px; margin-bottom: 8px; }";

QString readText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList words(const QString& text) {
    static const QRegularExpression blanks("\\s+");
    return text.split(blanks, Qt::SkipEmptyParts);
}

QAction* toolAction(QToolBar* bar, QStyle::StandardPixmap icon, const QString& name,
                    const QString& text, QKeySequence key) {
    QAction* action = bar->addAction(bar->style()->standardIcon(icon), text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
    return action;
}

} // namespace

QString manualFolder() {
    const QDir program(QApplication::applicationDirPath());
    const QString beside = program.filePath("help");
    return QFile::exists(beside) ? beside
                                 : QDir::cleanPath(program.filePath("../share/parabolt/help"));
}

HelpWindow::HelpWindow(const QString& folder, QWidget* parent)
    : QWidget(parent, Qt::Window),
      folder_(folder),
      search_(new QLineEdit),
      contents_(new QListWidget),
      page_(new QTextBrowser) {
    setObjectName("helpWindow");
    setWindowTitle(QApplication::applicationDisplayName() + " - Help");
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the main form
    resize(kStartSize.boundedTo(screen()->availableSize() * 0.9));

    search_->setObjectName("helpSearch");
    search_->setPlaceholderText("Search the pages");
    search_->setClearButtonEnabled(true);
    search_->setAccessibleName("Search the pages");
    contents_->setObjectName("helpContents");
    contents_->setAccessibleName("Contents");
    page_->setObjectName("helpPage");
    page_->setAccessibleName("Page");
    page_->setOpenExternalLinks(true);
    page_->document()->setDocumentMargin(16);

    auto* left = new QWidget;
    auto* leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, 0, 0, 0);
    leftColumn->addWidget(search_);
    leftColumn->addWidget(contents_);
    auto* splitter = new QSplitter;
    splitter->addWidget(left);
    splitter->addWidget(page_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kStartSize.width() / 4, kStartSize.width() * 3 / 4});
    auto* column = new QVBoxLayout(this);
    column->addWidget(makeToolBar());
    column->addWidget(splitter, 1);

    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::followPage);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::filterPages);
    connect(search_, &QLineEdit::returnPressed, this, &HelpWindow::openFirstFound);
    connect(contents_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            page_->setSource(QUrl(files_[row]));
    });
    readPages();
    followTheme();
}

QToolBar* HelpWindow::makeToolBar() {
    auto* bar = new QToolBar;
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* back = toolAction(bar, QStyle::SP_ArrowBack, "helpBack", "Back",
                               QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction* forward = toolAction(bar, QStyle::SP_ArrowForward, "helpForward", "Forward",
                                  QKeySequence(Qt::ALT | Qt::Key_Right));
    QAction* home = toolAction(bar, QStyle::SP_DirHomeIcon, "helpHome", "First page",
                               QKeySequence(Qt::ALT | Qt::Key_Home));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, [this] { turnTo(kFirstHelpPage); });
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, search_, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    auto* close = new QAction(this);
    close->setShortcut(QKeySequence(Qt::Key_Escape));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addActions({find, close});
    return bar;
}

void HelpWindow::readPages() {
    page_->setSearchPaths({folder_});
    static const QRegularExpression link("href=\"([a-z_]+\\.html)\"");
    files_ = {kFirstHelpPage};
    for (auto found = link.globalMatch(readText(QDir(folder_).filePath(kFirstHelpPage)));
         found.hasNext();) {
        const QString file = found.next().captured(1);
        if (!files_.contains(file))
            files_ += file;
    }
    for (const QString& file : files_) {
        QTextDocument document;
        document.setHtml(readText(QDir(folder_).filePath(file)));
        texts_ += document.toPlainText();
        contents_->addItem(document.metaInformation(QTextDocument::DocumentTitle));
    }
}

void HelpWindow::showPage(const QString& file) {
    turnTo(file);
    show();
    raise();
    activateWindow();
}

void HelpWindow::turnTo(const QString& file) {
    if (QFile::exists(QDir(folder_).filePath(file))) {
        page_->setSource(QUrl(file));
        return;
    }
    search_->setEnabled(false);
    contents_->clear();
    page_->setPlainText("The manual is missing: there is no file " +
                        QDir::toNativeSeparators(QDir(folder_).filePath(file)) +
                        ".\n\nInstalling the program again brings it back.");
}

void HelpWindow::filterPages() {
    const QStringList wanted = words(search_->text());
    for (int row = 0; row < contents_->count(); ++row) {
        const bool hasAll = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
            return texts_[row].contains(word, Qt::CaseInsensitive);
        });
        contents_->item(row)->setHidden(!hasAll);
    }
    markFound();
}

void HelpWindow::openFirstFound() {
    for (int row = 0; row < contents_->count(); ++row)
        if (!contents_->item(row)->isHidden())
            return contents_->setCurrentRow(row);
}

/// Marks each place of the page that holds a word of the search.
void HelpWindow::markFound() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : words(search_->text())) {
        for (QTextCursor at = page_->document()->find(word); !at.isNull();
             at = page_->document()->find(word, at)) {
            QTextCharFormat format;
            format.setBackground(QColor("#ffd54d"));
            format.setForeground(Qt::black);
            marks += {at, format};
        }
    }
    page_->setExtraSelections(marks);
}

/// Brings the contents and the marks to the page that is shown now.
void HelpWindow::followPage(const QUrl& shown) {
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentRow(static_cast<int>(files_.indexOf(shown.fileName())));
    markFound();
}

void HelpWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followTheme();
}

/// Chooses the colours of links and table heads that stand out from the theme's own background.
void HelpWindow::followTheme() {
    const bool dark = palette().base().color().lightness() < kHalfLight;
    page_->document()->setDefaultStyleSheet(dark ? kDarkStyle : kLightStyle);
    page_->reload();
}

} // namespace parabolt
