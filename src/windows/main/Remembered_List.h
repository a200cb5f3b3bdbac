#pragma once

#include "platform/Settings_File.h"

#include <QObject>

class Import_Strip;
class Main_Window;
class QAction;
class Window_Work;

// The list of recipients from one start to the next, for whoever wants that: its numbers, messages and fields in a file
// of the user's alone. It is written behind the window when the program is left, and read when it has started. Part of
// the main window; interface thread.
class Remembered_List : public QObject
{
    Q_OBJECT

public:
    /// All outlive it.
    struct Parts
    {
        Main_Window& window;
        Window_Work& work;
        Import_Strip& strip; ///< says what was read
    };

    Remembered_List(const Parts& parts, const Settings_File& settings, QString path);

    /// For a menu; not chosen at first. Who chooses otherwise leaves no file.
    QAction& Choice() { return *m_choice; }

private:
    void Choose(bool is_wanted);
    void Load();
    void Keep();

    Parts m_parts;
    Settings_File m_settings;
    QString m_path;
    QAction* m_choice;
    bool m_is_unread = false; // there is a file, and it could not be read
};
