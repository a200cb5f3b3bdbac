#pragma once

#include "device/Device_Cause.h"
#include "doctor/Finding.h"
#include "plan/Row_Preview.h"
#include "records/Job_Shelf.h"
#include "send/Table_Input.h"

#include <QList>
#include <memory>
#include <optional>

class Output;

/// A job as its first line tells it.
struct Job_Facts
{
    QString id;
    bool fixed_waits = false;
    int recipients = 0;
    int parts = 0;      ///< of those that are to be sent
    qint64 seconds = 0; ///< how long it will take, at a guess
};

/// What became of a row.
struct Row_End
{
    int row = 1;
    QString number;
    QString outcome; ///< sent, refused, unknown, skipped, not-tried or written
    int parts = 1;
    int parts_sent = 0;
    QList<int> references;
    std::optional<Device_Cause> cause;
    QString reason;
    int tries = 0;
    bool is_earlier = false; ///< settled before the job was gone on with
};

struct Plan_Facts
{
    int recipients = 0;
    int send = 0;
    qint64 parts = 0;
    int unicode = 0; ///< of those that are to be sent
    qint64 seconds = 0;
    std::optional<Table_Told> table; ///< how the table was read, if there is one
};

struct Report_Facts
{
    int row = 1;
    QString number;
    int part = 1;
    int reference = 0;
    int status = 0; ///< TP-ST
    QString meaning;
};

struct End_Facts
{
    int sent = 0;
    int written = 0;
    int refused = 0;
    int unknown = 0;
    int skipped = 0;
    int not_tried = 0;
    qint64 seconds = 0;
    bool fixed_waits = false;
};

// Writes what happens to standard output, each as one line. One thread at a time.
class Printer
{
public:
    virtual ~Printer() = default;

    virtual void Job(const Job_Facts& job) = 0;
    virtual void Row(const Planned_Row& row, const Row_Preview& preview) = 0;
    virtual void Plan(const Plan_Facts& plan) = 0;
    virtual void Ended(const Row_End& end) = 0;
    virtual void Held(const QString& reason) = 0;
    virtual void Goes_On() = 0;
    virtual void Report(const Report_Facts& report) = 0;
    virtual void End(const End_Facts& end) = 0;
    virtual void Unfinished(const Unfinished_Job& job) = 0;
    virtual void Found(const Finding& finding) = 0;
    /// The end of a look at devices: the paths of those that could send.
    virtual void Looked(const QStringList& ready) = 0;
    /// What is being done, for a person who watches.
    virtual void Progress(const QString& text) = 0;
};

/// Prints JSON or words. The output outlives it.
std::unique_ptr<Printer> Make_Printer(bool json, Output& output);
