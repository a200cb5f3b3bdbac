#pragma once

#include "device/Decoded_Text.h"
#include "device/KVSerialError.h"
#include "device/KVSerialPortDelegate.h"
#include "device/Serial_Calls.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <termios.h>

class QObject;

enum class KVSerialParity
{
    None,
    Odd,
    Even
};

using KVSerialOptions = QHash<QString, QString>;

// The keys of a port's options.
inline constexpr char KVSerialOptionServiceName[] = "KVSerialOptionServiceName";
inline constexpr char KVSerialOptionSpeed[] = "KVSerialOptionSpeed";
inline constexpr char KVSerialOptionDataBits[] = "KVSerialOptionDataBits";
inline constexpr char KVSerialOptionParity[] = "KVSerialOptionParity"; ///< "Odd", "Even"
inline constexpr char KVSerialOptionStopBits[] = "KVSerialOptionStopBits";
inline constexpr char KVSerialOptionInputFlowControl[] = "KVSerialOptionInputFlowControl";   ///< "RTS", "DTR"
inline constexpr char KVSerialOptionOutputFlowControl[] = "KVSerialOptionOutputFlowControl"; ///< "CTS", "DSR", "CAR"
inline constexpr char KVSerialOptionEcho[] = "KVSerialOptionEcho";                           ///< "YES"
inline constexpr char KVSerialOptionCanonicalMode[] = "KVSerialOptionCanonicalMode";         ///< "YES"

/// Sole owner of an open descriptor; made by a port's open, emptied by its close even while others hold it.
class KVFileHandle
{
public:
    KVFileHandle(int descriptor, Serial_Calls& calls) : m_descriptor(descriptor), m_calls(calls) {}
    ~KVFileHandle() { closeFile(); }
    KVFileHandle(const KVFileHandle&) = delete;
    KVFileHandle& operator=(const KVFileHandle&) = delete;

    int fileDescriptor() const { return m_descriptor; }
    void closeFile();

private:
    std::atomic<int> m_descriptor;
    Serial_Calls& m_calls;
};

/// A serial device by path: open, close, write, a read that collects what arrives within the read time-out, and
/// background threads that hand data to a delegate. Held by shared_ptr: a background thread keeps its port alive until
/// it ends, which it does when the port is closed, the line hangs up or the program exits. Any thread may use it, but
/// only one at a time may exchange (write, then read). From the write of a command to the end of the read that follows,
/// the background reader leaves the line's bytes alone; if no read follows, for some seconds. No call blocks for ever.
class KVSerialPort : public std::enable_shared_from_this<KVSerialPort>
{
public:
    static constexpr int Buffer_Size = 4096;

    KVSerialPort(const QString& bsdPath, const QString& withName, const QString& type,
                 Serial_Calls& calls = Real_Serial_Calls());
    ~KVSerialPort();
    KVSerialPort(const KVSerialPort&) = delete;
    KVSerialPort& operator=(const KVSerialPort&) = delete;

    QString bsdPath() const { return m_bsd_path; }

    /// Opens the device for shared use, saves its settings and makes the line raw. Returns no handle on failure, which
    /// includes a path that is no terminal and a line held exclusively; lastError says why.
    std::shared_ptr<KVFileHandle> open();
    /// As open, but nobody else may open the device meanwhile, and the descriptor stays non-blocking.
    std::shared_ptr<KVFileHandle> openExclusively();
    bool isOpen() const { return m_file_descriptor != -1; }
    /// Restores the settings found at open and closes. Wakes all waits on the port. Does nothing on a closed port.
    void close();

    /// Total seconds of a synchronous read at pace 1; at 0, the initial value, it reads nothing.
    void setReadTimeout(double seconds) { m_read_timeout = seconds; }

    // Synchronous reads, here and below: they end at 4096 bytes, at the byte count or the stop character where one is
    // given, or when the read time-out has gone by. They return the bytes read, or a null value when there are none or
    // the line failed.
    QByteArray readAndReturnError(KVSerialError* error = nullptr);
    QString readStringUsingEncoding(KVText_Encoding encoding, KVSerialError* error = nullptr);
    /// As a synchronous read, but ends with the first bytes that come, and its time-out is given: real seconds, 0 for
    /// what is there already.
    QByteArray readAvailable(double seconds, KVSerialError* error = nullptr);

