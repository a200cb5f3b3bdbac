#pragma once

#include <QImage>
#include <QString>
#include <vector>

class CorvaneAppDelegate;

struct Picture
{
    QString name;
    QImage image;
};

/// Pictures of what opens over windows for a moment: menus, boxes and the panel for files.
std::vector<Picture> What_Opens(CorvaneAppDelegate& main);
