#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// The virtual phone of --demo: corvane-phone, started as a child of the program. It ends when the program does, however
// that happens. Owned by the program's start; interface thread.
class Demo_Phone : public QObject
{
    Q_OBJECT

public:
    explicit Demo_Phone(QObject* parent = nullptr);
    ~Demo_Phone() override;

    /// Starts the phone program and waits, at most five seconds, for the path of its line. Returns the path, or an
    /// empty text if there is none; Error() then says why.
    QString Start(const QString& program);
    QString Path() const { return m_path; }
    QString Error() const { return m_error; }

Q_SIGNALS:
    /// One line that the phone printed: a message or part of one, as JSON.
    void Printed(const QByteArray& line);

private:
    void Read_Lines();

    QTemporaryDir m_folder; // holds the link to the phone's line
    QProcess m_process;
    QString m_path;
    QString m_error;
};
