#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolBar;
class QUrl;

namespace parabolt {

/// The page with which the manual begins, and to which all others link.
inline constexpr auto kFirstHelpPage = "index.html";

/// Where the manual lies: beside the program, or where an installed program has its shared files.
QString manualFolder();

/// The manual in a window of its own, beside the other windows: contents, a search by page, the
/// page, and back, forward and first page. Its pages are those to which the first one,
/// `index.html`, links.
class HelpWindow : public QWidget {
public:
    explicit HelpWindow(const QString& folder, QWidget* parent = nullptr);

    /// Shows the window with a page; without a manual, a message in the page's place.
    void showPage(const QString& file);

protected:
    void changeEvent(QEvent* event) override;

private:
    QToolBar* makeToolBar();
    void readPages();
    void turnTo(const QString& file);
    void filterPages();
    void openFirstFound();
    void markFound();
    void followPage(const QUrl& shown);
    void followTheme();

    QString folder_;
    QStringList files_; ///< names of the pages' files, in the order of the contents
    QStringList texts_; ///< text of each page, for the search
    QLineEdit* search_;
    QListWidget* contents_;
    QTextBrowser* page_;
};

} // namespace parabolt
