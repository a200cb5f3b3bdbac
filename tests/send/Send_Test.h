#pragma once

#include "phone/Virtual_Phone.h"
#include "support/Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <gmock/gmock.h>

/// What a run of the program left.
struct Ended_Run
{
    int status = -1;
    QList<QJsonObject> lines; ///< of standard output, with --json
    std::string output;
    std::string errors;

    /// The lines of one kind, in their order.
    QList<QJsonObject> Of(const char* event) const;
    /// The outcomes by their rows, "?" where a row has not exactly one.
    std::vector<std::string> Outcomes() const;
    QJsonObject Outcome(int row) const;
};

/// The program, running.
class Running_Send
{
public:
    Running_Send(const QStringList& arguments, const QProcessEnvironment& environment, const QByteArray& input = {});
    ~Running_Send();

    /// Whether a line of this kind comes within twenty seconds.
    bool Says(const char* event);
    void Send_Signal(int number) const;
    Ended_Run Wait();

private:
    QProcess m_process;
    QByteArray m_output;
};

/// Runs corvane-send against the virtual phone, with a data folder of its own, at a quick pace and with --json.
class Send_Test : public testing::Test
{
protected:
    Send_Test();

    /// Arguments that every sending run has.
    QStringList With_Device(const QStringList& arguments) const;
    Ended_Run Run(const QStringList& arguments, const QByteArray& input = {}) const;
    Ended_Run Run_With_Device(const QStringList& arguments) const { return Run(With_Device(arguments)); }
    std::unique_ptr<Running_Send> Start(const QStringList& arguments) const;

    /// "One", "Two" and so on to the numbers of a list of so many.
    QStringList To_So_Many(int count) const;

    QString Write(const QString& name, const QByteArray& bytes) const;
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QString Jobs_Folder() const { return Path(QStringLiteral("corvane/Resources/Jobs")); }
    QStringList Unfinished() const;

    /// Whether it comes true within twenty seconds.
    static bool Soon(const std::function<bool()>& is_true);
    std::size_t Submissions_Heard() const;
    std::vector<std::string> Texts() const;
    void Cms(std::map<int, int> errors);

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    Virtual_Phone m_phone;
};
