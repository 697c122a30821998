#include "qt/program.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    parabolt::Program program;
    program.start();
    return QApplication::exec();
}
