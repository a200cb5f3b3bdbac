#include "windows/main/Remembered_List.h"

#include "list/Contact_List_File.h"
#include "list/Table_File.h"
#include "platform/Folders_And_Files.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Text_Files.h"
#include "toolkit/Import_Strip.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Window_Work.h"

#include <QAction>
#include <QCoreApplication>
#include <QSignalBlocker>
#include <utility>

namespace {

constexpr unsigned Only_The_User = 0600;
const QString Wanted_Key = QStringLiteral("List/Remember");
const QString Wanted = QStringLiteral("true");

bool Is_Written(const Recipient_List& list, const QString& path)
{
    QByteArray bytes = Contact_List_File::Heading(list);
    for (int row = 0; row < list.Count(); ++row)
        bytes += Contact_List_File::Line(list, row);
    return Replace_File(path, bytes) && Set_Permissions(path, Only_The_User);
}

Contact_List_File::Read_List Read_From(const QString& path)
{
    Contact_List_File::Read_List read;
    auto bytes = Read_File(path);
    Table_Choices choices;
    choices.delimiter = ',';
    const Table_In_A_File file =
        Table_Of_Bytes(bytes ? std::exchange(*bytes, {}) : QByteArray(), QStringLiteral("list.csv"), choices);
    if (file.trouble.isEmpty() && Contact_List_File::Is_One(file.table))
        return Contact_List_File::List_In(file.table);
    read.trouble = file.trouble.isEmpty() ? QStringLiteral("no list") : file.trouble;
    return read;
}

} // namespace

Remembered_List::Remembered_List(const Parts& parts, const Settings_File& settings, QString path)
    : QObject(parts.window.Window()), m_parts(parts), m_settings(settings), m_path(std::move(path)),
      m_choice(new QAction(tr("Re&member this list"), this))
{
    m_choice->setObjectName(QStringLiteral("Remember_List"));
    m_choice->setCheckable(true);
    m_choice->setChecked(m_settings.Word_At(Wanted_Key) == Wanted);
    connect(m_choice, &QAction::toggled, this, &Remembered_List::Choose);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Remembered_List::Keep);
    if (m_choice->isChecked() && !Is_Missing(m_path))
        Post_To_Interface_Thread(this, [this] { Load(); });
}

// It says what is so: it goes back where that cannot be brought about.
void Remembered_List::Choose(bool is_wanted)
{
    const bool is_forgotten = is_wanted || Remove_File(m_path);
    if (is_forgotten && m_settings.Put_Word(Wanted_Key, is_wanted ? Wanted : QString()))
        return;
    Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
    const QSignalBlocker nothing_is_chosen(m_choice);
    m_choice->setChecked(!is_wanted);
}

void Remembered_List::Load()
{
    Contact_List_File::Read_List read;
    {
        const auto sheet = m_parts.work.Sheet();
        Run_On_Worker([&] { read = Read_From(m_path); });
    }
    m_is_unread = !read.trouble.isEmpty();
    if (m_is_unread) {
        Show_NSLog_Message(QStringLiteral("The list that was remembered cannot be read: ") + read.trouble);
        m_parts.strip.Show_News(tr("The list from the last time cannot be read."), {});
        return;
    }
    const int count = read.recipients.Count();
    const auto left_out = read.left_out.size();
    m_parts.window.Replace_Recipients(std::move(read.recipients));
    QStringList words{tr("Recipients from the last time: %1.").arg(count)};
    if (left_out > 0)
        words.append(tr("Not read: %1.").arg(left_out));
    m_parts.strip.Show_News(words.join(u' '), {});
}

// A worker writes it, which whoever ends the program awaits; nobody is to look at a window that stands still meanwhile.
void Remembered_List::Keep()
{
    const Recipient_List list = m_parts.window.Recipients();
    if (!m_choice->isChecked() || (m_is_unread && list.Count() == 0))
        return;
    m_parts.window.Window()->hide();
    Start_Worker("keep list", [list, path = m_path] {
        if (list.Count() > 0 ? !Is_Written(list, path) : !Remove_File(path))
            Show_NSLog_Message(QStringLiteral("The list that is to be remembered cannot be written."));
    });
}
