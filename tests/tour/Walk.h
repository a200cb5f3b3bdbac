#pragma once

#include <QDate>
#include <QString>

class Visitor;

// The steps of the tour, one after the other, each through the real windows. Lives on the visitor's thread; every step
// throws Tour_Failed when a window, a box or a file is not what it must be.
class Walk
{
public:
    /// The folder is where the secretary keeps files, and the program's working folder.
    Walk(Visitor& visitor, QString folder);

    void Choose_The_Phone(const QString& phone_path);
    void Keep_Exclusion_Lists();
    void Keep_Templates();
    void Fill_The_List();
    void Edit_The_List();
    void Export_The_Contacts();
    void Send_The_List();
    void Look_At_Sent_Items();
    void Look_At_Templates();
    void Look_At_The_Rest();

private:
    void Add_Number(const QString& number);
    void Name_New_List(const QString& name);
    void Finish_List();
    void Fill_Moved_Away();
    void Apply_Moved_Away();
    void Tick_The_Options();
    void Edit_One();
    void Edit_Selected();
    void Start_Sending();
    /// The export dialog, the panel and the question about opening the file, which is answered with Cancel.
    void Export(const QString& window, const QString& format, const QString& file_name, const QString& picture);
    void Expect_In_File(const QString& path, const QByteArray& content);
    /// The same where a day is written down: the job's, whichever side of midnight it began on.
    void Expect_In_File(const QString& path, QByteArray (*content)(const QDate&));

    Visitor& m_visitor;
    QString m_folder;
    QDate m_day_before_sending;
};
