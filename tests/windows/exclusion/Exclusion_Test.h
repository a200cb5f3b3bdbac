#pragma once

#include "support/Data_Folder.h"
#include "support/Heartbeat.h"
#include "support/Serve_Until.h"
#include "support/User.h"
#include "support/Window_For_Tests.h"
#include "windows/exclusion/Exclusion_Wizard.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <gmock/gmock.h>

/// As the box shows it.
QString Boxed(const char* text);

// The exclusion wizard on the offscreen screen, over a main window without controls, and a person who clicks in it.
class Exclusion_Test : public testing::Test
{
protected:
    Exclusion_Test();
    ~Exclusion_Test() override;

    /// Opens the wizard, does the steps once its lists are in, and closes it when it is still open then.
    void Run(const std::function<void()>& steps);

    template <typename Type = QWidget>
    Type& Control(const char* name) const
    {
        auto* control = m_window->findChild<Type*>(name);
        if (!control)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }
    QString Text(const char* name) const { return Control<QLineEdit>(name).text(); }
    QString Label(const char* name) const { return Control<QLabel>(name).text(); }
    void Type(const char* name, const QString& text) const { Control<QLineEdit>(name).setText(text); }

    QTableView& Available() const { return Control<QTableView>("m_exclusion_list"); }
    QTableView& Applied() const { return Control<QTableView>("m_applied_axclusion_list"); }
    QTableView& Numbers() const { return Control<QTableView>("m_ex_num_list"); }
    static QStringList Rows_Of(const QTableView& table);
    static std::vector<int> Selected_In(const QTableView& table);
    static void Select(QTableView& table, const std::vector<int>& rows);

    // What the person does, as events of the window system, which modal windows hold back.
    void Click(const char* name, Qt::KeyboardModifiers keys = {}) const;
    void Click_Row(const QTableView& table, int row, Qt::KeyboardModifiers keys = {}) const;
    void Double_Click_Row(const QTableView& table, int row, Qt::KeyboardModifiers keys = {}) const;

    /// Does the step, which must show exactly this box, and expects the focus on a control afterwards.
    void Expect_Told(const std::function<void()>& step, const char* text, const char* focused);
    void Expect_Told_By(const char* button, const char* text, const char* focused);
    /// Does the step, which must ask exactly this, and answers it.
    void Expect_Asked(const std::function<void()>& step, const char* text, const char* answer);

    bool Is_On_First_Screen() const { return m_window->isVisible() && Available().isVisible(); }
    bool Is_On_Name_Screen() const { return Control("m_ex_list_name_edit").isVisible(); }
    bool Is_On_Numbers_Screen() const { return Numbers().isVisible(); }

    /// From the first screen to the numbers of a new list.
    void Begin_New_List(const QString& name) const;
    void Add_Number(const QString& number) const;
    /// From the first screen to the numbers of the list in a row.
    void Edit_List(int row) const;
    /// Presses Finish and says Yes.
    void Finish();

    Data_Folder m_data;
    Window_For_Tests m_main_window;
    User m_user;
    std::unique_ptr<Exclusion_Wizard> m_window;
};
