#include "records/Sent_Item_Store.h"

#include "records/Data_Paths.h"
#include "records/Sent_Item_Format.h"

Sent_Item_Store::Sent_Item_Store(const QString& path) : m_file(path) {}

bool Sent_Item_Store::Append(const Sent_Item& item)
{
    return Store_File(Sent_Item_Path).Append(Sent_Item_Format::Line(item));
}

Sent_Item_List Sent_Item_Store::Load_List(qsizetype early_count,
                                          const std::function<void(const Sent_Item_List&)>& early)
{
    // Not under the file's lock: taking the first records may wait for a window.
    return Sent_Item_List::Read(m_file.Load_Bytes(), early_count, early);
}
