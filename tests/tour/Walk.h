#pragma once

#include "tour/Visitor.h"

#include <QDate>

// A visitor who knows the way of the tour. Every step throws Tour_Failed when something is not what it must be.
class Walk : public Visitor
{
public:
    /// The folder is where the secretary keeps files, and the program's working folder.
    Walk(const QString& picture_folder, QString folder) : Visitor(picture_folder), m_folder(std::move(folder)) {}

    void Go(const QString& phone_path);

private:
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

    void Add_Number(const QString& number);
    void Name_New_List(const QString& name);
    void Finish_List();
    /// The export dialog, the panel and the question about opening the file, which is answered with Cancel.
    void Export(const QString& window, const QString& format, const QString& file_name, const QString& picture);
    void Expect_In_File(const QString& path, const QByteArray& content);
    /// The same where a day is written down: the job's, whichever side of midnight it began on.
    void Expect_In_File(const QString& path, QByteArray (*content)(const QDate&));

    QString m_folder;
    QDate m_day_before_sending;
};
