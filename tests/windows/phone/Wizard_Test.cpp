#include "windows/phone/Wizard_Test.h"

#include "device/Chosen_Device.h"
#include "doctor/Phone_Search.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>

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
    Plug_In(m_phone);
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
    const int result = m_window->Open_Ph_List_Wnd();
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    return result;
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

int Wizard_Test::Phones_Descriptors() const
{
    const QString path = QString::fromStdString(m_phone.Path());
    const QDir descriptors("/proc/self/fd");
    const auto entries = descriptors.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), [&](const QString& entry) {
        return QFile::symLinkTarget(descriptors.filePath(entry)) == path;
    }));
}

void Wizard_Test::Expect_Told(const QStringList& texts) const
{
    QStringList boxed = texts;
    EXPECT_EQ(m_user.Was_Shown(), boxed.replaceInStrings(QRegularExpression("^"), "\n"));
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

void Wizard_Test::Type_Custom_Smsc(const QString& number)
{
    if (!Control<QCheckBox>("_cus_smsc_chk").isChecked())
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

void Wizard_Test::Search()
{
    Click("_Search_Btn");
    ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
}

void Wizard_Test::Begin_Search(const Virtual_Phone& device)
{
    m_calls.m_gated_path = device.Path();
    Click("_Search_Btn");
    ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
}

void Wizard_Test::End_Search()
{
    m_calls.m_gate.Open();
    ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
}

void Expect_Lively(Heartbeat& heartbeat)
{
    EXPECT_LT(heartbeat.Longest_Gap(), 0.2);
    testing::Test::RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
}
