#pragma once

#include <climits>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// What becomes of certain messages: of the k-th, or of those for certain numbers. One row says one thing.
struct Message_Manner
{
    enum class Kind
    {
        Refused,             ///< the answer is m_text, and nothing was sent
        Refused_At_Once,     ///< m_text comes in place of the prompt
        Refused_Though_Sent, ///< the answer is m_text, but the network has the message
        Delayed,             ///< whatever the result is, it comes m_seconds later
        At_The_Next_Command, ///< the same when the next command that begins with m_text was heard, before its answer
        Behind_The_Next_Prompt,
        Behind_The_Next_Message, ///< in front of that one's own result
        Without_Result,          ///< sent, and nothing is ever said about it
        Without_Reference,       ///< sent, and answered with OK alone
        Second_Prompt            ///< Ctrl-Z gets another prompt and then ERROR; nothing was sent
    };
    Kind m_kind = Kind::Refused;
    int m_from = 1;
    int m_to = INT_MAX;       ///< inclusive
    std::string m_number_end; ///< numbers that end so; at a prompt in PDU mode the number is not known yet
    std::string m_text;       ///< a result line: "+CMS ERROR: 500", "ERROR", "COMMAND NOT SUPPORT", ...
    double m_seconds = 0;     ///< of Delayed
};

/// How a virtual phone behaves. Plain values: set them before the phone starts (constructor) or while it runs
/// (Virtual_Phone::Set_Moods); the phone copies them under its lock. A fresh Phone_Moods is a well-mannered modem that
/// echoes. "The k-th message" counts the AT+CMGS submissions that the phone accepted, from 1, since the start or the
/// last Forget. Waits in seconds are divided by m_pace, those in milliseconds are as they are.
struct Phone_Moods
{
    double m_pace = 1; ///< above 0

    // What it says at all.
    bool m_no_echo = false;   ///< starts with echo off, as after ATE0; ATE1 still turns it on
    bool m_echo_only = false; ///< echoes every command, answers none
    bool m_silent = false;    ///< hears, and neither echoes nor answers

    // What it can do.
    bool m_pdu_only = false;       ///< offers and takes +CMGF 0 alone
    bool m_text_only = false;      ///< offers, starts in and takes +CMGF 1 alone
    bool m_no_sms_sending = false; ///< AT+CMGS=? is answered with ERROR
    std::string m_charsets = "\"GSM\",\"IRA\",\"UCS2\",\"HEX\",\"8859-1\""; ///< the list of +CSCS=?

    // Its service centre.
    std::string m_smsc = "+15550009999";
    bool m_no_smsc = false;      ///< none stored: +CSCA? answers "", a message without a centre gets +CMS ERROR: 330
    bool m_smsc_in_ucs2 = false; ///< +CSCA? answers the number as hexadecimal UCS2
    bool m_smsc_not_supported = false; ///< +CSCA? answers COMMAND NOT SUPPORT

    // Its identity and state.
    bool m_undefined_identity =
        false;                  ///< +GMI, +GMM, +CGSN and +GMR answer "Undefined"; the other spellings answer properly
    int m_battery_status = 0;   ///< +CBC <bcs>: 0 on battery, 1 charging, 2 no battery, 3 power fault
    int m_battery_charge = 85;  ///< +CBC <bcl>, percent
    int m_signal = 20;          ///< +CSQ <rssi>, 0 to 31 or 99
    std::string m_pin;          ///< the SIM asks for this PIN; empty for none
    bool m_puk_needed = false;  ///< the SIM asks for its PUK
    bool m_memory_full = false; ///< the SIM's memory is full: +CMS ERROR: 322 until AT+CMGD has made room

    // Its network, which is lost at the start or at a message and may come back.
    bool m_no_network = false;
    int m_network_lost_at = 0;               ///< from the k-th AT+CMGS on; 0 never
    int m_network_back_after_queries = 0;    ///< of +CREG, +CGREG and +CEREG; 0 not by queries
    double m_network_back_after_seconds = 0; ///< 0 not by time

    // How it says things.
    bool m_no_prompt = false;                 ///< AT+CMGS gets no prompt; the body is taken all the same
    int m_late_prompt_ms = 0;                 ///< the prompt comes this much later
    bool m_prompt_without_blank = false;      ///< "\r\n>" and no blank after it
    bool m_prompt_with_line_end = false;      ///< "\r\n>\r\n"
    bool m_split_answers = false;             ///< every byte goes out in a write of its own
    int m_byte_gap_ms = 0;                    ///< so, and this far apart
    int m_answer_delay_ms = 0;                ///< every answer (not the echo, not the prompt) comes this much later
    bool m_one_answer_behind = false;         ///< keeps every answer back until it has heard what comes next
    bool m_unsolicited = false;               ///< RING, +CMTI and +CREG in turn after each answer
    std::vector<std::string> m_between_lines; ///< in turn before every line of an answer and the prompt; see
                                              ///< Unsolicited_Lines
    bool m_error_words = false;               ///< errors in words, as after +CMEE=2
    bool m_command_not_support = false;       ///< unknown commands get COMMAND NOT SUPPORT
    bool m_cpin_without_ok = false;           ///< the answer to +CPIN? ends without OK
    bool m_cr_only = false;                   ///< line ends are a CR alone
    bool m_garbage = false;                   ///< every answer is noise: control characters and invalid UTF-8
    bool m_never_stops_talking = false;       ///< says status lines without end while anyone has the line open

    // How the network reports deliveries, where a message asks for it (TP-SRR) and +CNMI lets it through.
    bool m_no_reports = false;
    double m_report_after_seconds = 1;
    bool m_reports_out_of_order = false; ///< each second one overtakes the one before it
    bool m_reports_twice = false;
    bool m_stray_reports = false;                             ///< each comes behind one whose reference no message has
    std::vector<std::pair<std::string, int>> m_report_status; ///< end of a number -> TP-ST. Where several rows fit, one
                                                              ///< report each, in order; where none does, 0
    bool m_reports_in_memory_alone = false; ///< +CNMI takes <ds> 0 and 2 alone: "+CDSI: "SR",n" and no +CDS
    bool m_report_comma = false;            ///< "+CDS: ,<length>"
    int m_first_reference = 0;              ///< TP-MR of its first message, 0 to 255

    // How it fails.
    std::vector<Message_Manner> m_message_manners;  ///< of Delayed and of the others, the first that fits is followed
    std::map<std::string, std::string> m_error_for; ///< command line -> text of the "ERROR: text" it gets
    std::map<int, int> m_cms_error_at;              ///< k -> n of the "+CMS ERROR: n" that the k-th message gets
    int m_hang_up_at = 0;                           ///< hangs up when the k-th AT+CMGS comes; 0 never
    int m_hang_up_in_body_at = 0;                   ///< hangs up half way through the k-th message's PDU; 0 never
    long m_hang_up_after_heard = -1;                ///< hangs up once this many bytes have come; -1 never
    long m_hang_up_after_said = -1;                 ///< hangs up once this many bytes went out and were read; -1 never
    long m_stop_reading_after = -1;                 ///< takes this many bytes and no more; -1 no limit
    int m_stop_reading_at = 0;                      ///< prompts for the k-th message and takes no byte of it; 0 never
};
