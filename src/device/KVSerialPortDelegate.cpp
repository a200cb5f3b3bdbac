#include "device/KVSerialPortDelegate.h"

void KVSerialPortDelegate::Delegate_Guard::Call(const std::function<void(KVSerialPortDelegate&)>& step)
{
    const std::lock_guard guard(m_lock);
    if (m_delegate)
        step(*m_delegate);
}

void KVSerialPortDelegate::Delegate_Guard::Forget()
{
    const std::lock_guard guard(m_lock);
    m_delegate = nullptr;
}

KVSerialPortDelegate::KVSerialPortDelegate() : m_guard(std::make_shared<Delegate_Guard>(this)) {}

KVSerialPortDelegate::~KVSerialPortDelegate()
{
    m_guard->Forget();
}

void KVSerialPortDelegate::serialPortReadData(const std::shared_ptr<KVSerialPort>&, const QByteArray&) {}

void KVSerialPortDelegate::serialPortWriteProgress(const std::shared_ptr<KVSerialPort>&, quint64, quint64) {}
