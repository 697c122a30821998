#include "qt/dialogs.h"

#include "mainform/main_form.h"
#include "qt/form_binding.h"

#include <QApplication>
#include <QMessageBox>

namespace parabolt {
namespace {

QMessageBox::StandardButton ask(std::string_view text, QMessageBox::StandardButtons buttons) {
    QMessageBox box(QMessageBox::NoIcon, toQt(kApplicationTitle), toQt(text), buttons,
                    QApplication::activeWindow());
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void QtMessageBoxes::show(std::string_view message) {
    parabolt::ask(message, QMessageBox::Ok);
}

bool QtMessageBoxes::ask(std::string_view question) {
    return parabolt::ask(question, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

MessageBoxes::Answer QtMessageBoxes::askOrCancel(std::string_view question) {
    switch (parabolt::ask(question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

void QtEventLoop::yield() {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace parabolt
