#include "First_Paint.h"

#include <QApplication>
#include <QLabel>

// The smallest program of the toolkit with one window: what a start is measured against.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("One window"));
    End_At_First_Paint_Of(window);
    window.show();
    return QApplication::exec();
}
