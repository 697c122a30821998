#include "qt/program.h"

#include <QApplication>

/// Reads one argument, if there is one: the session file to open.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    parabolt::Program program;
    program.start(QApplication::arguments().value(1).toStdString());
    return QApplication::exec();
}
