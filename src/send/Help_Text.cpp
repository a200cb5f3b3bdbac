#include "send/Help_Text.h"

namespace {

constexpr char Text[] = R"TEXT(Usage: corvane-send [options]
Sends a text message to many people through your own GSM phone or modem, without a window.

Recipients
  --to NUMBER            one recipient; may be given again. A leading + is kept as 00
  --numbers FILE         a text or RTF file, one number a line; "-" reads standard input
  --table FILE           CSV, TSV, XLSX, ODS or vCard; its first row names the columns (of contacts they are FN,
                         N, First name, Last name, TEL, TEL 2, TEL 3, ORG and EMAIL)
    --number-column NAME the column of the numbers; by default the one that holds some, an error if several do
    --sheet NAME         of a spreadsheet; by default its first
    --encoding NAME  --delimiter CHARACTER
                         where the guess would be wrong; --dry-run says what was guessed
  --country CC           two letters: national numbers get that country's code, in exclusions as well. By default numbers
                         stay as written
Message
  --message TEXT         the message, up to 1,600 characters
  --message-file FILE    the same from a UTF-8 file, whose last line end does not count
                         {{Column}} and {{Column|fallback}} stand for a recipient's own values, case and blanks in the
                         name ignored. The fallback, which may be nothing, is taken where there is no such column or its
                         field is blank; nothing is sent where there is no fallback. {{{{ is a literal {{
  --alphabet auto|gsm|unicode
                         auto (the default): 7-bit where the whole text fits the standard's alphabet and its extension,
                         else Unicode. gsm writes "?" for what has no place in it
  --flash                shows at once and is not kept
Leaving out
  --skip-duplicates      each number once
  --exclude FILE         numbers that get nothing, one a line; may be given again
Device
  --device PATH          the modem. Without it, the one modem that answers; it is an error if several do. Given again, the
                         one of these that answers
  --service-centre NUMBER
                         in place of the SIM card's own
  --doctor               look why no modem shows or can send, and say what helps: ports, rights, other programs, SIM card,
                         network, signal, service centre. Of those that --device names, or of all. Nothing is sent and no
                         PIN is tried
Manner
  --confirm              each part is judged by the device's own answer, and kept in a journal; the default
  --fixed-waits          the waits of the desktop program's default manner; nothing is judged, and no journal is kept.
                         With it, --alphabet is gsm (the default) or unicode
  --reports[=SECONDS]    ask for delivery reports, and wait that long for them at the end (default 60)
  --batch N --pause SECONDS
                         a pause after every N messages
  --dry-run              say what would be sent, row by row; no device is opened
  --hand-over DIR        write the planned texts for another sender: DIR/list.csv, and in DIR/spool a file for each
                         message as smstools3 reads it; no device is opened
Jobs
  --journal DIR          where journals are kept; the default is Jobs in the data folder
  --no-journal           keep none: a job that breaks off cannot be gone on with
  --resume JOB           go on with a job that broke off. Rows that may have been sent are left alone
  --again-unknown        send those again as well
  --list-jobs            unfinished jobs, one a line
  --hold SECONDS         how long a job that is held (PIN, no network, a full memory, the device gone) waits before the
                         rest is left untried (default 600)
  --keep                 keep the journal of a job that has ended
Output
  --json                 one JSON object a line on standard output; without it, words, and a progress line on a terminal
  --version              show the version
  --help                 show this text

Outcomes
  sent        the network acknowledged each part
  refused     the device or the network said why
  unknown     it may have been sent; never sent again unasked
  skipped     duplicate, excluded, invalid-number, empty-field, unknown-field, too-long or
              wrong-columns (more fields than the first row, or text after a closing quote)
  not-tried   the job ended before it
  written     handed to the device with --fixed-waits; nobody knows more

Exit status
  0  each recipient was sent (or written), or skipped as asked
  1  one was refused, unknown, not tried, or could not be used
  2  the arguments or the input cannot be used; nothing was sent
  3  no device can send; nothing was sent
  4  stopped
With --doctor it is 0 when a device could send, 3 when none could, and 4 when it was stopped.
Messages about errors go to standard error, one line: "corvane-send: what (why)".

Signals
  SIGINT or SIGTERM once: no further message begins, and the answer under way is waited for. Twice: the program ends at
  once, and the journal names the part that may have been sent.

Environment
  CORVANE_PACE    divides every wait and every time-out; 1 is real time
  XDG_DATA_HOME   where the data folder is, ~/.local/share by default

Examples
  corvane-send --to +447700900100 --message "The heating has failed."
  corvane-send --numbers members.txt --exclude stop.txt --skip-duplicates --message-file text.txt --json
  corvane-send --table members.csv --country GB --message "Dear {{First name|member}}, ..." --dry-run
  corvane-send --resume 20261121-101500-3f9a
  corvane-send --doctor)TEXT";

} // namespace

QString Help_Text()
{
    return QString::fromUtf8(Text);
}
