#include "gui/Sending_Program.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "support/Opened_Files.h"
#include "toolkit/Message_Boxes.h"
#include "windows/main/Send_Modeless.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolTip>
#include <set>

using testing::Contains;
using testing::HasSubstr;
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
        if (event->type() != QEvent::Show && event->type() != QEvent::Paint)
            return false;
        if (const auto* label = qobject_cast<QLabel*>(watched)) {
            m_shown.insert(label->text().toStdString());
            if (label->textFormat() != Qt::PlainText)
                m_offenders.insert(label->window()->objectName().toStdString() + "." +
                                   label->objectName().toStdString() + ": " + label->text().toStdString());
        } else if (qobject_cast<QTextEdit*>(watched)) {
            m_offenders.insert("a rich text area: " + watched->objectName().toStdString());
        }
        return false;
    }

    std::set<std::string> m_shown;
    std::set<std::string> m_offenders;
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

// Made before the program is opened.
class Own_Data_Home
{
protected:
    Own_Data_Home() { qputenv("XDG_DATA_HOME", QFile::encodeName(m_data_home.path())); }
    ~Own_Data_Home() { qputenv("XDG_DATA_HOME", m_data_home_before); }

private:
    QByteArray m_data_home_before = qgetenv("XDG_DATA_HOME");
    QTemporaryDir m_data_home;
};

// The open program, and texts from outside that would show a picture, or do worse, where somebody took them for more
// than text.
class Text_From_Outside : private Own_Data_Home, public Sending_Program
{
protected:
    Text_From_Outside()
    {
        QImage poster(64, 64, QImage::Format_RGB32);
        poster.fill(Poster_Colour);
        EXPECT_TRUE(poster.save(In_Folder("poster.png")));
        for (const char* scheme : {"file", "http", "https"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), &m_opener, "Open");
        m_evil = QStringLiteral("<img src=\"%1\"><b>bold</b> <a href=\"http://example.org/\">http://example.org/</a> "
                                "&lt;b&gt; `touch %2` $(touch %2) ;touch %2;")
                     .arg(In_Folder("poster.png"), In_Folder("run"));
    }

