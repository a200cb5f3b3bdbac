#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

// Takes the place of the desktop's opener: QDesktopServices::setUrlHandler("file", &opened, "Open").
class Opened_Files : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> m_urls;

public Q_SLOTS:
    void Open(const QUrl& url) { m_urls.append(url); }
};
