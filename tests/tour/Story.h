#pragma once

#include "tour/Told.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

// Who is written to in the tour and what, and what must come of it: the choir's secretary of every picture. Everything
// that is expected is written down here a second time, octet by octet, and not asked of the program.
namespace Story {

struct Message
{
    QString number;
    QString text;

    bool operator==(const Message&) const = default;
};

/// The files that the secretary has at hand: the members and those who moved away.
inline const QString Members_File = "members.txt";
inline const QString Moved_Away_File = "moved-away.txt";
void Write_Files(const QString& folder);

inline const QString Rehearsal =
    Told("Choir practice moves to Thursday at 7 pm, same room. Please bring the blue folder!",
         "Die Chorprobe ist am Donnerstag um 19 Uhr im selben Raum. Bitte bringt die blaue Mappe mit!");
inline const QString Thanks =
    Told("Thank you for singing with us! The next rehearsal is on Monday at the usual time.",
         "Vielen Dank, dass ihr mitgesungen habt! Die Probe am Montag beginnt zur gewohnten Zeit.");
inline const QString About_The_Concert =
    Told(" The concert is on Saturday the 12th: doors open at 6, we sing at 7:30, and there "
         "is soup afterwards for everyone who helps with the chairs.",
         " Das Konzert ist am Samstag, dem 12.: Einlass ab 18 Uhr, Beginn um 19.30 Uhr, und danach "
         "gibt es Suppe mit allen, die beim Aufbau helfen.");
inline const QString To_The_Soloists =
    Told("You sing a solo on Saturday.\nPlease come half an hour early to try the microphone.",
         "Am Samstag singst du ein Solo.\nKomm bitte eine halbe Stunde eher zur Mikrofonprobe.");
inline const QString Not_To_Be_Sent = Told("Notes for next week: new scores, chairs, key of the hall.",
                                           "Notizen zur neuen Woche: Noten, Sitzordnung, Saal.");

/// Numbers as they stand in the list.
inline const QString First_Member = "00447700900123";
inline const QString Moved_Member = "07700900222";
inline const QString Concert_Helper = "07700900789";
inline const QStringList Soloists = {"07700900654", "07700900987"};

inline const QString Moved_Away = Told("Moved away", "Verzogen");
inline const QString Committee = Told("Committee", "Vorstand");

/// What the phone must have received at the end, in its order.
std::vector<Message> Messages();

/// A spreadsheet of three hundred people, of whom one has no number and one no name; what is written to them, and what
/// the phone must have received of it.
inline const QString People_File = "people.xlsx";
inline const QString To_People = Told("Dear {{Name}}, the choir sings on Saturday. Your seat is {{Seat}}.",
                                      "Hallo {{Name}}, der Chor singt am Samstag. Dein Platz ist {{Seat}}.");
std::vector<Message> Messages_To_People();

/// Numbers of a second list, which goes out message by message while its phone has its troubles; and what the phone
/// must have received of it.
inline const QString Refused_Member = "07700900456";
inline const QString Silent_Member = "07700900654";
inline const QString Killed_Member = "07700900987";
inline const QStringList Second_List = {First_Member,  Refused_Member, Concert_Helper,
                                        Silent_Member, Killed_Member,  "07700900321"};
inline const QString With_A_Price = Told("Tickets are 10 € [students 5 €]", "Karten kosten 10 € [Studenten 5 €]");
std::vector<Message> Messages_Of_Second_List();

/// What the files must hold, octet by octet; date is the day of the send job.
QByteArray Contacts_Export();
QByteArray Sent_Items(const QDate& date);
QByteArray Sent_Items_Page(const QDate& date);
QByteArray Templates();
QByteArray Templates_Export();

} // namespace Story