    ~Text_From_Outside() override
    {
        for (const char* scheme : {"file", "http", "https"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
        EXPECT_THAT(m_opener.m_urls, IsEmpty());
        EXPECT_FALSE(QFile::exists(In_Folder("run")));
        EXPECT_THAT(m_watch.m_offenders, IsEmpty());
        EXPECT_THAT(m_watch.m_shown, Not(IsEmpty()));
    }

    QString In_Folder(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    static void Click_In(QWidget& window, const char* name)
    {
        QTest::mouseClick(window.findChild<QAbstractButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    template <typename Control>
    static Control& In(const QWidget& window, const char* name)
    {
        auto* control = window.findChild<Control*>(QLatin1String(name));
        if (!control)
            qFatal("there is no %s in %s", name, qPrintable(window.objectName()));
        return *control;
    }

    /// Opens a window, does the visit once it is filled, and closes it.
    void Visit(const char* opener, const char* window_name, const char* closer,
               const std::function<void(QWidget&)>& visit)
    {
        user.When_Opens(QLatin1String(window_name), [closer, visit](QWidget& window) {
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            visit(window);
            EXPECT_FALSE(Shows_The_Poster(window));
            Click_In(window, closer);
        });
        Click(opener);
    }

    /// What a table shows, cell by cell.
    static QStringList Cells(const QAbstractItemView& table)
    {
        QStringList cells;
        const auto* rows = table.model();
        for (int row = 0; row < rows->rowCount(); ++row) {
            for (int column = 0; column < rows->columnCount(); ++column)
                cells.append(rows->index(row, column).data().toString());
        }
        return cells;
    }

    QTemporaryDir m_folder;
    QString m_evil;
    Opened_Files m_opener;
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
    EXPECT_EQ(m_watch.m_offenders.size(), 1U);
    m_watch.m_offenders.clear();

    QLabel guessing;
    guessing.setText(m_evil);
    ASSERT_EQ(guessing.textFormat(), Qt::AutoText);
    guessing.show();
    EXPECT_FALSE(Shows_The_Poster(guessing)) << "the program's look is to end the guessing";
    EXPECT_EQ(guessing.text(), m_evil);
}

TEST_F(Text_From_Outside, Is_Text_In_The_Wizard_When_A_Device_Says_It)
{
    const std::string evil = m_evil.toStdString();
    for (const char* command : {"AT+GMI", "AT+CGMI", "AT+GMM", "AT+CGMM", "AT+CGSN", "AT+GSN", "AT+CIMI", "AT+CBC",
                                "AT+CSQ", "AT+CGMR", "AT+GMR"})
        phone->Will_Answer(command, "\r\n" + evil + "\r\n\r\nOK\r\n");
    phone->Will_Answer("AT+COPS?", "\r\n+COPS: 0,0,\"" + evil + "\"\r\n\r\nOK\r\n");
    phone->Will_Answer("AT+CSCA?", "\r\n+CSCA: \"" + evil + "\",145\r\n\r\nOK\r\n");
    Visit_Wizard([this] {
        Click_The_Phone();
        const auto details = Details();
        EXPECT_THAT(details, Contains(HasSubstr("&lt;b&gt;"))); // what the cleaning of answers leaves, as it stands
        EXPECT_THAT(details, Contains(HasSubstr("img src=")));
        EXPECT_FALSE(Shows_The_Poster(*Phone_List_Wnd::defaultInstance()));
    });
}

TEST_F(Text_From_Outside, Is_Text_In_The_Wizard_And_The_Ticker_When_A_Device_Has_It_For_A_Name)
{
    const QString path = In_Folder("<b>phone<img src=poster.png>&lt;");
    ASSERT_TRUE(QFile::link(QString::fromStdString(phone->Path()), path));
    Set_Extra_Device_Paths({path});
    user.When_Opens(QStringLiteral("Connection_Info"), [](QWidget& window) { Click_In(window, "Continue_Btn"); });
    user.When_Opens(QStringLiteral("Phone_List_Wnd"), [&](QWidget& window) {
        auto& table = In<QTableView>(window, "idPortList");
        const auto found = table.model()->match(table.model()->index(0, 1), Qt::DisplayRole, path, 1,
                                                Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found.isEmpty()) {
            ADD_FAILURE() << "the wizard does not list the device";
        } else {
            table.selectRow(found.constFirst().row());
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            EXPECT_EQ(In<QLineEdit>(window, "_port_det_edit").text(), path);
            Click_In(window, "_Select_Btn");
        }
        if (Wizard_Is_Open())
            Click_In(window, "_Cancel_Btn");
    });
    Click("Search_All_Modem");
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").text(), QStringLiteral("<b>phone<img src=poster.png>&lt;"));
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").textFormat(), Qt::PlainText);
    EXPECT_FALSE(Shows_The_Poster(*m_delegate));
    Select(QString());
}

TEST_F(Text_From_Outside, Is_Text_In_The_List_And_The_Dialogs_That_Edit_It)
{
    m_delegate->Set_Composer_Text(m_evil);
    Add(QStringLiteral("111"));
    EXPECT_EQ(Shown(0, 1), m_evil);
    EXPECT_FALSE(Shows_The_Poster(*m_delegate));
    Select_Rows({0});
    user.When_Opens(QStringLiteral("Update_Num_SMS"), [this](QWidget& dialog) {
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), m_evil);
        EXPECT_FALSE(Shows_The_Poster(dialog));
        Click_In(dialog, "CancelPressed");
    });
    m_delegate->doubleClickInTable();
    Visit("Update_Sel_Msgs_Btn", "Update_Sel_Num_SMS", "CancelPressed", [](QWidget&) {});
    Visit("Fill_Msg_Btn", "Fill_Msg_In_List", "CancelPressed", [](QWidget&) {});
}

TEST_F(Text_From_Outside, Is_Text_In_The_Sent_Items)
{
    ASSERT_TRUE(Sent_Item_Store::Append({m_evil, m_evil, m_evil, QString()}));
    Visit("Sent_Item_Btn", "Sent_Items", "Cancel_Btn", [this](QWidget& window) {
        const auto cells = Cells(In<QTableView>(window, "idSendList"));
        EXPECT_EQ(cells.count(m_evil), 3);
        In<QTableView>(window, "idSendList").selectRow(0);
        const QString details = In<QPlainTextEdit>(window, "_Mess_det_edit").toPlainText();
        EXPECT_TRUE(details.contains(m_evil)) << details.toStdString();
    });
}

TEST_F(Text_From_Outside, Is_Text_In_The_Templates)
{
    ASSERT_TRUE(Template_Store::Append(m_evil));
    Visit("View_Templates_Btn", "Templates", "Cancel_Btn", [this](QWidget& window) {
        EXPECT_EQ(Cells(In<QTableView>(window, "idTemplateList")), QStringList{m_evil});
        In<QTableView>(window, "idTemplateList").selectRow(0);
        user.When_Opens(QStringLiteral("UpdateTemp"), [this](QWidget& dialog) {
            EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_templ_msg_str").toPlainText(), m_evil);
            EXPECT_EQ(In<QLabel>(dialog, "m_s_temp_str").text(), m_evil);
            EXPECT_FALSE(Shows_The_Poster(dialog));
            Click_In(dialog, "CancelPressed");
        });
        Click_In(window, "Update_Btn");
    });
}

TEST_F(Text_From_Outside, Is_Text_In_The_Exclusion_Wizard_When_A_List_Has_It_For_A_Name)
{
    const QString name = QStringLiteral("<b>Staff<img src=poster.png>&lt;");
    ASSERT_TRUE(Exclusion_Files::Create_List_If_Missing(name));
    ASSERT_TRUE(Exclusion_Files::Append_To_Index(name));
    ASSERT_TRUE(Exclusion_Files::Write_Applied({name}));
    Visit("View_ExclusionWizrd_Btn", "Exclusion_Wizard", "m_cancel2_btn", [&](QWidget& window) {
        for (const char* table : {"m_exclusion_list", "m_applied_axclusion_list"})
            EXPECT_EQ(Cells(In<QTableView>(window, table)), QStringList{name}) << table;
        In<QTableView>(window, "m_exclusion_list").selectRow(0);
        Click_In(window, "m_update_btn");
        EXPECT_THAT(In<QLabel>(window, "m_st_curr_use_ex_list").text().toStdString(), HasSubstr(name.toStdString()));
        In<QLineEdit>(window, "m_loadfile_edit").setText(m_evil);
        EXPECT_FALSE(Shows_The_Poster(window));
    });
}

TEST_F(Text_From_Outside, Is_Text_In_The_Programs_Boxes)
{
    for (int box = 0; box < 2; ++box)
        user.Will_Handle([this](QMessageBox& shown) {
            EXPECT_TRUE(shown.text().contains(m_evil));
            EXPECT_FALSE(Shows_The_Poster(shown));
            shown.buttons().constFirst()->click();
        });
    Show_MessageBox(m_evil);
    Show_YES_NO_MessageBox(m_evil);
}

TEST_F(Text_From_Outside, Is_Text_In_The_File_Panels_Own_Boxes_When_A_File_Has_It_For_A_Name)
{
    const QString name = QStringLiteral("<b>list<img src=poster.png>&lt;.txt");
    QFile file(m_folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    Add(QStringLiteral("111"));
    user.Will_Do([&](QDialog* panel) {
        auto& field = In<QLineEdit>(*panel, "fileNameEdit");
        field.setText(m_folder.filePath(name));
        QTest::keyClick(&field, Qt::Key_Return);
        panel->reject();
    });
    user.Will_Handle([&](QMessageBox& question) {
        EXPECT_TRUE(question.text().contains(name)) << question.text().toStdString();
        EXPECT_FALSE(Shows_The_Poster(question));
        question.button(QMessageBox::No)->click();
    });
    Click("Export_Btn");
}

TEST_F(Text_From_Outside, Is_Text_In_A_Tool_Tip)
{
    QToolTip::showText(m_delegate->mapToGlobal(QPoint(50, 50)), m_evil, m_delegate.get());
    QWidget* tip = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->windowType() == Qt::ToolTip)
            tip = window;
    }
    ASSERT_NE(tip, nullptr);
    EXPECT_EQ(static_cast<QLabel*>(tip)->text(), m_evil);
    EXPECT_FALSE(Shows_The_Poster(*tip));
    QToolTip::hideText();
    EXPECT_TRUE(Serve_Until([] { return !QToolTip::isVisible(); }));
}

TEST_F(Text_From_Outside, Is_Text_On_The_Progress_Window_And_When_A_Device_Refuses_With_It)
{
    m_delegate->Set_Composer_Text(m_evil);
    Add(QStringLiteral("111"));
    Select_The_Phone();
    const QString without_prompts = QString(m_evil).replace(u'>', QStringLiteral("&gt;"));
    phone->Will_Answer("AT+CMGS=*", "\r\n+CMS ERROR: " + without_prompts.toStdString() + "\r\n");
    user.When_Opens(QStringLiteral("Send_Modeless"), [](QWidget& window) { EXPECT_FALSE(Shows_The_Poster(window)); });
    Send(); // what the job makes of such an answer is told elsewhere
    EXPECT_EQ(user.Was_Shown().size(), 1);
    auto* progress = Send_Modeless::defaultInstance();
    progress->Show_Current(m_evil);
    progress->show();
    EXPECT_EQ(In<QLabel>(*progress, "_current_send_msg").text(), m_evil);
    EXPECT_FALSE(Shows_The_Poster(*progress));
    progress->hide();
}

TEST_F(Text_From_Outside, Is_Nothing_But_Lines_In_A_File_Of_Numbers)
{
    QFile file(In_Folder("<b>numbers `touch run`.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(m_evil.toUtf8() + "\n12345\n$(touch run)\n");
    file.close();
    user.Will_Do([&](QDialog* panel) {
        auto& field = In<QLineEdit>(*panel, "fileNameEdit");
        field.setText(file.fileName());
        QTest::keyClick(&field, Qt::Key_Return);
    });
    Click("Load_Number");
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_TRUE(Serve_Until([this] { return Numbers() == QStringList{QStringLiteral("12345")}; }));
}
