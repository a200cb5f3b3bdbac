#include "windows/phone/Wizard_Test.h"

#include "toolkit/Shared_Instance.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>

namespace {

const char* const Read_Only_Fields[] = {"_comport_edit",  "_port_det_edit", "_manfacturer_edit", "_model_edit",
                                        "_imei_edit",     "_imsi_edit",     "_battery_edit",     "_signal_edit",
                                        "_operator_edit", "_revision_edit", "_def_smsc_edit"};

TEST_F(Wizard_Test, Every_Control_Goes_By_The_Name_Of_Its_Field_On_The_Programs_Opaque_Background)
{
    EXPECT_EQ(m_window->objectName(), "Phone_List_Wnd");
    for (const char* name : {"idPortList", "_cus_smsc_edit", "_cus_smsc_chk", "_Search_Btn", "_Select_Btn",
                             "_Cancel_Btn", "idPortListsclview"})
        EXPECT_TRUE(m_window->findChild<QWidget*>(name)) << name;
    for (const char* name : Read_Only_Fields)
        EXPECT_TRUE(Control<QLineEdit>(name).isReadOnly()) << name;
    EXPECT_FALSE(Control<QLineEdit>("_cus_smsc_edit").isReadOnly());
    EXPECT_EQ(Table().verticalScrollBar(), &Control("idPortListsclview"));
    EXPECT_EQ(m_window->palette().color(QPalette::Window), QColor(241, 244, 250));
    EXPECT_TRUE(m_window->autoFillBackground());
}

TEST_F(Wizard_Test, Every_Control_Can_Be_Named_Aloud_And_Is_Reached_By_Its_Own_Key)
{
    QStringList named;
    const auto buttons = m_window->findChildren<QAbstractButton*>(QRegularExpression("^_"));
    EXPECT_EQ(buttons.size(), 4);
    for (const auto* button : buttons)
        named.append(button->text());
    const auto labels = m_window->findChildren<QLabel*>(QRegularExpression("_caption$"));
    EXPECT_EQ(labels.size(), 11);
    for (const auto* label : labels) {
        EXPECT_TRUE(label->buddy()) << label->text().toStdString();
        named.append(label->text());
    }
    QSet<QChar> keys;
    for (const auto& text : named) {
        ASSERT_TRUE(text.contains(u'&')) << text.toStdString();
        keys.insert(text.at(text.indexOf(u'&') + 1).toUpper());
    }
    EXPECT_EQ(keys.size(), named.size()) << named.join(" ").toStdString();
    for (const auto* field : m_window->findChildren<QLineEdit*>())
        EXPECT_FALSE(field->accessibleName().isEmpty()) << field->objectName().toStdString();
    for (const auto* button : m_window->findChildren<QPushButton*>())
        EXPECT_FALSE(button->autoDefault() || button->isDefault()) << button->objectName().toStdString();
}

TEST_F(Wizard_Test, The_Tab_Key_Goes_From_The_Table_Through_The_Fields_To_The_Buttons)
{
    QStringList expected(std::begin(Read_Only_Fields), std::end(Read_Only_Fields));
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

} // namespace
