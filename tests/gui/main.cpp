#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Preferences, caches and sessions of the tests stay apart from those of whoever runs them.
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_STATE_HOME", settings.path().toUtf8());
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
