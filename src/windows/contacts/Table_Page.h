#pragma once

#include "list/Table_File.h"
#include "windows/contacts/Contact_Reading.h"

#include <QWidget>
#include <memory>

class QComboBox;
class Sample_Rows;
struct Country;

namespace Ui {
class Table_Page;
}

// The first page of an import of contacts: the first rows as they were read, how they were read, which column holds the
// numbers, and the country of those that name none. What was guessed is chosen, and can be chosen otherwise. Part of
// its window, which does the reading; interface thread.
class Table_Page : public QWidget
{
    Q_OBJECT

public:
    explicit Table_Page(QWidget* parent = nullptr);
    ~Table_Page() override;

    /// Something is being read, and there is nothing to show yet: something new, or the same in another way.
    void Show_Reading(const QString& name, bool is_new);
    void Show_Contacts(const QString& name, const Contact_Reading& reading);

    /// Whether there are rows, and a column of numbers is chosen.
    bool Is_Ready() const;
    std::shared_ptr<const Contact_Table> Table() const { return m_table; }
    int Number_Column() const;
    /// Whether each of a person's numbers is wanted, and not only the one for messages.
    bool Wants_Each_Number() const;
    /// Null for numbers that stay as they are written.
    const Country* Chosen_Country() const;

Q_SIGNALS:
    /// The same is to be read in another way.
    void Read_Otherwise(const Table_Choices& choices);
    /// Is_Ready may answer otherwise.
    void Choice_Changed();

private:
    void Offer_Ways_Of_Reading();
    void Offer_Countries();
    void Connect_Controls();
    void Ask_To_Read();
    void Show_Way_Of_Reading(const Contact_Reading& reading);
    void Show_Choices(bool encoding, bool delimiter, bool sheet);
    void Show_Columns(const Contact_Reading& reading);
    void Choose_Number_Column();
    void Say(const QString& words, const QString& trouble);

    const std::unique_ptr<Ui::Table_Page> m_ui;
    std::shared_ptr<const Contact_Table> m_table;
    Sample_Rows* m_sample;
    int m_choices_before_columns = 0; // among those of the numbers: for contacts there are two
    int m_likeliest_column = -1;
};
