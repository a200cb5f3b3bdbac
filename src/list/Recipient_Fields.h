#pragma once

#include "list/Contact_Table.h"

#include <QSharedData>
#include <memory>
#include <span>
#include <vector>

// Which rows of which tables the recipients of a list came from, and so what their fields hold: eight bytes for each
// recipient up to the last that has any. Kept by a Recipient_List, whose thread it follows.
class Recipient_Fields : public QSharedData
{
public:
    /// A recipient's row; no table for a recipient without fields. Valid as long as the list.
    struct Place
    {
        const Contact_Table* table = nullptr;
        int row = -1;
    };

    Place At(int index) const;
    /// The table itself, to be kept; null for none.
    std::shared_ptr<const Contact_Table> Table_At(int index) const;
    /// Makes room for so many recipients, so that it need not be made step by step.
    void Expect(std::size_t count);
    /// The recipients from an index on came from the rows of a table. All of it, or nothing when memory runs out.
    void Set(int index, const std::shared_ptr<const Contact_Table>& table, std::span<const int> rows);
    /// The recipients from an index on have no fields.
    void Forget_From(int index);
    /// Removes the recipients of a sorted list of distinct indexes. Answers no when nobody has fields any more.
    bool Remove_Rows(const std::vector<int>& rows);

    /// The columns of all tables, those of the same name joined. Of several in one table the first are joined with the
    /// first, the second with the second and so on.
    const QStringList& Names() const { return m_names; }
    /// What the recipient has under the name at an index; empty for nothing.
    QString Field_At(int index, int name) const;

private:
    struct Source
    {
        std::shared_ptr<const Contact_Table> table; // null when nobody is from there any more
        std::vector<int> columns;                   // for each name; the last may be missing, and -1 is none
    };
    struct Entry
    {
        int source = -1;
        int row = -1;
    };

    int Source_Of(const std::shared_ptr<const Contact_Table>& table);
    Source Named(const std::shared_ptr<const Contact_Table>& table);
    void Name_Anew();

    std::vector<Entry> m_entries;
    std::vector<Source> m_sources;
    QStringList m_names;
    std::vector<QString> m_keys; // of the names, as they are compared
};
