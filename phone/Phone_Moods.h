#pragma once

#include <map>
#include <string>

/// How a virtual phone behaves. Plain values: set them before the phone starts (constructor) or while it runs
/// (Virtual_Phone::Set_Moods); the phone copies them under its lock. A fresh Phone_Moods is a well-mannered modem that
/// echoes. "The k-th message" counts the AT+CMGS submissions that the phone accepted, from 1, since the start or the
/// last Forget.
struct Phone_Moods
{
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
        false;                 ///< +GMI, +GMM, +CGSN and +GMR answer "Undefined"; the other spellings answer properly
    int m_battery_status = 0;  ///< +CBC <bcs>: 0 on battery, 1 charging, 2 no battery, 3 power fault
    int m_battery_charge = 85; ///< +CBC <bcl>, percent
    int m_signal = 20;         ///< +CSQ <rssi>, 0 to 31 or 99

    // How it says things.
    bool m_no_prompt = false;            ///< AT+CMGS gets no prompt; the body is taken all the same
    int m_late_prompt_ms = 0;            ///< the prompt comes this much later
    bool m_prompt_without_blank = false; ///< "\r\n>" and no blank after it
    bool m_split_answers = false;        ///< every byte goes out in a write of its own
    int m_answer_delay_ms = 0;           ///< every answer (not the echo, not the prompt) comes this much later
    bool m_one_answer_behind = false;    ///< keeps every answer back until it has heard what comes next
    bool m_unsolicited = false;          ///< RING, +CMTI and +CREG in turn after each answer
    bool m_cr_only = false;              ///< line ends are a CR alone
    bool m_garbage = false;              ///< every answer is noise: control characters and invalid UTF-8
    bool m_never_stops_talking = false;  ///< says status lines without end while anyone has the line open

    // How it fails.
    std::map<std::string, std::string> m_error_for; ///< command line -> text of the "ERROR: text" it gets
    std::map<int, int> m_cms_error_at;              ///< k -> n of the "+CMS ERROR: n" that the k-th message gets
    int m_hang_up_at = 0;                           ///< hangs up when the k-th AT+CMGS comes; 0 never
    int m_hang_up_in_body_at = 0;                   ///< hangs up half way through the k-th message's PDU; 0 never
    long m_stop_reading_after = -1;                 ///< takes this many bytes and no more; -1 no limit
    int m_stop_reading_at = 0;                      ///< prompts for the k-th message and takes no byte of it; 0 never
};
