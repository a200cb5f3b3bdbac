#pragma once

#include "records/Data_Paths.h"
#include "records/Sent_Item_List.h"
#include "records/Store_File.h"

#include <functional>

// The file of sent items. The send job appends to it; the sent items window keeps an object of its own that loads and
// rewrites it. The rules for a Store_File apply: workers only, one thread at a time per object.
class Sent_Item_Store
{
public:
    explicit Sent_Item_Store(const QString& path = Sent_Item_Path);

    /// Appends one record, with an empty status, to the file at Sent_Item_Path. Returns whether it is in the file. For
    /// any worker.
    static bool Append(const Sent_Item& item);

    /// The records of the file; none if it is missing or cannot be read. As soon as early_count records have been read,
    /// if there are as many, early receives them.
    Sent_Item_List Load_List(qsizetype early_count = -1, const std::function<void(const Sent_Item_List&)>& early = {});

    /// Writes the records back, each with an empty status. See Store_File for what is kept.
    bool Rewrite(const Sent_Item_List& items) { return m_file.Rewrite(items.Lines()); }
    bool Clear() { return m_file.Clear(); }
    void Forget() { m_file.Forget(); }

private:
    Store_File m_file;
};
