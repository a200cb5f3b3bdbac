#include "gui/Sending_Program.h"

// The whole way of a person with a list of people: from a file through the sheet into the list, and by a job to the
// handset of a virtual phone.

namespace {

const QByteArray People = "Name,Phone,City\nAnn,07700 900100,Bath\nBob,,Stoke\n,07700 900102,Ely\n"
                          "Zo\xC3\xAB,07700 900103,York\n";

class Contacts : public Sending_Program
{
protected:
    Contacts() { Select_The_Phone(); }

    QString File(const QString& name, const QByteArray& bytes) const
    {
        Write_Bytes(m_folder.filePath(name), bytes);
        return m_folder.filePath(name);
    }
    static void Await()
    {
        for (int turn = 0; turn < 3; ++turn) { // one step may begin another
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            QCoreApplication::processEvents();
        }
    }
    QWidget& Sheet() { return The<QWidget>("Contacts_Wnd"); }
    void Press_In_Sheet(const char* button)
    {
        Click_In(Sheet(), button);
        Await();
    }
    void Choose_Country(const QString& name)
    {
        auto& box = In<QComboBox>(Sheet(), "_Country");
        box.setCurrentIndex(std::max(0, box.findText(name, Qt::MatchStartsWith)));
    }
    void Write_Message(const QString& text) { The<QPlainTextEdit>("_messageEdit").setPlainText(text); }

    /// Imports all that can be used of a file, by clicks.
    void Import(const QString& path, const QString& country = QStringLiteral("United Kingdom ("))
    {
        Will_Enter_Path(user, path);
        Click("Import_Contacts");
        Await();
        Choose_Country(country);
        Press_In_Sheet("Continue_Btn");
        Press_In_Sheet("Add_To_List");
    }
    void Import_People(const QByteArray& people = People) { Import(File(QStringLiteral("people.csv"), people)); }

    QString Strip()
    {
        return The<QLabel>("_Import_Words").isVisible() ? The<QLabel>("_Import_Words").text() : QString();
    }
    QStringList Texts_Of_The_Handset() const
    {
        QStringList texts;
        for (const auto& message : phone->Inbox())
            texts.append(QString::fromStdString(message.m_number + ": " + message.m_text));
        return texts;
    }

    QTemporaryDir m_folder;
};

struct Golden_File
{
    const char* name;
    const char* message;
    QStringList texts; ///< on the handset, in either manner
};

void PrintTo(const Golden_File& file, std::ostream* out)
{
    *out << file.name;
}

class Golden_Contacts : public Contacts, public testing::WithParamInterface<std::tuple<Golden_File, bool>>
{
};

} // namespace

TEST_P(Golden_Contacts, Get_Their_Own_Names_On_The_Handset)
{
    const auto& [file, confirms] = GetParam();
    Tick(confirms ? "_Confirm_Chk" : "_Unicode_SMS_Chk"); // not every letter gets through otherwise
    Write_Message(file.message);
    Import(QStringLiteral(CORVANE_TEST_DATA "/tables/") + file.name);
    EXPECT_EQ(m_delegate->Recipients().Count(), file.texts.size());
    EXPECT_EQ(Send(), Box::Completed);
    QStringList numbers_as_dialled = Texts_Of_The_Handset();
    numbers_as_dialled.replaceInStrings(QRegularExpression(QStringLiteral("^(\\+|00)44")), QStringLiteral("44"));
    EXPECT_EQ(numbers_as_dialled, file.texts);
}

INSTANTIATE_TEST_SUITE_P(
    In_Both_Manners, Golden_Contacts,
    testing::Combine(
        testing::Values(Golden_File{"comma.csv",
                                    "{{Name}} of {{City|-}}",
                                    {"447700900100: Ann of Bath", "447700900101: Bob \"Bo\" Hill of Stoke, north",
                                     "447700900102: J\xC3\xB6rg\nand Eva of -", "447700900104: Dee of Ely"}},
                        Golden_File{"openpyxl.xlsx",
                                    "{{Code|-}} for {{Fee}}",
                                    {"447700900100: 00007 for 12.50", "447700900101: 00042 for 1,234,567.89",
                                     "447700900102: 123456 for 0.30", "447700900104: 00000 for 0.00"}},
                        Golden_File{"libreoffice.ods",
                                    "{{Code|-}} for {{Fee}}",
                                    {"447700900100: 00007 for 12.50", "447700900101: 00042 for 1,234,567.89",
                                     "447700900102: 123456 for 0.30", "447700900104: 00000 for 0.00"}}),
        testing::Bool()));

