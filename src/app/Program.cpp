#include "app/Program.h"

#include "device/Device_Paths.h"
#include "device/Stop_Flag.h"
#include "platform/Interface_Thread.h"
#include "platform/Settings_File.h"
#include "platform/Single_Start.h"
#include "platform/System_Log.h"
#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "texts/Texts.h"
#include "toolkit/Demo_Phone.h"
#include "toolkit/Guarded_Application.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Remembered.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "toolkit/X_Server_Focus.h"
#include "windows/main/CorvaneAppDelegate.h"

#include <QApplication>
#include <QFileInfo>
#include <QSettings>
#include <cstdio>

namespace {

void Bring_Up(QWidget& window)
{
    if (window.isMinimized())
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

// What an earlier start may have left when it was killed, and nothing else.
void Clear_Up_The_Data_Folders()
{
    for (const QString& folder : {Corvane_Data_Folder_Path, Exclusion_Folder_Path})
        Clear_Up_After_A_Kill(folder, QStringLiteral(".ZOVA"));
    Clear_Up_After_A_Kill(QFileInfo(Resource_Path).path(), QStringLiteral(".csv")); // the list that is remembered
    Settings_File(Settings_Path).Clear_Up();
}

} // namespace

Program::Program(Command_Line command_line, Single_Start* single_start)
    : m_command_line(std::move(command_line)), m_single_start(single_start)
{
    Apply_Application_Look(*qApp);
    Mend_X_Server_Focus();
    Guarded_Application::When_Something_Breaks([] { Show_MessageBox(Texts::Main::Something_Broke); });
    // The toolkit's file panels would keep a record of the folders the user visited, and wait for its lock if a killed
    // start has left it. No file can be made below this path.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    QApplication::setQuitOnLastWindowClosed(false); // the main window decides, not the last dialog that closes
}

Program::~Program()
{
    Leave();
    Finish_Workers();
    End_Shared_Instances();
    m_delegate.reset();
    m_demo_phone.reset();
    Remembered::End();
    Flush_System_Log();
}

bool Program::Start()
{
    m_delegate = std::make_unique<CorvaneAppDelegate>();
    connect(m_delegate.get(), &CorvaneAppDelegate::Exit_Wanted, this, &Program::Leave);
    if (m_single_start)
        m_single_start->When_Asked([this] { Come_To_The_Front(); });
    if (!m_delegate->awakeFromNib())
        return false;
    Remembered::Begin(Settings_File(Settings_Path));
    if (m_single_start && m_single_start->Is_Alone())
        Clear_Up_The_Data_Folders();
    if (m_command_line.demo)
        Start_Demo_Phone();
    Set_Extra_Device_Paths(m_command_line.device_paths);
    m_delegate->applicationDidFinishLaunching();
    return true;
}

int Program::Run()
{
    // The user has already left, from a box open during the start: an event loop begun now would never end.
    return m_is_leaving ? 0 : QApplication::exec();
}

void Program::Leave()
{
    if (m_is_leaving)
        return;
    m_is_leaving = true;
    if (m_single_start)
        m_single_start->Stop_Listening(); // a start from now on is a new program, once this one has ended
    Begin_Program_Exit();
    Stop_SMS_Sending_Now = 1; // after the exit has begun: a job that clears the flag then looks for the exit
    Close_Message_Boxes();
    QCoreApplication::exit(0); // ends every dialog's own event loop as well
}

void Program::Come_To_The_Front()
{
    if (m_delegate->isVisible())
        Bring_Up(*m_delegate);
    QWidget* modal = QApplication::activeModalWidget();
    if (modal)
        Bring_Up(*modal);
    // Where the desktop lets no program come to the front on its own, this at least draws attention to it.
    QApplication::alert(modal ? modal : m_delegate.get());
}

void Program::Start_Demo_Phone()
{
    m_demo_phone = std::make_unique<Demo_Phone>();
    connect(m_demo_phone.get(), &Demo_Phone::Printed, this, [](const QByteArray& line) {
        printf("%s\n", line.constData());
        fflush(stdout);
    });
    const QString path = m_demo_phone->Start(QCoreApplication::applicationDirPath() + QStringLiteral("/corvane-phone"));
    if (path.isEmpty())
        Show_MessageBox(m_demo_phone->Error());
    else
        m_command_line.device_paths.append(path);
}
