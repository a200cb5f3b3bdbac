#include "records/Job_Trouble.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Job_Trouble)
};

} // namespace

QString Job_Trouble_Sentence(Job_Trouble trouble)
{
    switch (trouble) {
    case Job_Trouble::None:
        break;
    case Job_Trouble::Missing:
        return Words::tr("there is no such job");
    case Job_Trouble::Unreadable:
        return Words::tr("its files can not be read or written to");
    case Job_Trouble::Not_A_Journal:
        return Words::tr("the file is not the journal of a job");
    case Job_Trouble::Newer:
        return Words::tr("its journal was written by a newer version of the program");
    case Job_Trouble::Damaged:
        return Words::tr("its journal is damaged, so that it is unknown what was sent");
    case Job_Trouble::List_Missing:
        return Words::tr("the list beside its journal is gone");
    case Job_Trouble::List_Changed:
        return Words::tr("the list beside its journal is not the one that the job began with");
    case Job_Trouble::In_Use:
        return Words::tr("another program works on it");
    case Job_Trouble::Exists:
        return Words::tr("a job of this name exists already");
    case Job_Trouble::Too_Large:
        return Words::tr("a job can not have so many messages");
    case Job_Trouble::No_Room:
        return Words::tr("the disk has no room for its journal");
    case Job_Trouble::Not_Written:
        return Words::tr("its journal can not be written");
    }
    return {};
}
