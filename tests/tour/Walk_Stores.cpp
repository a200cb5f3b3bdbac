#include "records/Data_Paths.h"
#include "tour/Story.h"
#include "tour/Visitor.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QFile>

// The way through the exclusion wizard, the templates, the sent items and what they keep in files.

using namespace Windows;

namespace {

const QString Continue_Question = QStringLiteral("Are you sure you want to continue");
const QString Template_List = QStringLiteral("idTemplateList");
const QString Template_Count = QStringLiteral("_templ_list_count");
const QString Text_Format = QStringLiteral("Export_In_Text_RD");
const QString Page_Format = QStringLiteral("Export_In_Html_RD");

QByteArray Content_Of(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Tour_Failed(path + QStringLiteral(" can not be read"));
    return file.readAll();
}

} // namespace

void Walk::Keep_Exclusion_Lists()
{
    m_visitor.Click(Main, QStringLiteral("View_ExclusionWizrd_Btn"));
    Name_New_List(Story::Moved_Away);
    Fill_Moved_Away();
    Finish_List();
    Name_New_List(Story::Committee);
    m_visitor.Type(Exclusions, QStringLiteral("m_loadnum_edit"), QStringLiteral("07700900999"));
    m_visitor.Click(Exclusions, QStringLiteral("m_add_num_btn"));
    Finish_List();
    Apply_Moved_Away();
    m_visitor.Take_Picture(Exclusions, QStringLiteral("exclusion-lists"));
    m_visitor.Click(Exclusions, QStringLiteral("m_cancel_btn"));
    m_visitor.Await_Gone(Exclusions);
    Expect_In_File(Exclusion_Index_Path, Story::Exclusion_Index());
    Expect_In_File(Applied_Exclusion_Path, Story::Applied_Exclusions());
    Expect_In_File(Exclusion_Folder_Path + u'/' + Story::Moved_Away + QStringLiteral(".ZOVA"),
                   Story::Numbers_Of_Moved_Away());
}

void Walk::Name_New_List(const QString& name)
{
    m_visitor.Click(Exclusions, QStringLiteral("m_addnew_btn"));
    m_visitor.Type(Exclusions, QStringLiteral("m_ex_list_name_edit"), name);
    m_visitor.Await_Text(Exclusions, QStringLiteral("m_ex_list_name_edit"), name);
    if (name == Story::Moved_Away)
        m_visitor.Take_Picture(Exclusions, QStringLiteral("exclusion-name"));
    m_visitor.Click(Exclusions, QStringLiteral("m_next_btn"));
}

// Two numbers from a file and one typed by hand, with a slip that is put right.
void Walk::Fill_Moved_Away()
{
    m_visitor.Click(Exclusions, QStringLiteral("m_browse_btn"));
    m_visitor.Choose_File(Story::Moved_Away_File, QStringLiteral("file-of-numbers"));
    m_visitor.Click(Exclusions, QStringLiteral("m_load_btn"));
    m_visitor.Await_Text(Exclusions, QStringLiteral("m_st_num_count"), QStringLiteral("Total Numbers : 2"));
    m_visitor.Type(Exclusions, QStringLiteral("m_loadnum_edit"), QStringLiteral("07700900339"));
    m_visitor.Click(Exclusions, QStringLiteral("m_add_num_btn"));
    m_visitor.Click_Row_With(Exclusions, QStringLiteral("m_ex_num_list"), QStringLiteral("07700900339"));
    m_visitor.Click(Exclusions, QStringLiteral("m_update_num_btn"));
    m_visitor.Retype(Exclusion_Number, QStringLiteral("m_ex_num_str"), QStringLiteral("07700900333"));
    m_visitor.Await_Text(Exclusion_Number, QStringLiteral("m_ex_num_str"), QStringLiteral("07700900333"));
    m_visitor.Take_Picture(Exclusion_Number, QStringLiteral("exclusion-edit-number"));
    m_visitor.Click(Exclusion_Number, QStringLiteral("OKPressed"));
    m_visitor.Await_Gone(Exclusion_Number);
    m_visitor.Take_Picture(Exclusions, QStringLiteral("exclusion-numbers"));
}

void Walk::Finish_List()
{
    m_visitor.Click(Exclusions, QStringLiteral("m_finish_btn"));
    m_visitor.Press_In_Box(QStringLiteral("Yes"), Continue_Question);
}

