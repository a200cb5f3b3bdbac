#pragma once

#include <string>
#include <vector>

// The peer that the encoder is measured against: libgammu, taking the road its own examples take from a text and a
// number to the hexadecimal line of AT+CMGS. Kept behind plain types, so that the library's headers meet no others.

enum class Gammu_Alphabet
{
    Seven_Bit,
    Ucs2
};

/// The frame of one message, its service centre included, as hexadecimal text. The buffer is the library's and holds
/// until the next call.
const char* Gammu_Single(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet);

/// The same for a message whose text and number are in the library's own form already; see Gammu_Prepared.
class Gammu_Prepared
{
public:
    Gammu_Prepared(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet);
    ~Gammu_Prepared();
    Gammu_Prepared(const Gammu_Prepared&) = delete;
    Gammu_Prepared& operator=(const Gammu_Prepared&) = delete;

    const char* Encode();

private:
    struct Message;
    Message* m_message;
};

/// Encodes every part of a long message; returns how many there are.
int Gammu_Parts(const std::string& utf8, const char* number, const char* centre, Gammu_Alphabet alphabet);

/// Keeps the parts' hexadecimal lines, for looking at what is measured.
std::vector<std::string> Gammu_Part_Lines(const std::string& utf8, const char* number, const char* centre,
                                          Gammu_Alphabet alphabet);
