#include "gui/Open_Program.h"
#include "records/Contact_Export.h"
#include "support/Opened_Files.h"

const QByteArray Banner =
    QByteArray(76, '=') + "\n\n\t\t\t[ Corvane - Contact List ]\t\t\t\n\n" + QByteArray(76, '=') + "\n";

class Contact_List_Export : public Open_Program
{
protected:
    Contact_List_Export()
    {
        m_delegate->Set_Composer_Text("a message\nof two lines");
        Add("111");
        Add("222");
    }

    /// With the button of the offer to open the file that is pressed afterwards.
    void Export_As(const QString& path, const char* button)
    {
        Will_Enter_Path(user, path);
        Will_Click_In(user, "Open_Export_Log", button);
        Click("Export_Btn");
    }

    QString In_Folder(const char* name) const { return m_folder.filePath(name); }

    Opened_Files m_opener;
    QTemporaryDir m_folder;
};

TEST_F(Contact_List_Export, Two_Numbers_Are_The_Banner_And_Two_Lines_And_Opened_When_That_Is_Wanted)
{
    Export_As(In_Folder("list.TXT"), "CancelPressed"); // a name without the extension gets it, see below
    EXPECT_EQ(Bytes_Of(In_Folder("list.TXT")), Banner + "111\n222\n");
    EXPECT_EQ(m_opener.m_urls, QList<QUrl>());
    Export_As(In_Folder("other.txt"), "OKPressed");
    EXPECT_EQ(m_opener.m_urls, QList<QUrl>{QUrl::fromLocalFile(In_Folder("other.txt"))});
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(Contact_List_Export, An_Empty_List_Is_Refused)
{
    Click("Reset_Btn");
    The<QPushButton>("Export_Btn").setFocus();
    user.Will_Press("OK");
    Click("Export_Btn");
    EXPECT_EQ(user.Was_Shown(), QStringList{"\nPhone numbers-Messages list is empty."});
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Contact_List_Export, An_Existing_File_Is_Replaced_Once_The_Panel_Has_Asked)
{
    Write_Bytes(In_Folder("list.txt"), QByteArray(100'000, 'x'));
    user.Will_Handle([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("list.txt")) << box.text().toStdString();
        box.button(QMessageBox::Yes)->click();
    });
    Export_As(In_Folder("list"), "CancelPressed"); // the panel asks about the name with its extension
    EXPECT_EQ(Bytes_Of(In_Folder("list.txt")), Banner + "111\n222\n");
}

TEST_F(Contact_List_Export, A_Place_That_Can_Not_Be_Written_To_Is_Told)
{
    Write_Bytes(In_Folder("file"), {});
    EXPECT_FALSE(Write_Contact_List(In_Folder("file/list.txt"), m_delegate->Recipients()));
    EXPECT_FALSE(Write_Contact_List("/dev/full", m_delegate->Recipients()));
    // The panel itself turns away what it can see to be no place; a folder that goes meanwhile is what it can not see.
    const QString gone = In_Folder("gone");
    ASSERT_TRUE(QDir().mkpath(gone));
    user.Will_Do([&](QDialog* panel) {
        EXPECT_EQ(qobject_cast<QFileDialog*>(panel)->acceptMode(), QFileDialog::AcceptSave);
        QObject::connect(panel, &QDialog::finished, panel, [&] { QDir(gone).removeRecursively(); });
        Enter_Path(*panel, gone + "/list.txt");
    });
    user.Will_Press("OK");
    Click("Export_Btn");
    EXPECT_EQ(user.Was_Shown(), QStringList{"\nError in file accessing."});
}

TEST_F(Contact_List_Export, A_Hundred_Thousand_Numbers_Are_All_There)
{
    Recipient_List list;
    QByteArray numbers;
    for (int number = 0; number < 100'000; ++number) {
        list.Append(QString::number(number), QString());
        numbers += QByteArray::number(number) + '\n';
    }
    ASSERT_TRUE(Write_Contact_List(In_Folder("many.txt"), list));
    EXPECT_EQ(Bytes_Of(In_Folder("many.txt")), Banner + numbers);
}