void Walk::Apply_Moved_Away()
{
    m_visitor.Click_Row_With(Exclusions, QStringLiteral("m_exclusion_list"), Story::Moved_Away);
    m_visitor.Click(Exclusions, QStringLiteral("m_addlist_btn"));
    m_visitor.Click(Exclusions, QStringLiteral("m_saveapplied_btn"));
    m_visitor.Press_In_Box(QStringLiteral("Yes"), Continue_Question);
}

void Walk::Keep_Templates()
{
    m_visitor.Click(Main, QStringLiteral("View_Templates_Btn"));
    for (const QString& text : {Story::Rehearsal, Story::Thanks}) {
        m_visitor.Click(Templates, QStringLiteral("AddNew_Btn"));
        m_visitor.Type(Template, QStringLiteral("m_templ_msg_str"), text);
        m_visitor.Await_Text(Template, QStringLiteral("m_templ_msg_str"), text);
        m_visitor.Take_Picture(Template, QStringLiteral("template"));
        m_visitor.Click(Template, QStringLiteral("OKPressed"));
        m_visitor.Await_Gone(Template);
    }
    m_visitor.Await_Text(Templates, Template_Count, QStringLiteral("Total Items : 2"));
    m_visitor.Click(Templates, QStringLiteral("Cancel_Btn"));
    m_visitor.Await_Gone(Templates);
}

void Walk::Look_At_Sent_Items()
{
    const QString list = QStringLiteral("idSendList");
    m_visitor.Click(Main, QStringLiteral("Sent_Item_Btn"));
    m_visitor.Await_Text(Sent_Items, QStringLiteral("_sent_list_count"), QStringLiteral("Total Items : 5"));
    m_visitor.Click_Row_With(Sent_Items, list, Story::Concert_Helper);
    m_visitor.Await_Text(Sent_Items, QStringLiteral("_Mess_det_edit"), QStringLiteral("Number\t: 07700900789"));
    m_visitor.Take_Picture(Sent_Items, QStringLiteral("sent-items"));
    Export(Sent_Items, Page_Format, QStringLiteral("sent.html"), QStringLiteral("export-format"));
    Expect_In_File(m_folder + QStringLiteral("/sent.html"), Story::Sent_Items_Page);
    m_visitor.Click(Sent_Items, QStringLiteral("Cancel_Btn"));
    m_visitor.Await_Gone(Sent_Items);
    Expect_In_File(Sent_Item_Path, Story::Sent_Items); // closing has written it anew
}

void Walk::Look_At_Templates()
{
    m_visitor.Click(Main, QStringLiteral("View_Templates_Btn"));
    m_visitor.Await_Text(Templates, Template_Count, QStringLiteral("Total Items : 4"));
    m_visitor.Click_Row_With(Templates, Template_List, Story::Thanks);
    m_visitor.Take_Picture(Templates, QStringLiteral("templates"));
    Export(Templates, Text_Format, QStringLiteral("templates.txt"), {});
    Expect_In_File(m_folder + QStringLiteral("/templates.txt"), Story::Templates_Export());
    m_visitor.Click(Templates, QStringLiteral("Cancel_Btn"));
    m_visitor.Await_Gone(Templates);
    Expect_In_File(Templates_Path, Story::Templates());
}

void Walk::Export(const QString& window, const QString& format, const QString& file_name, const QString& picture)
{
    m_visitor.Click(window, QStringLiteral("Export_Btn"));
    m_visitor.Click(Export_Format, format);
    if (!picture.isEmpty())
        m_visitor.Take_Picture(Export_Format, picture);
    m_visitor.Click(Export_Format, QStringLiteral("OKPressed"));
    m_visitor.Choose_File(file_name, QStringLiteral("file-to-save"));
    m_visitor.Click(Export_Done, QStringLiteral("CancelPressed"));
    m_visitor.Await_Gone(Export_Done);
}

void Walk::Expect_In_File(const QString& path, const QByteArray& content)
{
    const QByteArray found = Content_Of(path);
    if (found != content)
        throw Tour_Failed(path + QStringLiteral(" holds ") + QString::fromLatin1(found.toPercentEncoding(" ")) +
                          QStringLiteral(" instead of ") + QString::fromLatin1(content.toPercentEncoding(" ")));
    printf("file     %s holds what it must\n", qPrintable(path));
}

void Walk::Expect_In_File(const QString& path, QByteArray (*content)(const QDate&))
{
    const bool is_of_day_before = Content_Of(path) == content(m_day_before_sending);
    Expect_In_File(path, content(is_of_day_before ? m_day_before_sending : QDate::currentDate()));
}
