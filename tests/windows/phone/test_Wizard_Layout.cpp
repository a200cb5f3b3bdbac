#include "windows/phone/Wizard_Test.h"

#include "toolkit/Shared_Instance.h"

TEST_F(Wizard_Test, Every_Control_Goes_By_The_Name_Of_Its_Field_On_The_Programs_Opaque_Background)
{
    EXPECT_EQ(m_window->objectName(), "Phone_List_Wnd");
    for (const char* name : {"idPortList", "_cus_smsc_edit", "_cus_smsc_chk", "_Search_Btn", "_Select_Btn",
                             "_Cancel_Btn", "idPortListsclview"})
        EXPECT_TRUE(m_window->findChild<QWidget*>(name)) << name;
    for (const char* name : Wizard_Fields)
        EXPECT_EQ(Control<QLineEdit>(name).isReadOnly(), name != std::string("_cus_smsc_edit")) << name;
    EXPECT_EQ(Table().verticalScrollBar(), &Control("idPortListsclview"));
    EXPECT_TRUE(m_window->autoFillBackground());
}

TEST_F(Wizard_Test, Every_Caption_Leads_To_Its_Field_And_No_Button_Is_Pressed_By_Return)
{
    const auto labels = m_window->findChildren<QLabel*>(QRegularExpression("_caption$"));
    EXPECT_EQ(labels.size(), 11);
    for (const auto* label : labels)
        EXPECT_TRUE(label->buddy()) << label->text().toStdString();
    for (const auto* button : m_window->findChildren<QPushButton*>())
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
}

TEST_F(Wizard_Test, The_Tab_Key_Goes_From_The_Table_Through_The_Fields_To_The_Buttons)
{
    QStringList expected(std::begin(Wizard_Fields), std::end(Wizard_Fields) - 1);
    expected.prepend("idPortList");
    expected.append({"_cus_smsc_chk", "_cus_smsc_edit", "_Search_Btn", "_Cancel_Btn", "_Select_Btn"});
    QStringList chain;
    const QWidget* const first = &Table();
    const QWidget* control = first;
    do {
        if (control->focusPolicy() & Qt::TabFocus && expected.contains(control->objectName()))
            chain.append(control->objectName());
        control = control->nextInFocusChain();
    } while (control != first);
    EXPECT_EQ(chain, expected);
}

TEST_F(Wizard_Test, A_Heading_That_Long_Names_Leave_No_Room_For_Is_Marked_And_Told_Whole)
{
    Run([&] {
        QHeaderView& headings = *Table().horizontalHeader();
        constexpr int path = 1;
        EXPECT_EQ(headings.textElideMode(), Qt::ElideRight);
        const auto tool_tip = [&] {
            QToolTip::hideText();
            const QPoint place(headings.sectionViewportPosition(path) + 5, headings.height() / 2);
            QHelpEvent event(QEvent::ToolTip, place, headings.viewport()->mapToGlobal(place));
            QApplication::sendEvent(headings.viewport(), &event);
            return QToolTip::text();
        };
        ASSERT_GE(headings.sectionSize(path), headings.sectionSizeHint(path));
        EXPECT_EQ(tool_tip(), QString());
        QFont large = headings.font();
        large.setPointSize(4 *
                           large.pointSize()); // so that the others, which are as wide as what is in them, leave less
        headings.setFont(large);
        QCoreApplication::processEvents();
        ASSERT_LT(headings.sectionSize(path), headings.sectionSizeHint(path));
        EXPECT_EQ(tool_tip(), "Device path");
        QToolTip::hideText();
    });
}

TEST(Phone_List_Wnd, The_Shared_Instance_Is_One_Until_It_Is_Ended)
{
    const auto* first = Phone_List_Wnd::defaultInstance();
    EXPECT_EQ(Phone_List_Wnd::defaultInstance(), first);
    QPointer<const QObject> watched(first);
    End_Shared_Instances();
    EXPECT_TRUE(watched.isNull());
    EXPECT_TRUE(Phone_List_Wnd::defaultInstance());
    End_Shared_Instances();
}
