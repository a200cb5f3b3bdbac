#pragma once

#include "records/Sent_Item.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <vector>

// The records of a file of sent items, kept as the bytes of the file and the position of each record's line in them; a
// record is built when it is asked for. A record that has no line of its own, or was added later, is stored separately.
// Copies cost nothing until one of them changes; each belongs to one thread at a time.
class Sent_Item_List
{
public:
    Sent_Item_List() = default;

    /// The records of a file's bytes, which must be UTF-8: those that Sent_Item_Format::Read passes on. As soon as
    /// early_count records have been read, if there are as many, early receives them.
    static Sent_Item_List Read(const QByteArray& file, qsizetype early_count = -1,
                               const std::function<void(const Sent_Item_List&)>& early = {});

    qsizetype size() const { return m_rows.size(); }
    bool isEmpty() const { return m_rows.isEmpty(); }
    Sent_Item at(qsizetype row) const;
    void append(Sent_Item item);

    /// The rows that remain without the removed ones, which are given in ascending order. For a worker when there are
    /// many.
    friend Sent_Item_List Rows_Without(const Sent_Item_List& list, const std::vector<int>& removed);

    /// The bytes of a file of these records, as returned by Sent_Item_Format::Lines. Lines that are the same in the
    /// file that was read are copied from there.
    QByteArray Lines() const;

private:
    void Take_Line(qsizetype begin, qsizetype end);
    QByteArrayView Line_At(quint32 begin) const;

    // A row is the offset of its line in the bytes of the file, of which there are at most 2 GiB, or, with the highest
    // bit set, the index of an item.
    QByteArray m_file;
    QList<quint32> m_rows;
    QList<Sent_Item> m_items;
};
