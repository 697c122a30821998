#include "qt/program.h"

#include <QApplication>

/// Reads one argument, if there is one: the session file to open.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return parabolt::Program().run(QApplication::arguments().value(1).toStdString());
}
