#include "records/Job_Trouble.h"

#include <QCoreApplication>

QString Job_Trouble_Sentence(Job_Trouble trouble)
{
    const auto told = [](const char* text) { return QCoreApplication::translate("Job_Trouble", text); };
    switch (trouble) {
    case Job_Trouble::None:
        break;
    case Job_Trouble::Missing:
        return told("there is no such job");
    case Job_Trouble::Unreadable:
        return told("its files can not be read or written to");
    case Job_Trouble::Not_A_Journal:
        return told("the file is not the journal of a job");
    case Job_Trouble::Newer:
        return told("its journal was written by a newer version of the program");
    case Job_Trouble::Damaged:
        return told("its journal is damaged, so that it is unknown what was sent");
    case Job_Trouble::List_Missing:
        return told("the list beside its journal is gone");
    case Job_Trouble::List_Changed:
        return told("the list beside its journal is not the one that the job began with");
    case Job_Trouble::In_Use:
        return told("another program works on it");
    case Job_Trouble::Exists:
        return told("a job of this name exists already");
    case Job_Trouble::Too_Large:
        return told("a job can not have so many messages");
    case Job_Trouble::No_Room:
        return told("the disk has no room for its journal");
    case Job_Trouble::Not_Written:
        return told("its journal can not be written");
    }
    return {};
}
