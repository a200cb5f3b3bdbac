#pragma once

#include "app/shared/Globals.h"
#include "stores/Sent_Item.h"
#include "stores/Store_File.h"

#include <QList>
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

    /// Hands on the records of the file; none of a file that is missing or can not be read.
    void Load(const std::function<void(Sent_Item)>& take);

    /// Writes the records back, each with an empty status. See Store_File for what stays.
    bool Rewrite(const QList<Sent_Item>& items);
    bool Clear();
    void Forget();

private:
    Store_File m_file;
};
