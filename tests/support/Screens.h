#pragma once

#include <QApplication>
#include <QScreen>

/// A screen of support/screens.json: "desk" (1920 x 1080), "small" (1024 x 600) or "enlarged" (1366 x 768 at 150 %).
inline QScreen* Screen_Called(const char* name)
{
    for (auto* screen : QApplication::screens()) {
        if (screen->name() == name)
            return screen;
    }
    qFatal("there is no screen %s", name);
}
