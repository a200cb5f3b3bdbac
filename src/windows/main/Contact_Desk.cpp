#include "windows/main/Contact_Desk.h"

#include "engine/Outcome_Codes.h"
#include "engine/Send_Order.h"
#include "list/Contact_List_File.h"
#include "list/Table_File.h"
#include "platform/Interface_Thread.h"
#include "platform/Rich_Text.h"
#include "records/Export_Writer.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Import_Strip.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Window_Work.h"
#include "windows/contacts/Contacts_Wnd.h"
#include "windows/contacts/Fields_Strip.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <algorithm>

namespace {

constexpr qsizetype Most_Offered = 60; // fields
constexpr qint64 Looked_At = 4096;     // bytes of a file that was dropped

// A name with one of these can be in no placeholder.
bool Can_Be_Written(const QString& name)
{
    return !name.contains(u'|') && !name.contains(u'{') && !name.contains(u'}');
}

// Whatever its name says. Rich text can be one under its own name.
bool Is_No_List_Of_Numbers(const QString& path)
{
    QFile file(path);
    const QByteArray beginning = file.open(QIODevice::ReadOnly) ? file.read(Looked_At) : QByteArray();
    const bool is_rich_text = beginning.startsWith("{\\rtf") && Is_Rich_Text_Path(path);
    return !is_rich_text && !Why_No_Plain_Text(beginning).isEmpty();
}

} // namespace

Contact_Desk::Contact_Desk(Main_Window& window, Window_Work& work, const Plan_Pace& pace, const Controls& controls)
    : m_window(window), m_work(work), m_pace(pace), m_controls(controls),
      m_hint(new Empty_List_Hint(controls.table, QStringLiteral("Import_Contacts_Here"))),
      m_fields(new QMenu(&controls.insert_field))
{
    m_controls.insert_field.setMenu(m_fields);
    m_hint->Say(tr("Nobody is on the list yet."), tr("Add contacts from a spreadsheet, CSV or vCard file ..."));
    m_hint->Hold_True(true);
    connect(m_hint, &Empty_List_Hint::Step_Wanted, this, &Contact_Desk::Import_Contacts);
    connect(m_fields, &QMenu::aboutToShow, this, &Contact_Desk::Offer_Fields);
    connect(&m_controls.fields, &Fields_Strip::Save_Wanted, this, &Contact_Desk::Save_With_Fields);
    List_Changed();
}

Contacts_Wnd& Contact_Desk::Window()
{
    if (!m_contacts) {
        m_contacts = new Contacts_Wnd(m_window, &m_pace);
        connect(m_contacts, &Contacts_Wnd::Added, this, &Contact_Desk::Say_What_Was_Added);
    }
    return *m_contacts;
}

// ------------------------------------------------------------------------------------------------- into the list

void Contact_Desk::Import_Contacts()
{
    if (const auto path = Ask_For_File_To_Open(m_window.Window()))
        Import_File(*path);
}

void Contact_Desk::Import_File(const QString& path)
{
    Window().Import({path});
}

bool Contact_Desk::Import_Dropped(const QString& path)
{
    const QStringList tables{QStringLiteral("csv"),  QStringLiteral("tsv"), QStringLiteral("xlsx"),
                             QStringLiteral("xls"),  QStringLiteral("ods"), QStringLiteral("vcf"),
                             QStringLiteral("vcard")};
    bool is_for_the_sheet = tables.contains(QFileInfo(path).suffix().toLower());
    if (!is_for_the_sheet)
        Run_On_Worker([&] { is_for_the_sheet = Is_No_List_Of_Numbers(path); });
    if (!is_for_the_sheet)
        return false;
    Import_File(path);
    return true;
}

bool Contact_Desk::Import_Clipboard_Table()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (!text.contains(u'\t'))
        return false;
    Window().Import({{}, text.toUtf8()});
    return true;
}

void Contact_Desk::Say_What_Was_Added(int rows, int not_used)
{
    if (not_used == 0)
        m_controls.strip.Show_News(tr("%1 added.").arg(rows), {});
    else
        m_controls.strip.Show_News(not_used == 1 ? tr("%1 added, 1 row not used.").arg(rows)
                                                 : tr("%1 added, %n rows not used.", nullptr, not_used).arg(rows),
                                   [this] { Window().Show_Not_Used(); });
}

// ------------------------------------------------------------------------------------------------- the list

void Contact_Desk::List_Changed()
{
    const Recipient_List& list = m_window.Recipients();
    const QStringList names = list.Field_Names();
    if (names == m_names)
        return;
    m_names = names;
    m_controls.fields.Show_Fields(names);
    m_controls.insert_field.setVisible(!names.isEmpty());
}

void Contact_Desk::Offer_Fields()
{
    m_fields->clear();
    for (const QString& name : m_names) {
        if (m_fields->actions().size() == Most_Offered)
            break;
        if (!Can_Be_Written(name))
            continue;
        QString caption = name;
        QAction* action = m_fields->addAction(caption.replace(u'&', QLatin1String("&&")));
        connect(action, &QAction::triggered, this, [this, name] {
            m_window.Use_In_Composer(QLatin1String("{{") + name + QLatin1String("}}"));
            m_window.Focus(Main_Window::Field::Composer);
        });
    }
}

void Contact_Desk::Check_List(bool left_out_alone)
{
    Window().Check_List(left_out_alone);
}

void Contact_Desk::Save_With_Fields()
{
    const QString extension = QStringLiteral("csv");
    const auto chosen = Ask_For_File_To_Save(m_window.Window(), extension);
    if (!chosen)
        return;
    const QString path = With_Extension(*chosen, extension);
    bool is_written = false;
    {
        const auto sheet = m_work.Sheet();
        Run_On_Worker([&, list = m_window.Recipients()] {
            const auto line = [&](qsizetype index) { return Contact_List_File::Line(list, static_cast<int>(index)); };
            is_written = Write_Export(path, {Contact_List_File::Heading(list), list.Count(), line});
        });
    }
    const QString shown_path = QDir::toNativeSeparators(path);
    m_controls.strip.Show_News(is_written ? tr("Written to %1.").arg(shown_path)
                                          : tr("The file %1 could not be written.").arg(shown_path),
                               {});
}

// A list without fields has nothing to say, and what is to be counted of another is counted behind the window.
void Contact_Desk::Job_Ended()
{
    if (!m_window.Recipients().Has_Fields())
        return;
    m_work.Start("rows not sent", [this, list = m_window.Recipients()] {
        int count = 0;
        int first = -1;
        for (int row = 0; row < list.Count(); ++row) {
            if (Outcome_Codes::State_Of(list.Mark_At(row)) == Row_State::Not_Filled && count++ == 0)
                first = row;
        }
        if (count == 0)
            return;
        const QString reason = Words_For_Fault(Text_To_Send(list, first));
        Post_To_Interface_Thread(this, [this, count, reason] {
            m_controls.strip.Show_News(count == 1
                                           ? tr("1 row was not sent: %1.").arg(reason)
                                           : tr("%n rows were not sent. Of the first, %1.", nullptr, count).arg(reason),
                                       [this] { Window().Check_List(true); });
        });
    });
}
