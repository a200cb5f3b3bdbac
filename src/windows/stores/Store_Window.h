#pragma once

#include "platform/Interface_Thread.h"
#include "records/Shared_Rows.h"
#include "toolkit/List_Tables.h"
#include "windows/stores/List_Window.h"

#include <QTableView>
#include <optional>
#include <type_traits>
#include <utility>

// A list window whose rows come from one store: what the sent items window and the templates window do alike with their
// lists. Each holds its list in a field of its own: a QList of rows, or a type that can be used like one. Owned as they
// are; interface thread.
template <typename List, typename Store>
class Store_Window : public List_Window
{
protected:
    using Row = std::decay_t<decltype(std::declval<const List&>().at(0))>;

    Store_Window(QWidget* parent, const Words& words, List& list) : List_Window(parent, words), m_list(list) {}

    /// Appends a row to the list, if there is one.
    void Add(std::optional<Row> row)
    {
        if (!row)
            return;
        m_list.append(std::move(*row));
        Update_Count();
    }

    /// The value of a row for a column's identifier; empty for any other table. Throws Invalid_Parameter, with the
    /// condition, for a row outside the list.
    QString Value_In(const QTableView* table, const QString& identifier, int row, const char* condition) const
    {
        if (row < 0 || row >= Count())
            throw Invalid_Parameter(condition);
        return table == &Table() ? m_list.at(row).Value(identifier) : QString();
    }

    /// The whole list as an export: a header, and the result of piece for each row.
    Export_Content Content(int mode, QByteArray header, QByteArray (*piece)(int mode, const Row& row)) const
    {
        return {std::move(header), m_list.size(),
                [mode, piece, list = m_list](qsizetype index) { return piece(mode, list.at(index)); }};
    }

    int Count() const override { return static_cast<int>(m_list.size()); }

    void LoadItems() override
    {
        Run_On_Interface_Thread([this] { Begin_Anew(); });
        // A long load shows its first rows early.
        List loaded = m_store.Load_List(
            Early_Reload_Count, [this](const List& first) { Run_On_Interface_Thread([&] { Publish(first); }); });
        Run_On_Interface_Thread([&] {
            Publish(std::move(loaded));
            Table().scrollToTop();
        });
    }

    void Remove_Rows(const std::vector<int>& rows) override
    {
        List left;
        Run_On_Worker([&, all = m_list] { left = Rows_Without(all, rows); }, User_Input::Served);
        Put_In_Place(m_list, std::move(left));
    }

    void Remove_All_Rows() override { Put_In_Place(m_list, {}); }

    std::function<bool()> Rewriting() override
    {
        return [this, list = m_list] { return m_store.Rewrite(list); };
    }
    void Clear_File() override { m_store.Clear(); }
    void Forget_File() override { m_store.Forget(); }

    const Store& The_Store() const { return m_store; }

private:
    void Publish(List loaded)
    {
        Put_In_Place(m_list, std::move(loaded));
        Update_Count();
    }

    List& m_list;
    Store m_store;
};
