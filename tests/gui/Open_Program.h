#pragma once

#include "device/Chosen_Device.h"
#include "device/Stop_Flag.h"
#include "engine/Job_State.h"
#include "platform/Pace.h"
#include "records/Data_Paths.h"
#include "support/Files.h"
#include "support/In_Windows.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "windows/main/CorvaneAppDelegate.h"

// The main window as it stands after the program's start, for one test: real widgets, found by their names.
class Open_Program : public testing::Test
{
protected:
    /// The desktop's font, and the screen that the window opens on.
    explicit Open_Program(const QFont& font = QApplication::font(), QScreen* screen = QApplication::primaryScreen())
    {
        QApplication::setFont(font);
        Set_Pace(100);
        Apply_Application_Look(*qApp);
        m_delegate = std::make_unique<CorvaneAppDelegate>();
        EXPECT_TRUE(m_delegate->awakeFromNib());
        m_delegate->move(screen->availableGeometry().topLeft());
        m_delegate->applicationDidFinishLaunching();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_delegate.get()));
    }

    ~Open_Program() override
    {
        Stop_SMS_Sending_Now = 1;
        Finish_Workers();
        End_Shared_Instances();
        m_delegate.reset();
        QApplication::setFont(m_font_before);
    }

    template <typename Widget>
    Widget& The(const char* name)
    {
        return In<Widget>(*m_delegate, name);
    }
    void Click(const char* name) { QTest::mouseClick(&The<QPushButton>(name), Qt::LeftButton); }
    void Tick(const char* name) { The<QCheckBox>(name).setChecked(true); }
    void Type_Number(const QString& number)
    {
        The<QLineEdit>("_numberEdit").clear();
        QTest::keyClicks(&The<QLineEdit>("_numberEdit"), number);
    }
    void Add(const QString& number)
    {
        Type_Number(number);
        Click("Add_Number");
    }
    QString Shown(int row, int column) const
    {
        return In<QTableView>(*m_delegate, "idTableView").model()->index(row, column).data().toString();
    }
    QString Count_Label() { return The<QLabel>("_gsm_list_count").text(); }
    QStringList Numbers() const
    {
        QStringList numbers;
        for (int row = 0; row < m_delegate->Recipients().Count(); ++row)
            numbers.append(m_delegate->Recipients().At(row).Number);
        return numbers;
    }
    /// Whether keys go to the control once the window is in front, which only a desktop sees to.
    bool Has_Focus(const char* name) { return m_delegate->focusWidget() == &The<QWidget>(name); }
    void Select_Rows(const std::vector<int>& rows) { Select_Rows_In(The<QTableView>("idTableView"), rows); }

    const QFont m_font_before = QApplication::font();
    User user;
    std::unique_ptr<CorvaneAppDelegate> m_delegate;
};
