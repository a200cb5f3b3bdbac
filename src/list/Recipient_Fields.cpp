#include "list/Recipient_Fields.h"

#include "list/Indexed_Numbers.h"
#include "platform/Large_Pages.h"

#include <QHash>
#include <algorithm>

Recipient_Fields::Place Recipient_Fields::At(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= m_entries.size())
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(index)];
    if (entry.source < 0)
        return {};
    return {m_sources[static_cast<std::size_t>(entry.source)].table.get(), entry.row};
}

std::shared_ptr<const Contact_Table> Recipient_Fields::Table_At(int index) const
{
    return At(index).table
               ? m_sources[static_cast<std::size_t>(m_entries[static_cast<std::size_t>(index)].source)].table
               : nullptr;
}

void Recipient_Fields::Expect(std::size_t count)
{
    Make_Room_In(m_entries, count);
}

void Recipient_Fields::Set(int index, const std::shared_ptr<const Contact_Table>& table, std::span<const int> rows)
{
    const int source = Source_Of(table);
    const auto place = static_cast<std::size_t>(index);
    const std::size_t end = std::max(m_entries.size(), place + rows.size());
    Make_Room_In(m_entries, end - m_entries.size());
    m_entries.resize(end);
    std::transform(rows.begin(), rows.end(), m_entries.begin() + index, [&](int row) { return Entry{source, row}; });
}

void Recipient_Fields::Forget_From(int index)
{
    if (static_cast<std::size_t>(index) < m_entries.size())
        m_entries.resize(static_cast<std::size_t>(index));
}

bool Recipient_Fields::Remove_Rows(const std::vector<int>& rows)
{
    Remove_Rows_From(m_entries, rows);
    std::vector<bool> has_rows(m_sources.size());
    for (const Entry& entry : m_entries)
        if (entry.source >= 0)
            has_rows[static_cast<std::size_t>(entry.source)] = true;
    bool has_lost_any = false;
    for (std::size_t source = 0; source < m_sources.size(); ++source) {
        if (has_rows[source] || !m_sources[source].table)
            continue;
        m_sources[source] = {};
        has_lost_any = true;
    }
    if (has_lost_any)
        Name_Anew();
    return std::find(has_rows.begin(), has_rows.end(), true) != has_rows.end();
}

QString Recipient_Fields::Field_At(int index, int name) const
{
    const Place place = At(index);
    if (!place.table || name < 0)
        return {};
    const Entry& entry = m_entries[static_cast<std::size_t>(index)];
    const std::vector<int>& columns = m_sources[static_cast<std::size_t>(entry.source)].columns;
    const int column = static_cast<std::size_t>(name) < columns.size() ? columns[static_cast<std::size_t>(name)] : -1;
    return place.table->Field(place.row, column);
}

// Mostly the last one that was added.
int Recipient_Fields::Source_Of(const std::shared_ptr<const Contact_Table>& table)
{
    for (std::size_t source = m_sources.size(); source > 0; --source)
        if (m_sources[source - 1].table == table)
            return static_cast<int>(source - 1);
    m_sources.push_back(Named(table));
    return static_cast<int>(m_sources.size() - 1);
}

Recipient_Fields::Source Recipient_Fields::Named(const std::shared_ptr<const Contact_Table>& table)
{
    QHash<QString, int> places;
    for (std::size_t name = 0; name < m_keys.size(); ++name)
        places.insert(m_keys[name], static_cast<int>(name));
    QHash<QString, int> seen; // of names in this table
    Source source{table, std::vector<int>(m_keys.size(), -1)};
    for (int column = 0; column < table->Column_Count(); ++column) {
        const QString compared = Compared_Column_Name(table->Columns()[column]);
        const QString key = compared + QLatin1Char(' ') + QString::number(seen[compared]++);
        auto place = places.constFind(key);
        if (place == places.cend()) {
            place = places.insert(key, static_cast<int>(m_keys.size()));
            m_keys.push_back(key);
            m_names.append(table->Columns()[column]);
            source.columns.push_back(-1);
        }
        source.columns[static_cast<std::size_t>(*place)] = column;
    }
    return source;
}

void Recipient_Fields::Name_Anew()
{
    m_names.clear();
    m_keys.clear();
    for (Source& source : m_sources)
        if (source.table)
            source = Named(source.table);
}
