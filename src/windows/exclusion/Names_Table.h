#pragma once

#include "list/Row_Search.h"
#include "texts/Fixed_Text.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/Row_Table_Model.h"
#include "windows/exclusion/Page_Work.h"

#include <QStringList>
#include <QTableView>
#include <optional>
#include <vector>

// One of the two tables of the lists page with the names that it shows, and what it says when there is nothing to act
// on. Owned by the page; interface thread.
class Names_Table
{
public:
    struct Words
    {
        Fixed_Text is_empty;
        Fixed_Text none_selected;
    };

    Names_Table(QTableView& table, const Row_Table_Model::Column& column, const Words& words);

    QTableView& Table() const { return m_table; }
    const QStringList& Names() const { return m_names; }
    /// The names as they are now, for whoever copies some.
    Row_Source Source() const;
    /// What the table says while it has no names; for the page to give words to.
    Empty_List_Hint& Hint() const { return *m_hint; }
    /// The name in a row, when that is there and the identifier is the column's; otherwise empty.
    QString Value(const QString& identifier, int row) const
    {
        return identifier == m_identifier ? m_names.value(row) : QString();
    }

    /// Shows other names, with none of them selected.
    void Take(const QStringList& names);
    void Append(const QStringList& names);
    /// Adds a name, trimmed, unless nothing is left of it.
    void Append_Trimmed(const QString& name);
    /// Takes rows out, in ascending order, and selects row 0.
    void Remove(const std::vector<int>& rows);

    /// Tells so when there are no names, and answers whether that is so.
    bool Tells_It_Is_Empty() const;
    /// The selected rows; none, after telling why, when there is nothing with a name to act on.
    std::vector<int> Rows_To_Act_On() const;
    /// The only selected name; nothing, after telling why, when there is none such.
    std::optional<QString> Name_To_Edit() const;
    /// Tells a text and takes the focus.
    void Tell(const QString& text) const { Tell_And_Focus(text, m_table); }

private:
    QTableView& m_table;
    const QString m_identifier;
    const Words m_words;
    QStringList m_names;
    Row_Table_Model m_rows;
    Empty_List_Hint* m_hint = nullptr; // the table's own
};
