// What the tests of the phone say again and again.
#pragma once

#include "phone/Line_Peer.h"
#include "phone/Named_Moods.h"
#include "phone/Virtual_Phone.h"

#include <string>

// "hello" to +15550001234 without a service centre; 19 octets for AT+CMGS.
inline const std::string Hello = "0011000B915155001032F40000FF05E8329BFD06";

inline const std::string Ok = "\r\nOK\r\n";
inline const std::string Error = "\r\nERROR\r\n";
inline const std::string Prompt = "\r\n> ";

inline std::string With_Ok(const std::string& text)
{
    return "\r\n" + text + "\r\n" + Ok;
}
inline std::string Cms_Error(int number)
{
    return "\r\n+CMS ERROR: " + std::to_string(number) + "\r\n";
}

// A phone, and the program that has its line open: auto [phone, peer] = Call();
struct Call
{
    explicit Call(const Phone_Moods& moods = {}) : m_phone(moods) {}

    Virtual_Phone m_phone;
    Line_Peer m_peer{m_phone.Path()};
};

// Sends a message in PDU mode and hears the answer.
inline std::string Send_Hello(Line_Peer& peer)
{
    peer.Says("AT+CMGS=19\r\n");
    peer.Hears("> ");
    peer.Says(Hello);
    peer.Says("\x1A\r\n");
    return peer.Hears("OK\r\n");
}

// Without echo, so that answers stand alone.
inline const Phone_Moods Quiet{.m_no_echo = true};
