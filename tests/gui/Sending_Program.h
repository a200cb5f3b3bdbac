#pragma once

#include "device/Device_Paths.h"
#include "gui/Open_Program.h"
#include "phone/Virtual_Phone.h"
#include "support/Log_Lines.h"

class QMessageBox;

// The boxes that a job or the wizard ends in, as they are shown.
namespace Box {
inline constexpr char Completed[] = "\nMessage Sending Process Completed.";
inline constexpr char Connection_Error[] = "\nDevice Connection Error!";
inline constexpr char No_Modem[] = "\nSelected device is not working properly.Could not initialize modem.\n";
inline constexpr char Does_Not_Open[] =
    "\n\nSelected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or "
    "establishing connection.";
inline constexpr char Could_Not_Open[] = "\nSelected device is not working properly.\nCould not open modem.\n";
inline constexpr char Not_Working[] = "\nSelected device is not working properly.";
inline constexpr char Default_Smsc_Blank[] = "\nDefault SMSC No. details should not be blanked.";
inline constexpr char No_Sending[] = "\nSelected device do not provide a modem in the computer or the modem does not "
                                     "support SMS sending command.";
} // namespace Box

// How a list is sent; the phone's offer decides between PDU and text mode.
struct Way
{
    bool m_text_mode = false;
    bool m_unicode = false;
    bool m_flash = false;
};

// The open program and a phone on its line, used by clicks: a list of three recipients, the last with a long message,
// is sent, or the wizard is visited. Nothing of either may be left. Every read lasts 20 ms.
class Sending_Program : public Open_Program, public QObject
{
protected:
    static constexpr int Items = 3;

    Sending_Program();
    ~Sending_Program() override;

    /// The waits are this many times as long as usual from now on.
    void Slow_Down(double factor);

    /// A new phone on a line of its own.
    void Get_A_Phone(const Phone_Moods& moods = {});
    /// The phone is back on the cable, well-mannered, and has forgotten everything.
    void Plug_In_Again();
    /// The device is selected, as the wizard leaves it.
    void Select(const QString& path);
    void Select_The_Phone() { Select(QString::fromStdString(phone->Path())); }

    /// Types and pastes the first so many of the three items, and sets the options of the way.
    void Fill_The_List(const Way& way = {}, int items = Items);
    /// Presses Send; what was written last is offered for the whole list first and turned down.
    void Press_Send();
    /// Presses Send, presses OK in the one box that comes, and returns its text when the job has ended.
    std::string Send();
    /// A job through a phone that minds its manners is as it ever was.
    void Expect_That_Sending_Works();

    /// What the handset shows of each message, in order.
    std::vector<std::string> Inbox() const;
    /// What it shows when everything has come: three messages, or four where text mode cuts the long one in two.
    static std::vector<std::string> Everything(const Way& way);

    /// No job, nothing open, nothing shown, and the main window takes input.
    void Expect_That_All_Is_Quiet();

    /// The texts of all boxes so far.
    std::vector<std::string> Boxes_Shown() const;

    // The wizard, from the main window's button to its end.

    /// Opens the wizard, does the steps in it, and leaves it without a device when it is still open then.
    void Visit_Wizard(const std::function<void()>& steps);
    /// Clicks the phone's row and waits for the end of the probe.
    void Click_The_Phone();
    /// The device's row in the wizard's list, or none.
    QModelIndex Row_Of(const QString& path);
    void Click_In_Wizard(const char* button);
    void Type_Custom_Smsc(const QString& number);
    bool Wizard_Is_Open();
    /// The nine details in their order, without the port.
    std::vector<std::string> Details();
    /// The details of a well-mannered phone.
    static std::vector<std::string> Usual_Details();
    /// The wizard takes the phone, and the main window shows it.
    void Expect_That_The_Wizard_Takes_The_Phone();

    bool eventFilter(QObject* watched, QEvent* event) override;

    std::unique_ptr<Virtual_Phone> phone;
    Log_Lines log;        // printed when the test fails
    int m_lines_held = 0; // descriptors on the device that the test has open itself

private:
    void Paste(const QString& text);
    void Expect_Progress_As_It_Should_Be(const std::string& box);

    int m_sheets = 0; // please-wait sheets shown since the last click on a device
    double m_preparing_pace;
    double m_sending_pace;
    std::string m_path; // of the device selected last
};

/// How many descriptors of this process stand for the device, also where its path has gone.
int Descriptors_On(const std::string& path);
