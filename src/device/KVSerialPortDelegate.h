#pragma once

#include <QByteArray>
#include <functional>
#include <memory>
#include <mutex>

class KVSerialPort;

/// Receives what a port's background threads have to tell, on the interface thread. Owned by nobody here: the port
/// keeps only a Delegate_Guard, through which a delegate that has gone is no longer called. A derived class whose
/// object may go while a port still works calls No_More_Calls first thing in its destructor.
class KVSerialPortDelegate
{
public:
    /// The way from a port to its delegate, shared by both. A call and the delegate's end keep out of each other's way.
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
