#pragma once

#include "device/Device_Exception.h"
#include "device/Found_Port_List.h"
#include "device/KVSerialPort.h"
#include "device/Phone_Values.h"
#include "device/Port_Finder.h"

#include <atomic>
#include <mutex>
#include <set>

/// The session with a GSM phone or modem: owns the port that carries every exchange, writes command lines, reads what
/// is answered within the port's read time-out and looks for an expected text in it. The main window and the wizard
/// each own one. Its operations run on the caller's thread and block for the waits described; two exchanges must not
/// run on one session at once. It shows nothing: it only returns results and writes log lines. The int that exchanges
/// take is the direct descriptor, which is closed by then and ignored.
class MFCSMS : public KVSerialPortDelegate
{
public:
    explicit MFCSMS(Serial_Calls& calls = Real_Serial_Calls(), Port_Finder& finder = System_Port_Finder());
    /// Closes what is still open.
    ~MFCSMS() override;

    // Finding ports.

    /// Fills the iterator with the serial ports of this computer. Returns 0 or the system's status.
    int FindModems(Modem_Iterator& iterator);
    /// Tries every port of the iterator and hands those that open to the list. bsdPath is left with the last path
    /// tried; one of maxPathSize bytes (with its end) or more is passed over. Returns 0 when a port opened, otherwise
    /// 5.
    int GetModemPath(Modem_Iterator& iterator, QString& bsdPath, int maxPathSize, Found_Port_List& list);

    // The direct descriptor, to test whether a device can be opened and set up.

    /// Opens the device for this session alone and sets up its line. Returns the descriptor, or -1 with a line in the
    /// log.
    int OpenSerialPort(const QByteArray& path);
    /// Waits, with an end, for what was written, restores the settings and closes. Does nothing for a descriptor that
    /// this session has not opened or has closed already.
    void CloseSerialPort(int descriptor);

    // The port, through which all exchanges go.

    /// Makes a port for the path, opens it and starts its background read; without success there is no port afterwards.
    /// Does nothing when the port has that path already, open or not.
    void initPort(const QString& path);
    void setPort(const std::shared_ptr<KVSerialPort>& port);
    /// None before initPort and after it failed.
    std::shared_ptr<KVSerialPort> port() const;

    /// Whether the command, UTF-8 up to its first zero byte, was written whole.
    bool Write_Command(int descriptor, const QByteArray& command_str);
    /// Reads for the whole read time-out. Whether the answer has the expected text and no "ERROR"; it stays in
    /// m_sLastResponse.
    bool Read_Command(int descriptor, const QByteArray& response_str);
    bool Check_Connection(int descriptor);

    // A message on the line: between these two the phone takes everything for its text.
    bool Begin_Message(int descriptor, const QByteArray& command_str); ///< writes the command that asks for a prompt
    bool End_Message(int descriptor);                                  ///< writes the terminator
    /// For the program's exit: cancels a message that was begun and not ended, so that the phone does not wait for the
    /// rest.
    void Call_Off_Message();

    /// The last answer without white space at its ends; after an exception during a read, the exception's reason.
    QString m_sLastResponse() const;
    void setM_sLastResponse(const QString& response);

    static QByteArray NString_To_Command_Char(const QString& text) { return text.toUtf8(); }

    // Submission.

    /// 1 = use PDU mode, 2 = use text mode, 0 = no usable answer.
    int PDU_or_Text_SMS(int descriptor);
    bool Prepare_Modem_For_PDU_SMS(int descriptor);
    bool Prepare_Modem_For_Text_SMS(int descriptor);
    bool Check_Msg_Sending_Supported(int descriptor);
    bool More_SMS_Comnd(int descriptor);
    /// Submits one message, in parts where it is long. smsc_num is empty for the device's own centre. False when a
    /// write or the encoder failed; true otherwise, whatever the device answered, and when a stop was asked between
    /// parts.
    bool Send_PDU_SMS(int descriptor, const QString& number, const QString& message, const QString& smsc_num,
                      bool flash_sms, bool unicode_sms);
    bool Send_Text_SMS(int descriptor, const QString& number, const QString& message, const QString& smsc_num,
                       bool flash_sms, bool unicode_sms);

    /// What was read after each part of the last message that one of the two sent. Text mode reads nothing after a part
    /// in unicode, and there it stays empty.
    const QStringList& Message_Answers() const { return m_message_answers; }
    /// Reads the answer to a part whose end was written.
    void Read_Message_Answer(int descriptor);

    // What the device says about itself.

    /// Asks for the nine values, about a read time-out each. False only when a command could not be written.
    bool Read_Ph_Values(int descriptor, Phone_Values_Display& display);

    bool handlesReadInBackground() const override { return true; }
    /// Logs unsolicited data and reads on. Interface thread.
    void serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data) override;

    // Kept by name; nothing in the program calls these (MFCSMS_Unused.cpp).

    /// Asks the modem once over the direct descriptor; whether it answered within 5 seconds.
    bool InitializeModem(int descriptor);
    /// A null text when a write or read failed.
    QString Get_IMEI_Number(int descriptor);
    QString Model_Name(int descriptor);
    /// Whether the device reports a message centre of its own.
    bool Default_SMSC_Hai(int descriptor);
    /// The printable form of a text, in a buffer that the calling thread's next call overwrites.
    static const char* LogString(const char* text);

private:
    bool Owns(int descriptor) const;
    /// Returns whether it was the session's own.
    bool Let_Go_Of(int descriptor);

    Serial_Calls& m_calls;
    Port_Finder& m_finder;
    // Held by CloseSerialPort around the whole sequence. Recursive: while the interface thread waits in a close it
    // serves events, and these may close something else.
    std::recursive_mutex m_close_lock;
    std::shared_ptr<KVSerialPort> m_port;
    QString m_last_response;
    QStringList m_message_answers; // of the thread that sends
    std::atomic<bool> m_message_is_begun{false};
    std::set<int> m_descriptors; // opened by OpenSerialPort and not yet closed
    mutable std::mutex m_fields_lock;
};

/// The session made last. It is never cleared, and nothing reads it.
extern std::atomic<MFCSMS*> mfc_sms_instance;

/// The settings that OpenSerialPort found last, which CloseSerialPort restores: only one direct descriptor at a time
/// can get its own settings back.
extern termios gOriginalTTYAttrs;
