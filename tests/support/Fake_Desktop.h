#pragma once

#include <QStringList>
#include <memory>

// The services of a desktop, as far as a program asks them for something: each call is noted as a line, the service,
// the member and its values, and so is each signal for the launcher. On the interface thread.
class Fake_Desktop
{
public:
    static constexpr char Login[] = "org.freedesktop.login1";
    static constexpr char Power[] = "org.freedesktop.PowerManagement";
    static constexpr char Screen[] = "org.freedesktop.ScreenSaver";
    static constexpr char Notifications[] = "org.freedesktop.Notifications";

    Fake_Desktop(const QString& bus, const QStringList& services);
    ~Fake_Desktop();

    /// From now on this service refuses, or does not answer.
    void Refuses(const QString& service);
    void Is_Silent(const QString& service);

    /// What was asked for and told since the last time, by whoever has ended by now.
    QStringList Heard();
    bool Has_Heard(const QString& beginning) const;
    /// Whether somebody holds a lock that the login service gave.
    bool Is_Kept_Awake() const;

private:
    class Services;

    const QString m_bus;
    std::unique_ptr<Services> m_services;
};
