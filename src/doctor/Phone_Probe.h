#pragma once

#include "device/Phone_Values.h"

#include <QString>

class MFCSMS;

// What a probe shows while it runs. Implemented by the wizard's window; called on the probing thread, and each call
// returns when it is done.
class Probe_Display : public Phone_Values_Display
{
public:
    virtual void Show_Create_Modeless() = 0;  ///< the please-wait sheet appears
    virtual void Hide_Destroy_Modeless() = 0; ///< and disappears
    virtual void Tell_About_Device(const QString& text) = 0;
};

// Shows the please-wait sheet for as long as it lives, so that every way out hides it.
class Shown_Sheet
{
public:
    explicit Shown_Sheet(Probe_Display& display) : m_display(display) { m_display.Show_Create_Modeless(); }
    ~Shown_Sheet() { m_display.Hide_Destroy_Modeless(); }
    Shown_Sheet(const Shown_Sheet&) = delete;
    Shown_Sheet& operator=(const Shown_Sheet&) = delete;

private:
    Probe_Display& m_display;
};

// The service centre described by the wizard's fields.
struct Chosen_Centre
{
    bool is_custom = false;
    QString default_smsc; ///< as the device reported it
    QString custom_smsc;  ///< as typed
};

// Talks to one device through the wizard's session: reads its details, or checks that messages can be sent through it.
// Made for one run on a worker; blocks for the session's waits. Two probes must not run on one session at once.
class Phone_Probe
{
public:
    Phone_Probe(MFCSMS& session, Probe_Display& display) : m_session(session), m_display(display) {}

    /// Puts the nine details into the display and returns nothing, or returns why the device is unusable: the caller
    /// reports it once its sheet has gone. The port is closed afterwards.
    QString Read_Details(const QString& path);

    /// Whether the device answers, has a service centre to send through and supports sending; reports what is wrong if
    /// not. The port is left open if only the centre or the support is missing.
    bool Check_For_Sending(const QString& path, const Chosen_Centre& centre);

    /// Closes the session's port, if any, and drops it.
    static void Let_Go_Of_Port(MFCSMS& session);

private:
    QString Find_Fault(const QString& path, const Chosen_Centre& centre);
    QString Find_Fault_When_Open(int handle, const QString& path, const Chosen_Centre& centre);
    bool Connect(int handle, const QString& path);

    MFCSMS& m_session;
    Probe_Display& m_display;
};
