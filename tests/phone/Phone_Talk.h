// What the tests of the phone say again and again.
#pragma once

#include "phone/Line_Peer.h"
#include "phone/Phone_Moods.h"

#include <string>

// "hello" to +15550001234 without a service centre; 19 octets for AT+CMGS.
inline const std::string Hello = "0011000B915155001032F40000FF05E8329BFD06";

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
inline Phone_Moods Quiet()
{
    Phone_Moods moods;
    moods.m_no_echo = true;
    return moods;
}
