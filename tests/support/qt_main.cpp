// GoogleTest under a Qt application: a QApplication where widgets are linked, else the plain one.
#include <QtCore/QLocale>
#include <gtest/gtest.h>

#ifdef QT_WIDGETS_LIB
#include <QtWidgets/QApplication>
using TApplication = QApplication;
#else
#include <QtCore/QCoreApplication>
using TApplication = QCoreApplication;
#endif

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QLocale::setDefault(QLocale::c());
    TApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
