#pragma once

#include "records/Data_Paths.h"
#include "records/Sent_Item_List.h"
#include "records/Store_File.h"

#include <functional>

// The file of sent items. The send job appends to it; the sent items window keeps an object of its own that loads and
// rewrites it. What holds for a Store_File holds here: workers only, one thread at a time for one object.
class Sent_Item_Store
{
public:
    explicit Sent_Item_Store(const QString& path = Sent_Item_Path);

    /// Appends one record to the file at Sent_Item_Path, with an empty status. Returns whether it is in the file. For
    /// any worker.
    static bool Append(const Sent_Item& item);

    /// The records of the file; none of a file that is missing or can not be read. Where there are so many, early is
    /// handed the first of them as soon as they are read.
    Sent_Item_List Load_List(qsizetype early_count = -1, const std::function<void(const Sent_Item_List&)>& early = {});

    /// Writes the records back, each with an empty status. See Store_File for what stays.
    bool Rewrite(const Sent_Item_List& items);
    bool Clear();
    void Forget();

private:
    Store_File m_file;
};