    // Synchronous writes: whether every byte went out.
    bool writeData(const QByteArray& data, KVSerialError* error = nullptr);
    bool writeString(const QString& string, KVText_Encoding usingEncoding, KVSerialError* error = nullptr);
    bool writeBytes(const char* bytes, qsizetype length, KVSerialError* error = nullptr);
    /// A last write to a device, for which even the program's exit waits, at most 2 seconds at pace 1. If it does not
    /// fit by then, pending output is discarded.
    bool writeInLeaving(const QByteArray& data);
    /// Whether it was done; on failure gotError is set.
    bool flushInput(bool input, bool output);
    /// No read follows for a while: what waits and what comes goes to the background reader.
    void Await_No_Answer() { Await_Answer_Until(0); }

    void setDelegate(KVSerialPortDelegate* delegate);
    /// Starts one background read when the delegate wants its data; the delegate starts the next. Where the system
    /// refuses a thread for it, the next write or read tries again.
    void readDataInBackground();

    // Kept by name; nothing in the program calls these (KVSerialPort_Unused.cpp).

    QString name() const { return m_service_name; }
    QString type() const { return m_service_type; }
    QString description() const;
    size_t hash() const;
    /// Whether both stand for the same device path.
    bool isEqual(const KVSerialPort& other) const { return m_bsd_path == other.m_bsd_path; }
    /// Path, name and type under the keys "bsdPath", "serviceName" and "serviceType".
    KVSerialOptions properties() const;

    /// Reserves the port for an owner. Returns no port when somebody else has it already.
    std::shared_ptr<KVSerialPort> obtainBy(QObject* owner);
    void free() { m_owner = nullptr; }
    bool available() const { return m_owner == nullptr; }
    QObject* owner() const { return m_owner; }

    int fileDescriptor() const { return m_file_descriptor; }
    std::shared_ptr<KVFileHandle> fileHandle() const;

    bool gotError() const { return m_got_error; }
    int lastError() const { return m_last_error; }
    double readTimeout() const { return m_read_timeout; }

    // Line control. Each answers whether it was done; on failure gotError is set.
    bool drainInput(); ///< waits, with an end, until what was written has gone out
    bool sendBreak();
    bool setDTR();
    bool clearDTR();

    QByteArray readBytes(quint64 bytes, KVSerialError* error = nullptr);
    QByteArray readUpToChar(char stop, KVSerialError* error = nullptr);
    QByteArray readBytes(quint64 bytes, char upToChar, KVSerialError* error = nullptr);
    QString readBytes(quint64 bytes, KVText_Encoding usingEncoding, KVSerialError* error = nullptr);
    QString readUpToChar(char stop, KVText_Encoding usingEncoding, KVSerialError* error = nullptr);
    QString readBytes(quint64 bytes, char upToChar, KVText_Encoding usingEncoding, KVSerialError* error = nullptr);
    /// Bytes that wait to be read, -1 when the port is closed or the system does not say.
    int bytesAvailable();

    /// Tells the target, on the interface thread, once input waits; takes none of it.
    void waitForInput(QObject* target, std::function<void()> selector);
    void stopReadInBackground();
    int numberOfReadInBackgroundThreads() const { return m_background_readers; }

    // The same (KVSerialPort_Background_Writing_Unused.cpp).

    void writeDataInBackground(const QByteArray& data);
    void stopWriteInBackground();
    int numberOfWriteInBackgroundThreads() const { return m_background_writers; }

    // The same (KVSerialPort_Options_Unused.cpp). Settings change only the port's own copy until commitChanges applies
    // them at once.

