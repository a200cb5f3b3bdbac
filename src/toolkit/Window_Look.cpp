#include "toolkit/Window_Look.h"

#include "toolkit/Box_Clicks.h"
#include "toolkit/Key_Marks.h"
#include "toolkit/Look.h"
#include "toolkit/Program_Style.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

QColor Window_Background()
{
    return Tokens_Now().ground;
}

void Apply_Application_Look(QApplication& application)
{
    application.setStyle(new Program_Style); // the application owns it
    Choose_Look(Look::Light);
    Tick_Boxes_By_Clicks();
    Key_Marks::Follow(application);
}

// The application's palette alone has a say, so that a window follows when another look is chosen.
void Apply_Window_Look(QWidget& window, Letters first_size)
{
    window.setPalette({});
    window.setAutoFillBackground(true);
    Fit_Window(window, first_size);
}
