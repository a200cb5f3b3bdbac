#include "windows/stores/UpdateTemp.h"

#include "platform/String_Helpers.h"
#include "records/Template_Format.h"
#include "texts/Texts.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Plain_Text_Edit.h"
#include "ui_UpdateTemp.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Templates.h"

namespace {

// What a text area makes of a text: it knows only one kind of line break.
QString As_Shown(const QString& text)
{
    QPlainTextEdit edit;
    edit.setPlainText(text);
    return Exact_Text(edit);
}

} // namespace

UpdateTemp::UpdateTemp(QWidget* parent) : Form_Dialog(parent, Letters{.columns = 70, .lines = 24})
{
    m_ui->m_templ_index->hide();
    m_ui->m_s_temp_str->hide();
    connect(m_ui->m_templ_msg_str, &QPlainTextEdit::textChanged, this, &UpdateTemp::textDidChange);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &UpdateTemp::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &UpdateTemp::CancelPressed);
}

UpdateTemp::~UpdateTemp() = default;

void UpdateTemp::textDidChange()
{
    Cut_Text(*m_ui->m_templ_msg_str, Template_Format::Most_Characters);
    m_ui->m_st_msg_cnt->setText(QString(Texts::Long_Message::Characters).arg(Text_Length(*m_ui->m_templ_msg_str)));
}

void UpdateTemp::OKPressed()
{
    const QString typed = Exact_Text(*m_ui->m_templ_msg_str);
    const QString before = m_ui->m_s_temp_str->text();
    const bool is_update = !m_ui->m_templ_index->text().isEmpty();
    const bool is_unchanged = is_update && typed == As_Shown(before);
    const QString text =
        Trim_Str(Left_Str_substringToIndex(is_unchanged ? before : typed, Template_Format::Most_Characters));
    if (text.isEmpty()) {
        Tell_And_Focus(Texts::Stores::Template_Missing, *m_ui->m_templ_msg_str);
        return;
    }
    if (!Template_Window)
        return;
    if (!is_unchanged && Template_Window->Check_Duplicate_Template(text)) {
        Tell_And_Focus(Texts::Stores::Template_Exists, *m_ui->m_templ_msg_str);
        return;
    }
    if (is_update)
        Template_Window->Replace_Template(m_ui->m_templ_index->text().toInt(), text);
    else
        Template_Window->Create_Template_List(text);
    Template_Window->ListreloadData();
    End_With(1);
}

void UpdateTemp::CancelPressed()
{
    End_With(0);
}

void UpdateTemp::End_With(int code)
{
    m_ui->m_templ_index->clear();
    m_ui->m_templ_msg_str->clear(); // the count label follows: "0 Characters"
    m_ui->m_s_temp_str->clear();
    done(code);
}
