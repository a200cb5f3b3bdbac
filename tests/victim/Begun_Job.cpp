// A program that is killed in a job, for tests that go on with what it leaves: a process of its own, as one that shows
// windows has threads and is not to be forked.
//   corvane-begun-job FOLDER ID DEVICE MESSAGES NUMBER...
// The first of so many messages was sent, 1 or 2; what became of the second nobody knows.

#include "records/Job_Journal.h"

#include <QCoreApplication>
#include <csignal>

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 6)
        return 2;
    const QStringList numbers = words.mid(5);
    const auto opened = Job_Journal::Create(words.at(1), {words.at(2), {}, words.at(3), {}},
                                            [&, index = 0]() mutable -> std::optional<Job_Row> {
                                                if (index == numbers.size())
                                                    return std::nullopt;
                                                Job_Row row;
                                                row.source_row = index + 1;
                                                row.number = numbers.at(index++);
                                                row.text = QStringLiteral("Hello");
                                                return row;
                                            });
    if (opened.journal && opened.journal->Hand_Over(1, 1, 1) && opened.journal->Accepted(1, 1, 17) &&
        opened.journal->Sync() && (words.at(4) == QStringLiteral("1") || opened.journal->Hand_Over(2, 1, 1)))
        raise(SIGKILL);
    return 1; // it has not come so far
}
