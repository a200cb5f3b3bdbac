#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <mutex>

class KVSerialPort;

/// Receives the reports of a port's background threads, on the interface thread. The port does not own it: it keeps a
/// Delegate_Guard, which stops calls to a delegate that has gone. A derived class that may be destroyed while a port
/// still works calls No_More_Calls first thing in its destructor.
class KVSerialPortDelegate
{
public:
    /// The link from a port to its delegate, shared by both. A call and the delegate's destruction exclude each other.
    class Delegate_Guard
    {
    public:
        explicit Delegate_Guard(KVSerialPortDelegate* delegate) : m_delegate(delegate) {}
        /// Runs the step with the delegate unless that has gone.
        void Call(const std::function<void(KVSerialPortDelegate&)>& step);
        void Forget();

    private:
        std::recursive_mutex m_lock;
        KVSerialPortDelegate* m_delegate;
    };

    KVSerialPortDelegate();
    virtual ~KVSerialPortDelegate();
    KVSerialPortDelegate(const KVSerialPortDelegate&) = delete;
    KVSerialPortDelegate& operator=(const KVSerialPortDelegate&) = delete;

    virtual bool handlesReadInBackground() const { return false; }
    virtual bool handlesWriteInBackground() const { return false; }

    /// The bytes that a background read took; empty when the port was closed or the line hung up.
    virtual void serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data);
    /// How far a background write has come, in bytes.
    virtual void serialPortWriteProgress(const std::shared_ptr<KVSerialPort>& serialPort, quint64 value, quint64 total);

    std::shared_ptr<Delegate_Guard> Guard() const { return m_guard; }

protected:
    void No_More_Calls() { m_guard->Forget(); }

private:
    std::shared_ptr<Delegate_Guard> m_guard;
};
