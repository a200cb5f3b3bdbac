#pragma once

#include <QObject>
#include <QStringList>
#include <memory>

class Contacts_Wnd;
class Empty_List_Hint;
class Fields_Strip;
class Import_Strip;
class Main_Window;
class Plan_Pace;
class QMenu;
class QPushButton;
class QTableView;
class Window_Work;

// What the main window does with contacts, whose rows have fields: their import, the look at what would be sent, fields
// in the message, and the list in a file with them. Owned by the main window, which outlives its workers; interface
// thread.
class Contact_Desk : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        QPushButton& insert_field; ///< gets a menu
        QTableView& table;
        Fields_Strip& fields;
        Import_Strip& strip; ///< says what became of rows
    };

    /// All outlive it.
    Contact_Desk(Main_Window& window, Window_Work& work, const Plan_Pace& pace, const Controls& controls);

    /// Asks for a file and shows what is in it.
    void Import_Contacts();
    void Import_File(const QString& path);
    /// The same for a file whose name or content says that it holds a table or contacts, or no list at all, which the
    /// sheet then says; answers no for another, which may hold numbers alone.
    bool Import_Dropped(const QString& path);
    /// Shows the cells that were copied from a spreadsheet. Answers no when the clipboard holds none.
    bool Import_Clipboard_Table();
    /// Shows what would be sent to the list as it is, or who would get nothing.
    void Check_List(bool left_out_alone);
    /// Asks where to, and writes the list with its fields.
    void Save_With_Fields();

    /// The list is another.
    void List_Changed();
    /// A job is over: says how many rows were not sent because of their fields.
    void Job_Ended();

private:
    Contacts_Wnd& Window();
    void Offer_Fields();
    void Say_What_Was_Added(int rows, int not_used);

    Main_Window& m_window;
    Window_Work& m_work;
    const Plan_Pace& m_pace;
    Controls m_controls;
    Empty_List_Hint* m_hint;
    QMenu* m_fields;
    QStringList m_names;                // of the list's fields
    Contacts_Wnd* m_contacts = nullptr; // the main window's child
};
