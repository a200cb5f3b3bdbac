#pragma once

#include "records/Sent_Item_List.h"
#include "records/Sent_Item_Store.h"
#include "windows/stores/Store_Window.h"

class Row_Finder;

namespace Ui {
class Sent_Items;
}

// The window of the sent items: shows the file as a table and the selected record in full, deletes records and exports
// them. The shared instance belongs to Shared_Instance, or to the main window once it has been put over it; interface
// thread.
class Sent_Items : public Store_Window<Sent_Item_List, Sent_Item_Store>
{
    Q_OBJECT

Q_SIGNALS:
    /// Somebody wants sent messages to be kept from now on.
    void Saving_Wanted();

public:
    explicit Sent_Items(QWidget* parent = nullptr);
    ~Sent_Items() override;

    static Sent_Items* defaultInstance();

    /// Loads the file and runs the window until it is closed.
    void Open_Sent_Item_Wnd();

    /// Appends a record to the list, its number trimmed; nothing if the number is blank.
    void Create_Sent_Item_List(const QString& number, const QString& Message_str, const QString& Date_str,
                               const QString& Status_str);
    void Update_Send_List_Count();
    void tableViewSelectionDidChange();

    /// The value of a record for a column's identifier. Throws Invalid_Parameter for a row outside the list.
    QString tableView(const QTableView* table, const QString& objectValueForTableColumn, int pRowIndex) const;

protected:
    void List_Became_Empty() override;
    void List_Will_Load() override;
    Export_Content Content_To_Export(int mode) const override;

private:
    void Set_Up_Table();
    void Make_Finder();
    void Say_What_Is_Kept();

    const std::unique_ptr<Ui::Sent_Items> m_ui;
    Sent_Item_List nsSendListData;
    std::unique_ptr<Row_Finder> m_finder;
};