TEST_F(Contacts, From_A_Card_File_Are_Sent_To_Under_Their_First_Names)
{
    Write_Message("Hi {{First name}}");
    Import(File("two.vcf", "BEGIN:VCARD\nFN:Ann Lee\nN:Lee;Ann\nTEL;TYPE=cell:+44 7700 900100\nEND:VCARD\n"
                           "BEGIN:VCARD\nFN:Bob Day\nN:Day;Bob\nTEL:+44 7700 900101\nEND:VCARD\n"));
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(phone->Inbox(), testing::SizeIs(2));
    EXPECT_EQ(phone->Inbox().front().m_text, "Hi Ann");
    EXPECT_EQ(phone->Inbox().back().m_text, "Hi Bob");
}

TEST_F(Contacts, An_Empty_List_Offers_To_Import_Them_And_A_Filled_One_Does_Not)
{
    auto& hint = The<QPushButton>("Import_Contacts_Here");
    EXPECT_TRUE(hint.isVisible());
    Will_Enter_Path(user, File("people.csv", People));
    Click_Middle_Of(hint);
    Await();
    EXPECT_TRUE(Sheet().isVisible());
    Press_In_Sheet("Close_Btn");
    Add("123");
    EXPECT_FALSE(hint.isVisible());
    user.Will_Press("Yes");
    Click("Clear_All_Btn");
    EXPECT_TRUE(hint.isVisible());
}

TEST_F(Contacts, The_Strip_Tells_What_Was_Added_And_Shows_The_Rest)
{
    Write_Message("Dear {{Name}}");
    Import_People();
    EXPECT_EQ(Strip(), "2 added, 2 rows not used.");
    Click("Show_Unused_Btn");
    Await();
    EXPECT_EQ(Rows_Of(In<QTableView>(Sheet(), "_Rows"), 5),
              (QStringList{"\u2717 no usable number", "\u2717 empty field"}));
    Press_In_Sheet("Close_Btn");
    Click("Dismiss_Import_Btn");
    EXPECT_EQ(Strip(), "");
    EXPECT_EQ(m_delegate->Recipients().Count(), 2);
}

TEST_F(Contacts, Fields_Are_Put_Into_The_Message_By_A_Menu_And_Asked_For_In_The_Sheet_Before_Sending)
{
    EXPECT_FALSE(The<QPushButton>("Insert_Field").isVisible());
    Import_People();
    EXPECT_EQ(m_delegate->Recipients().Count(), 3);
    EXPECT_EQ(The<QLabel>("_List_Fields").text(), "Fields: Name, Phone, City");
    Write_Message("Dear ");
    The<QPlainTextEdit>("_messageEdit").moveCursor(QTextCursor::End);
    auto& button = The<QPushButton>("Insert_Field");
    EXPECT_TRUE(button.isVisible());
    Q_EMIT button.menu()->aboutToShow();
    ASSERT_EQ(button.menu()->actions().size(), 3);
    button.menu()->actions().front()->trigger();
    EXPECT_EQ(The<QPlainTextEdit>("_messageEdit").toPlainText(), "Dear {{Name}}");
    Will_Click_In(user, "Send_Msg_Info", "OKPressed"); // the message is copied to all
    user.Will_Press("OK");
    Click("_sent_btn");
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60));
    Await();
    EXPECT_EQ(Texts_Of_The_Handset().size(), 2);
    EXPECT_EQ(Strip(), "1 row was not sent: {{Name}} is empty.");
    Click("Show_Unused_Btn");
    Await();
    EXPECT_EQ(Sheet().windowTitle(), "Check before sending");
    EXPECT_EQ(Rows_Of(In<QTableView>(Sheet(), "_Rows"), 3), QStringList("Dear {{Name}}"));
    Press_In_Sheet("Close_Btn");
}

TEST_F(Contacts, Check_Shows_The_List_As_It_Will_Be_Sent_And_Sends_Nothing)
{
    Write_Message("Dear {{Name|friend}}");
    Import_People();
    Click("Check_List");
    Await();
    EXPECT_EQ(Rows_Of(In<QTableView>(Sheet(), "_Rows"), 3),
              (QStringList{"Dear Ann", "Dear friend", "Dear Zo\xC3\xAB"}));
    Press_In_Sheet("Close_Btn");
    EXPECT_TRUE(phone->Inbox().empty());
}

TEST_F(Contacts, Cells_Of_A_Spreadsheet_Are_Pasted_Into_The_Sheet_And_Plain_Numbers_Are_Not)
{
    QApplication::clipboard()->setText(QStringLiteral("Name\tPhone\nAnn\t07700900100\n"));
    m_delegate->Paste_Numbers();
    Await();
    EXPECT_TRUE(Sheet().isVisible());
    Press_In_Sheet("Continue_Btn");
    Press_In_Sheet("Add_To_List");
    EXPECT_EQ(m_delegate->Recipients().Field_Names(), (QStringList{"Name", "Phone"}));
    QApplication::clipboard()->setText(QStringLiteral("07700900101\n"));
    m_delegate->Paste_Numbers();
    Await();
    EXPECT_FALSE(Sheet().isVisible());
    EXPECT_EQ(m_delegate->Recipients().Count(), 2);
}

