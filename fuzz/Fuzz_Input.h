#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <string>

// One input of a fuzzer, taken apart from front to back into what a target needs. What is missing at its end reads as 0
// or as empty. Lives for one run of the target, on its thread.
//
// Pieces are divided by the byte 0x1E. A text is UTF-8, taken leniently, or, after a byte 0x1D, UTF-16 units, low byte
// first, so that halves of pairs occur, too.
class Fuzz_Input
{
public:
    Fuzz_Input(const std::uint8_t* data, std::size_t size);

    unsigned Octet();
    QByteArray Piece();
    QString Text();
    QByteArray Rest();

    /// The rest. Where it begins with "\x1F" "LONG", two pieces follow, and the second is repeated after the first up
    /// to so many bytes: what takes more than linear time with it runs into the fuzzer's time limit.
    QByteArray Document(qsizetype long_size = 256 * 1024);

    bool Is_At_End() const { return m_at == m_bytes.size(); }

    static QString Text_Of(const QByteArray& bytes);

private:
    QByteArray m_bytes;
    qsizetype m_at = 0;
};

/// Ends the run as a finding, with the condition and its place, when the condition does not hold.
void Must(bool holds, const char* condition, const char* file, int line);

#define MUST(condition) Must(static_cast<bool>(condition), #condition, __FILE__, __LINE__)

/// Whether the bytes are UTF-8 from the first to the last.
bool Is_Utf8(const std::string& bytes);

/// The text with every half of a pair as U+FFFD, which is how it leaves the program.
QString With_Whole_Pairs(const QString& text);
