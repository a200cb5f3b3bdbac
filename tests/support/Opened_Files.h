#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

// Takes the place of the desktop's opener for as long as it lives.
class Opened_Files : public QObject
{
    Q_OBJECT

public:
    explicit Opened_Files(QStringList schemes = {"file"}) : m_schemes(std::move(schemes)) { Open_With("Open"); }
    ~Opened_Files() override
    {
        for (const auto& scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    /// There is a program for them, or there is none.
    void Has_A_Program() { Open_With("Open"); }
    void Has_No_Program() { Open_With("No_Such_Slot"); }

    QList<QUrl> m_urls;

public Q_SLOTS:
    void Open(const QUrl& url) { m_urls.append(url); }

private:
    void Open_With(const char* slot)
    {
        for (const auto& scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, slot);
    }

    const QStringList m_schemes;
};