    long speed() const; ///< bits a second
    bool setSpeed(long speed);
    int dataBits() const;
    bool setDataBits(int bits); ///< 5 to 8
    KVSerialParity parity() const;
    void setParity(KVSerialParity parity);
    int stopBits() const;
    bool setStopBits(int bits); ///< 1 or 2
    bool echoEnabled() const;
    void setEchoEnabled(bool on);
    // Linux knows RTS and CTS only together; DTR, DSR and CAR not at all: switching one of those on is a failure.
    bool RTSInputFlowControl() const;
    void setRTSInputFlowControl(bool on);
    bool DTRInputFlowControl() const { return false; }
    bool setDTRInputFlowControl(bool on) { return Refuse_If(on); }
    bool CTSOutputFlowControl() const { return RTSInputFlowControl(); }
    void setCTSOutputFlowControl(bool on) { setRTSInputFlowControl(on); }
    bool DSROutputFlowControl() const { return false; }
    bool setDSROutputFlowControl(bool on) { return Refuse_If(on); }
    bool CAROutputFlowControl() const { return false; }
    bool setCAROutputFlowControl(bool on) { return Refuse_If(on); }
    bool hangupOnClose() const;
    void setHangupOnClose(bool on);
    bool localMode() const;
    void setLocalMode(bool on);
    bool canonicalMode() const;
    void setCanonicalMode(bool on);
    char endOfLineCharacter() const;
    void setEndOfLineCharacter(char character);
    bool commitChanges();

    /// The settings as texts under the keys above; what is off is absent.
    KVSerialOptions options();
    /// Takes and applies the settings given; keys that are absent switch flow control, parity, echo and canonical mode
    /// off.
    bool setOptions(const KVSerialOptions& options);
    void clearError();

private:
    struct Read_Ends;
    class Line;
    class Awaited_Answer;

    std::shared_ptr<KVFileHandle> Open_With(int flags, bool exclusively);
    bool Take_Over(int descriptor, bool exclusively);
    void Take_Raw_Settings();
    bool Note_Result(int result);
    bool Refuse_If(bool on);
    void Set_Flag(tcflag_t termios::*field, tcflag_t flag, bool on);

    std::shared_ptr<const Line> Present_Line();
    QByteArray Read_Until(const Read_Ends& ends, KVSerialError* error);
    qsizetype Read_Into_Buffer(const Read_Ends& ends, KVSerialError& outcome);
    ssize_t Take_Bytes(const Line& line, char* bytes, size_t size, bool in_background);
    ssize_t Put_Bytes(const Line& line, const char* bytes, size_t size);
    void Await_Answer_Until(double moment);

    void Start_Missing_Reader();
    void Read_In_Background();
    bool Wait_For_Background_Data(const Line& line, QByteArray& data);
    void Deliver_Read(const QByteArray& data);
    void Write_In_Background(const QByteArray& data);
    quint64 Write_In_Pieces(const QByteArray& data, double report_after, bool& has_reported);
    void Deliver_Progress(quint64 value, quint64 total);
    std::shared_ptr<KVSerialPortDelegate::Delegate_Guard> Delegate() const;

    const QString m_bsd_path;
    const QString m_service_name;
    const QString m_service_type;
    Serial_Calls& m_calls;
    std::atomic<int> m_file_descriptor{-1};
    std::shared_ptr<KVFileHandle> m_file_handle;
    termios m_options{};
    termios m_original_options{};
    KVSerialOptions m_options_dictionary;
    std::atomic<bool> m_got_error{false};
    std::atomic<int> m_last_error{0};
    QObject* m_owner = nullptr;
    std::array<char, Buffer_Size> m_buffer{};
    std::atomic<double> m_read_timeout{0};
    bool m_is_exclusive = false;

    std::shared_ptr<KVSerialPortDelegate::Delegate_Guard> m_delegate;
    bool m_delegate_handles_read_in_background = false;
    bool m_delegate_handles_write_in_background = false;
    mutable std::mutex m_delegate_lock;

    std::mutex m_write_lock; // held by a background writer for its whole transfer
    std::mutex m_read_lock;  // held by a background reader for its whole read
    // Recursive: while the interface thread waits in a close it serves events, and these may come back to this port.
    mutable std::recursive_mutex m_close_lock;
    std::mutex m_line_lock;             // held for each single read and write, and where the line is opened or let go
    std::shared_ptr<const Line> m_line; // the present opening, none while closed
    double m_answer_awaited_until = 0;  // on the clock of Now_Seconds; in the past when no answer is awaited
    int m_background_event;             // wakes the background reader: closed, stopped, or no answer awaited any longer

    std::atomic<bool> m_stop_write_in_background{false};
    std::atomic<int> m_background_writers{0};
    std::atomic<bool> m_stop_read_in_background{false};
    std::atomic<bool> m_reader_is_missing{false}; // the system refused it a thread
    std::atomic<int> m_background_readers{0};
};