TEST_F(Contacts, A_Table_That_Is_Dropped_Opens_The_Sheet_And_A_Plain_List_Is_Imported)
{
    m_delegate->Dropped_File(File("people.csv", People));
    Await();
    EXPECT_TRUE(Sheet().isVisible());
    Press_In_Sheet("Close_Btn");
    m_delegate->Dropped_File(File("numbers.txt", "111\n222\n"));
    Await();
    EXPECT_FALSE(Sheet().isVisible());
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
}

TEST_F(Contacts, What_Is_Dropped_Is_Taken_For_What_It_Holds_Whatever_It_Is_Called)
{
    const QByteArray sheet = Bytes_Of(QStringLiteral(CORVANE_TEST_DATA "/tables/libreoffice.xlsx"));
    const auto words_for = [this](const QString& name, const QByteArray& bytes) {
        m_delegate->Dropped_File(File(name, bytes));
        Await();
        if (!Sheet().isVisible())
            return QString();
        const QString words = In<QLabel>(Sheet(), "_Words").text();
        Press_In_Sheet("Close_Btn");
        return words;
    };
    EXPECT_EQ(words_for("a.txt", sheet), "a.txt: 5 rows in 7 columns.");
    EXPECT_EQ(words_for("b.rtf", sheet), "b.rtf: 5 rows in 7 columns.");
    EXPECT_EQ(words_for("c.txt", "BEGIN:VCARD\nFN:Ann\nTEL:07700900100\nEND:VCARD\n"), "c.txt: 1 row in 9 columns.");
    EXPECT_EQ(words_for("d.txt", "\x7F"
                                 "ELF 07700900100\n"),
              "d.txt can not be used: it is a program, and no list.");
    EXPECT_EQ(words_for("e.csv", "{\\rtf1 07700900100\\par}"),
              "e.csv can not be used: it is rich text; its numbers can be imported under a name that ends in .rtf.");
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    EXPECT_EQ(words_for("f.rtf", "{\\rtf1 07700900100\\par}"), "");
    EXPECT_EQ(Numbers(), QStringList("07700900100"));
}

TEST_F(Contacts, Who_Would_Get_Nothing_Is_Named_Beside_Send_And_Shown)
{
    Import_People();
    m_delegate->Replace_Recipient(0, "00447700900100", "Dear {{Name}}");
    m_delegate->Replace_Recipient(1, "00447700900102", "Dear {{Name}}");
    Await();
    EXPECT_TRUE(The<QLabel>("_Promise_Lbl").text().endsWith("\n1 recipient has no Name: it gets nothing."))
        << qPrintable(The<QLabel>("_Promise_Lbl").text());
    EXPECT_EQ(The<QPushButton>("Check_List").text(), "Show who gets nothing ...");
    Click("Check_List");
    Await();
    EXPECT_EQ(Rows_Of(In<QTableView>(Sheet(), "_Rows"), 3), QStringList("Dear {{Name}}"));
    Press_In_Sheet("Close_Btn");
    m_delegate->Replace_Recipient(1, "00447700900102", "Dear {{Name|friend}}");
    Await();
    EXPECT_FALSE(The<QLabel>("_Promise_Lbl").text().contains("nothing"));
    EXPECT_EQ(The<QPushButton>("Check_List").text(), "Check before sending ...");
}

TEST_F(Contacts, A_List_Is_Saved_With_Its_Fields_And_Opened_Again)
{
    Write_Message("Dear {{Name|friend}}, \"quoted\"\nand on a second line");
    Import_People();
    const Recipient_List before = m_delegate->Recipients();
    Will_Enter_Path(user, m_folder.filePath("saved"));
    Click("Save_With_Fields");
    EXPECT_EQ(Strip(), "Written to " + m_folder.filePath("saved.csv") + '.');
    Click("Reset_Btn");
    EXPECT_FALSE(The<QPushButton>("Insert_Field").isVisible());
    Write_Message("another");
    Import(m_folder.filePath("saved.csv"));
    const Recipient_List& after = m_delegate->Recipients();
    ASSERT_EQ(after.Count(), 3);
    EXPECT_EQ(after.Field_Names(), before.Field_Names());
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(after.At(row).Number, before.At(row).Number);
        EXPECT_EQ(after.Message_At(row), before.Message_At(row));
        EXPECT_EQ(after.Text_At(row).text, before.Text_At(row).text);
    }
    EXPECT_EQ(Strip(), "3 added.");
}
