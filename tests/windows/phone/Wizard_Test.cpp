#include "windows/phone/Wizard_Test.h"

#include "device/Chosen_Device.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QWindow>
#include <fcntl.h>
#include <unistd.h>

void Gate::Open()
{
    {
        const std::lock_guard guard(m_lock);
        m_is_open = true;
    }
    m_changed.notify_all();
}

void Gate::Wait_Here()
{
    std::unique_lock guard(m_lock);
    ++m_waiting;
    m_changed.wait(guard, [this] { return m_is_open; });
    --m_waiting;
}

Kept_Number::Kept_Number(const Virtual_Phone& phone)
    : m_descriptor(::open(phone.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    EXPECT_NE(m_descriptor, -1);
}

Kept_Number::~Kept_Number()
{
    ::close(m_descriptor);
}

int Given_Paths::Find_Ports(Modem_Iterator& iterator) const
{
    ++m_searches;
    QList<Modem_Entry> entries;
    const auto paths = Extra_Device_Paths();
    for (const auto& path : paths)
        entries.append({QFile::encodeName(path)});
    iterator = Modem_Iterator(entries);
    return 0;
}

int Gated_Calls::Open(const char* path, int flags)
{
    if (path == m_gated_path)
        m_gate.Wait_Here();
    return Patient_Calls::Open(path, flags);
}

Wizard_Test::Wizard_Test()
{
    Apply_Application_Look(*qApp);
    Set_Pace(20);
    Forget_Program_Exit();
    Set_Extra_Device_Paths({});
    sel_port_name_str.clear();
    sel_port_bsd_str.clear();
    Cus_SMS_Num_STR.clear();
    m_window = std::make_unique<Phone_List_Wnd>(nullptr, m_finder, m_calls);
    qApp->installEventFilter(this);
}

Wizard_Test::~Wizard_Test()
{
    m_calls.m_gate.Open();
    m_window.reset();
    Forget_Program_Exit();
    Finish_Workers();
    Set_Pace(1);
}

int Wizard_Test::Run(const std::function<void()>& steps)
{
    m_user.When_Opens("Phone_List_Wnd", [this, steps](QWidget&) {
        steps();
        if (m_window->isVisible())
            m_window->ContinueOfflinePressed();
    });
    return m_window->Open_Ph_List_Wnd();
}

QString Wizard_Test::Text(const char* name) const
{
    return Control<QLineEdit>(name).text();
}

QTableView& Wizard_Test::Table() const
{
    return Control<QTableView>("idPortList");
}

int Wizard_Test::Rows() const
{
    return Table().model()->rowCount();
}

int Wizard_Test::Selected_Row() const
{
    const auto rows = Table().selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

bool Wizard_Test::Sheet_Is_Shown() const
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->objectName() == "PleaseWait_Modeless" && window->isVisible();
    });
}

void Wizard_Test::Click(const char* name)
{
    QWidget& control = Control(name);
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                      control.mapTo(m_window.get(), QPoint(12, control.height() / 2)));
}

void Wizard_Test::Click_Row(int row, Qt::KeyboardModifiers keys)
{
    const QPoint middle = Table().visualRect(Table().model()->index(row, 0)).center();
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, keys,
                      Table().viewport()->mapTo(m_window.get(), middle));
}

void Wizard_Test::Click_Empty_Space(Qt::KeyboardModifiers keys)
{
    const QPoint corner = Table().viewport()->rect().bottomRight() - QPoint(5, 5);
    ASSERT_FALSE(Table().indexAt(corner).isValid());
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, keys,
                      Table().viewport()->mapTo(m_window.get(), corner));
}

void Wizard_Test::Press(Qt::Key key)
{
    QTest::keyClick(m_window->windowHandle(), key);
}

void Wizard_Test::Type_Custom_Smsc(const QString& number)
{
    auto& box = Control<QCheckBox>("_cus_smsc_chk");
    if (!box.isChecked())
        Click("_cus_smsc_chk");
    auto& field = Control<QLineEdit>("_cus_smsc_edit");
    field.clear();
    QTest::keyClicks(&field, number);
}

void Wizard_Test::Probe_Row(int row)
{
    const int before = Sheets_So_Far();
    Click_Row(row);
    ASSERT_TRUE(Wait_For_Sheets_End(before));
}

bool Wizard_Test::Wait_For_Sheets_End(int sheets_before)
{
    return Serve_Until([&] { return Sheets_So_Far() > sheets_before && !Sheet_Is_Shown(); });
}

bool Wizard_Test::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->objectName() == "PleaseWait_Modeless")
        ++m_sheets;
    return false;
}

int Descriptors_Open_On(const std::string& path)
{
    int open_descriptors = 0;
    const QDir descriptors("/proc/self/fd");
    const auto entries = descriptors.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const auto& entry : entries)
        open_descriptors += QFile::symLinkTarget(descriptors.filePath(entry)).toStdString() == path ? 1 : 0;
    return open_descriptors;
}

QString Boxed(const char* text)
{
    return QString("\n") + text;
}
