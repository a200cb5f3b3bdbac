#include "stores/Sent_Item_Store.h"

#include "stores/Sent_Item_Format.h"

Sent_Item_Store::Sent_Item_Store(const QString& path) : m_file(path) {}

bool Sent_Item_Store::Append(const Sent_Item& item)
{
    return Store_File(Sent_Item_Path).Append(Sent_Item_Format::Line(item));
}

void Sent_Item_Store::Load(const std::function<void(Sent_Item)>& take)
{
    Sent_Item_Format::Read(m_file.Load(), take); // not under the file's lock: taking them may wait for a window
}

bool Sent_Item_Store::Rewrite(const QList<Sent_Item>& items)
{
    return m_file.Rewrite(Sent_Item_Format::Lines(items));
}

bool Sent_Item_Store::Clear()
{
    return m_file.Clear();
}

void Sent_Item_Store::Forget()
{
    m_file.Forget();
}
