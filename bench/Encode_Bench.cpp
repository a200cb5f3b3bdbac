#include "Gammu_Encoder.h"
#include "pdu/PDU.h"

#include <benchmark/benchmark.h>
#include <cstdio>

// The encoder beside libgammu: the same messages to the same number through the same centre, one thread.

namespace {

constexpr char Number[] = "+447700900123";
constexpr char Centre[] = "+447700900999";
constexpr int Ucs2_Part = 66;
constexpr int Seven_Bit_Part = 152;

// Letters, digits and signs of the basic table, in no order that a branch could learn.
QString Seven_Bit_Text(int length)
{
    static const QString letters =
        QStringLiteral("abcdefghijklmnopqrstuvwxyz ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789 .,?!:;-+*()/&%#");
    QString text;
    quint32 random = 12345;
    for (int i = 0; i < length; ++i) {
        random = random * 1664525U + 1013904223U;
        text += letters[static_cast<qsizetype>(random >> 16) % letters.size()];
    }
    return text;
}

QString Cyrillic_Text(int length)
{
    QString text;
    quint32 random = 12345;
    for (int i = 0; i < length; ++i) {
        random = random * 1664525U + 1013904223U;
        text += QChar(static_cast<char16_t>(0x0410 + (random >> 16) % 64));
    }
    return text;
}

QString Text(Gammu_Alphabet alphabet, int length)
{
    return alphabet == Gammu_Alphabet::Ucs2 ? Cyrillic_Text(length) : Seven_Bit_Text(length);
}

void Corvane_Single(benchmark::State& state, Gammu_Alphabet alphabet, int length)
{
    const PDU encoder;
    const QString text = Text(alphabet, length);
    const QString number = QLatin1String(Number);
    const QString centre = QLatin1String(Centre);
    for ([[maybe_unused]] auto step : state) {
        const QString frame = encoder.EncodePDU(text, number, centre, 0, true, false, alphabet == Gammu_Alphabet::Ucs2);
        benchmark::DoNotOptimize(frame.constData());
    }
}

void Peer_Single(benchmark::State& state, Gammu_Alphabet alphabet, int length)
{
    const std::string text = Text(alphabet, length).toStdString();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Gammu_Single(text, Number, Centre, alphabet));
}

void Peer_Prepared(benchmark::State& state, Gammu_Alphabet alphabet, int length)
{
    Gammu_Prepared message(Text(alphabet, length).toStdString(), Number, Centre, alphabet);
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(message.Encode());
}

std::vector<QString> Corvane_Part_Lines(const PDU& encoder, const QString& text, const QString& number,
                                        const QString& centre, Gammu_Alphabet alphabet)
{
    const bool is_unicode = alphabet == Gammu_Alphabet::Ucs2;
    const int in_part = is_unicode ? Ucs2_Part : Seven_Bit_Part;
    const int parts = static_cast<int>((text.size() + in_part - 1) / in_part);
    std::vector<QString> lines;
    lines.reserve(static_cast<std::size_t>(parts));
    for (int part = 1; part <= parts; ++part)
        lines.push_back(encoder.Encode_UDH_PDU(text, number, centre, 0, true, false, parts, part, is_unicode));
    return lines;
}

void Corvane_Parts(benchmark::State& state, Gammu_Alphabet alphabet, int length)
{
    const PDU encoder;
    const QString text = Text(alphabet, length);
    const QString number = QLatin1String(Number);
    const QString centre = QLatin1String(Centre);
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Corvane_Part_Lines(encoder, text, number, centre, alphabet).data());
}

void Peer_Parts(benchmark::State& state, Gammu_Alphabet alphabet, int length)
{
    const std::string text = Text(alphabet, length).toStdString();
    for ([[maybe_unused]] auto step : state)
        benchmark::DoNotOptimize(Gammu_Parts(text, Number, Centre, alphabet));
}

// What both make of the same message, for eyes and for the check of the bench script.
int Show_Frames()
{
    const PDU encoder;
    const QString number = QLatin1String(Number);
    const QString centre = QLatin1String(Centre);
    for (const auto& [alphabet, length] : {std::pair(Gammu_Alphabet::Seven_Bit, 160), {Gammu_Alphabet::Ucs2, 70}}) {
        const QString text = Text(alphabet, length);
        printf("%s\n",
               qPrintable(encoder.EncodePDU(text, number, centre, 0, true, false, alphabet == Gammu_Alphabet::Ucs2)));
        printf("%s\n", Gammu_Single(text.toStdString(), Number, Centre, alphabet));
    }
    const QString text = Text(Gammu_Alphabet::Seven_Bit, 1600);
    for (const auto& line : Corvane_Part_Lines(encoder, text, number, centre, Gammu_Alphabet::Seven_Bit))
        printf("%s\n", qPrintable(line));
    for (const auto& line : Gammu_Part_Lines(text.toStdString(), Number, Centre, Gammu_Alphabet::Seven_Bit))
        printf("%s\n", line.c_str());
    return 0;
}

} // namespace

BENCHMARK_CAPTURE(Corvane_Single, seven_bit, Gammu_Alphabet::Seven_Bit, 160);
BENCHMARK_CAPTURE(Peer_Single, seven_bit, Gammu_Alphabet::Seven_Bit, 160);
BENCHMARK_CAPTURE(Peer_Prepared, seven_bit, Gammu_Alphabet::Seven_Bit, 160);
BENCHMARK_CAPTURE(Corvane_Single, ucs2, Gammu_Alphabet::Ucs2, 70);
BENCHMARK_CAPTURE(Peer_Single, ucs2, Gammu_Alphabet::Ucs2, 70);
BENCHMARK_CAPTURE(Peer_Prepared, ucs2, Gammu_Alphabet::Ucs2, 70);
BENCHMARK_CAPTURE(Corvane_Parts, seven_bit, Gammu_Alphabet::Seven_Bit, 1600);
BENCHMARK_CAPTURE(Peer_Parts, seven_bit, Gammu_Alphabet::Seven_Bit, 1600);
BENCHMARK_CAPTURE(Corvane_Parts, ucs2, Gammu_Alphabet::Ucs2, 1600);
BENCHMARK_CAPTURE(Peer_Parts, ucs2, Gammu_Alphabet::Ucs2, 1600);

int main(int argument_count, char** arguments)
{
    if (argument_count == 2 && QLatin1String(arguments[1]) == QLatin1String("--show"))
        return Show_Frames();
    benchmark::Initialize(&argument_count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
