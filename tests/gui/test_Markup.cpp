#include "gui/Sending_Program.h"
#include "support/Opened_Files.h"
#include "windows/main/Send_Modeless.h"
#include "windows/phone/Phone_List_Wnd.h"

using testing::IsEmpty;
using testing::Not;

namespace {

const QColor Poster_Colour(255, 0, 255); // of nothing in the program

// Looks at every label of every window when it is shown and when its text is drawn: none may take its text for markup.
class Label_Watch : public QObject
{
public:
    Label_Watch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* label = qobject_cast<QLabel*>(watched);
        if (label && (event->type() == QEvent::Show || event->type() == QEvent::Paint))
            (label->textFormat() == Qt::PlainText ? m_shown : m_offenders).insert(label->text());
        return false;
    }

    QSet<QString> m_shown;
    QSet<QString> m_offenders;
};

bool Shows_The_Poster(QWidget& window)
{
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == Poster_Colour)
                return true;
        }
    }
    return false;
}

// Texts from outside that would show a picture, or do worse, where somebody took them for more than text.
class Text_From_Outside : public Sending_Program
{
protected:
    Text_From_Outside()
    {
        QImage poster(64, 64, QImage::Format_RGB32);
        poster.fill(Poster_Colour);
        EXPECT_TRUE(poster.save(In_Folder("poster.png")));
        m_evil = QStringLiteral("<img src=\"%1\"><b>bold</b> <a href=\"http://example.org/\">http://example.org/</a> "
                                "&lt;b&gt; `touch %2` $(touch %2) ;touch %2;")
                     .arg(In_Folder("poster.png"), In_Folder("run"));
    }

    ~Text_From_Outside() override
    {
        EXPECT_THAT(m_opener.m_urls, IsEmpty());
        EXPECT_FALSE(QFile::exists(In_Folder("run")));
        EXPECT_THAT(m_watch.m_offenders, IsEmpty());
        EXPECT_THAT(m_watch.m_shown, Not(IsEmpty()));
    }

    QString In_Folder(const char* name) const { return m_folder.filePath(name); }

    void Visit(const char* opener, const char* dialog)
    {
        When_Filled(user, dialog, [](QWidget& window) {
            EXPECT_FALSE(Shows_The_Poster(window));
            Click_In(window, "CancelPressed");
        });
        Click(opener);
    }

    QTemporaryDir m_folder;
    QString m_evil;
    Opened_Files m_opener{{"file", "http", "https"}};
    Label_Watch m_watch;
};

} // namespace

TEST_F(Text_From_Outside, Would_Show_Its_Picture_If_A_Label_Took_It_For_Markup)
{
    QLabel label;
    label.setTextFormat(Qt::RichText);
    label.setText(m_evil);
    label.show();
    EXPECT_TRUE(Shows_The_Poster(label));
    EXPECT_EQ(m_watch.m_offenders.size(), 1);
    m_watch.m_offenders.clear();

    QLabel guessing;
    guessing.setText(m_evil);
    ASSERT_EQ(guessing.textFormat(), Qt::AutoText);
    guessing.show();
    EXPECT_FALSE(Shows_The_Poster(guessing)) << "the program's look is to end the guessing";
    EXPECT_EQ(guessing.text(), m_evil);
}

TEST_F(Text_From_Outside, Is_Text_In_The_Wizard_And_The_Ticker_When_A_Device_Has_It_For_A_Name)
{
    const QString path = In_Folder("<b>phone<img src=poster.png>&lt;");
    ASSERT_TRUE(QFile::link(QString::fromStdString(phone->Path()), path));
    Set_Extra_Device_Paths({path});
    Will_Click_In(user, "Connection_Info", "Continue_Btn");
    user.When_Opens("Phone_List_Wnd", [&](QWidget& window) {
        auto& table = In<QTableView>(window, "idPortList");
        table.selectRow(Row_With(table, path, 1).row());
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        EXPECT_EQ(In<QLineEdit>(window, "_port_det_edit").text(), path);
        Click_In(window, "_Select_Btn");
        EXPECT_FALSE(Wizard_Is_Open());
    });
    Click("Search_All_Modem");
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").text(), "<b>phone<img src=poster.png>&lt;");
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").textFormat(), Qt::PlainText);
    EXPECT_FALSE(Shows_The_Poster(*m_delegate));
    Select(QString());
}

TEST_F(Text_From_Outside, Is_Text_In_The_List_And_The_Dialogs_That_Edit_It)
{
    m_delegate->Set_Composer_Text(m_evil);
    Add("111");
    EXPECT_EQ(Shown(0, 1), m_evil);
    EXPECT_FALSE(Shows_The_Poster(*m_delegate));
    Select_Rows({0});
    user.When_Opens("Update_Num_SMS", [this](QWidget& dialog) {
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), m_evil);
        EXPECT_FALSE(Shows_The_Poster(dialog));
        Click_In(dialog, "CancelPressed");
    });
    m_delegate->doubleClickInTable();
    Visit("Update_Sel_Msgs_Btn", "Update_Sel_Num_SMS");
    Visit("Fill_Msg_Btn", "Fill_Msg_In_List");
}

TEST_F(Text_From_Outside, Is_Text_In_The_File_Panels_Own_Boxes_When_A_File_Has_It_For_A_Name)
{
    const QString name = "<b>list<img src=poster.png>&lt;.txt";
    Write_Bytes(m_folder.filePath(name), {});
    Add("111");
    user.Will_Do([&](QDialog* panel) {
        Enter_Path(*panel, m_folder.filePath(name));
        panel->reject();
    });
    user.Will_Handle([&](QMessageBox& question) {
        EXPECT_TRUE(question.text().contains(name)) << question.text().toStdString();
        EXPECT_FALSE(Shows_The_Poster(question));
        question.button(QMessageBox::No)->click();
    });
    Click("Export_Btn");
}

TEST_F(Text_From_Outside, Is_Text_On_The_Progress_Window_And_When_A_Device_Refuses_With_It)
{
    m_delegate->Set_Composer_Text(m_evil);
    Add("111");
    Select_The_Phone();
    const QString without_prompts = QString(m_evil).replace(u'>', "&gt;");
    phone->Will_Answer("AT+CMGS=*", "\r\n+CMS ERROR: " + without_prompts.toStdString() + "\r\n");
    user.When_Opens("Send_Modeless", [](QWidget& window) { EXPECT_FALSE(Shows_The_Poster(window)); });
    Send(); // what the job makes of such an answer is told elsewhere
    EXPECT_EQ(user.Was_Shown().size(), 1);
    auto* progress = Send_Modeless::defaultInstance();
    progress->Show_Current(m_evil);
    progress->show();
    EXPECT_EQ(In<QLabel>(*progress, "_current_send_msg").text(), m_evil);
    EXPECT_FALSE(Shows_The_Poster(*progress));
    progress->hide();
}
