#include "gui/Open_Program.h"
#include "records/Contact_Export.h"
#include "support/Opened_Files.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QUrl>

namespace {

const QByteArray Banner =
    QByteArray(76, '=') + "\n\n\t\t\t[ Corvane - Contact List ]\t\t\t\n\n" + QByteArray(76, '=') + "\n";

class Contact_List_Export : public Open_Program
{
protected:
    Contact_List_Export()
    {
        QDesktopServices::setUrlHandler("file", &m_opener, "Open");
        m_delegate->Set_Composer_Text("a message\nof two lines");
        Add("111");
        Add("222");
    }
    ~Contact_List_Export() override { QDesktopServices::unsetUrlHandler("file"); }

    void Will_Save_As(const QString& path)
    {
        user.Will_Do([path](QDialog* dialog) {
            auto* panel = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(panel, nullptr);
            EXPECT_EQ(panel->acceptMode(), QFileDialog::AcceptSave);
            auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(name, nullptr);
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
    }

    void Will_Answer_To_Opening(const char* button)
    {
        user.When_Opens("Open_Export_Log", [button](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    }

    QByteArray Content(const QString& name)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    Opened_Files m_opener;
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Contact_List_Export, Two_Numbers_Are_The_Banner_And_Two_Lines)
{
    Will_Save_As(m_folder.filePath("list.txt"));
    Will_Answer_To_Opening("CancelPressed");
    Click("Export_Btn");
    EXPECT_EQ(Content("list.txt"), Banner + "111\n222\n");
    EXPECT_EQ(m_opener.m_urls, QList<QUrl>());
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(Contact_List_Export, The_File_Is_Opened_When_That_Is_Wanted)
{
    Will_Save_As(m_folder.filePath("list.txt"));
    Will_Answer_To_Opening("OKPressed");
    Click("Export_Btn");
    EXPECT_EQ(m_opener.m_urls, QList<QUrl>{QUrl::fromLocalFile(m_folder.filePath("list.txt"))});
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

TEST_F(Contact_List_Export, Cancelling_The_Panel_Writes_Nothing)
{
    user.Will_Do([](QDialog* dialog) { dialog->reject(); });
    Click("Export_Btn");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList());
}

TEST_F(Contact_List_Export, A_Name_Gets_The_Extension_Unless_It_Has_It)
{
    const std::vector<std::pair<QString, QString>> names = {
        {"list", "list.txt"}, {"list.TXT", "list.TXT"}, {"list.Txt", "list.Txt"}, {"list.csv", "list.csv.txt"}};
    for (const auto& [typed, written] : names) {
        const QTemporaryDir folder;
        Will_Save_As(folder.filePath(typed));
        Will_Answer_To_Opening("CancelPressed");
        Click("Export_Btn");
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{written}) << typed.toStdString();
    }
}

TEST_F(Contact_List_Export, An_Existing_File_Is_Replaced_Once_The_Panel_Has_Asked)
{
    QFile file(m_folder.filePath("list.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(100'000, 'x'));
    file.close();
    Will_Save_As(m_folder.filePath("list")); // the panel asks about the name with its extension
    user.Will_Handle([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("list.txt")) << box.text().toStdString();
        box.button(QMessageBox::Yes)->click();
    });
    Will_Answer_To_Opening("CancelPressed");
    Click("Export_Btn");
    EXPECT_EQ(Content("list.txt"), Banner + "111\n222\n");
}

TEST_F(Contact_List_Export, A_Place_That_Can_Not_Be_Written_To_Is_Told)
{
    QFile file(m_folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(Write_Contact_List(m_folder.filePath("file/list.txt"), m_delegate->Recipients()));
    EXPECT_FALSE(Write_Contact_List("/dev/full", m_delegate->Recipients()));
    // The panel itself turns away what it can see to be no place; a folder that goes meanwhile is what it can not see.
    const QString gone = m_folder.filePath("gone");
    ASSERT_TRUE(QDir().mkpath(gone));
    user.Will_Do([&](QDialog* dialog) {
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(gone + "/list.txt");
        QObject::connect(dialog, &QDialog::finished, dialog, [&] { QDir(gone).removeRecursively(); });
        QTest::keyClick(name, Qt::Key_Return);
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
    ASSERT_TRUE(Write_Contact_List(m_folder.filePath("many.txt"), list));
    EXPECT_EQ(Content("many.txt"), Banner + numbers);
}
