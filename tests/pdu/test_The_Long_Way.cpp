#include <random>

#include "Expected_Alphabet.h"
#include "Pdu_Test.h"
#include "Reference_Codec.h"
#include "pdu/Gsm_Alphabet.h"

// Everything the codec makes, compared with what the reference makes of it.

namespace {

// Texts for comparisons over many inputs: the same ones in every run. A test makes its own.
class Sample_Texts
{
public:
    explicit Sample_Texts(unsigned seed) : m_random(seed) {}

    // Characters people type, those of the alphabet with escapes, and some from everywhere in the basic plane.
    QString Text(qsizetype length)
    {
        static const QString typed =
            QStringLiteral("abcxyzABCXYZ 0189@|£$¥èéúùìòÇØøÅåΔ_ΦΓ^ΩΛΠΨΣΘΞÆæßÉ!\"#¤%&'()*+,-./\\:;<=>?[]{}"
                           "~¡ÄÖÑÜ§¿äöñüà€`“”‘’ŀż\n\r");
        QString text;
        for (qsizetype i = 0; i < length; ++i)
            text += Below(8) == 0 ? QChar(static_cast<char16_t>(Below(0x10000))) : typed[Below(typed.size())];
        return text;
    }

    QString Digits(qsizetype length)
    {
        QString digits;
        for (qsizetype i = 0; i < length; ++i)
            digits += QChar(static_cast<char16_t>(u'0' + Below(10)));
        return digits;
    }

    qsizetype Below(qsizetype end) { return static_cast<qsizetype>(m_random() % static_cast<unsigned>(end)); }

private:
    std::mt19937 m_random;
};

} // namespace

TEST(The_Long_Way, The_65_Rows_Of_The_Alphabet_Stand_In_Their_Order)
{
    ASSERT_EQ(Gsm_Alphabet.size(), Expected_Alphabet.size());
    for (size_t row = 0; row < Expected_Alphabet.size(); ++row) {
        EXPECT_EQ(Gsm_Alphabet[row].character, Expected_Alphabet[row].character) << "row " << row + 1;
        EXPECT_EQ(Gsm_Alphabet[row].code, Expected_Alphabet[row].code) << "row " << row + 1;
        EXPECT_EQ(Gsm_Alphabet[row].escape, Expected_Alphabet[row].escape) << "row " << row + 1;
    }
}

TEST(The_Long_Way, Every_Single_Unit_Comes_Out_The_Same)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        SCOPED_TRACE(unit);
        const QString text = QChar(static_cast<char16_t>(unit));
        bool escape = false;
        ASSERT_EQ(PDU::MapChar(text, false), Reference_Codec::MapChar(text[0].unicode(), escape));
        ASSERT_EQ(escap_char, escape ? 1 : 0);
        const QString mapped = Reference_Codec::MapTo7BitAlphabet(text);
        ASSERT_EQ(PDU::MapTo7BitAlphabet(text), mapped);
        ASSERT_EQ(PDU::EncodeUserData(mapped), Reference_Codec::EncodeUserData(mapped));
        ASSERT_EQ(PDU::EncodeUserData(text), Reference_Codec::EncodeUserData(text));
        ASSERT_EQ(PDU::EncodeUserData_16_bit(text), Reference_Codec::EncodeUserData_16_bit(text));
        for (const bool unicode : {false, true})
            ASSERT_EQ(Single(text, {.unicode = unicode}),
                      Reference_Codec::EncodePDU(text, How().to, QString(), false, unicode));
    }
}

TEST(The_Long_Way, Every_Length_Up_To_1600_Comes_Out_The_Same)
{
    Sample_Texts samples(4101);
    Reference_Codec reference;
    for (int length = 0; length <= 1600; ++length) {
        SCOPED_TRACE(length);
        const QString text = samples.Text(length);
        const QString mapped = Reference_Codec::MapTo7BitAlphabet(text);
        ASSERT_EQ(PDU::MapTo7BitAlphabet(text), mapped);
        ASSERT_EQ(PDU::EncodeUserData(mapped), Reference_Codec::EncodeUserData(mapped));
        ASSERT_EQ(PDU::EncodeUserData(text), Reference_Codec::EncodeUserData(text));
        ASSERT_EQ(PDU::EncodeUserData_16_bit(text), Reference_Codec::EncodeUserData_16_bit(text));
        const QString to = samples.Digits(samples.Below(21));
        const QString smsc = length % 3 == 0 ? QString() : QString(length % 3 - 1, u'+') + samples.Digits(12);
        const bool flash = samples.Below(2) == 1;
        for (const bool unicode : {false, true}) {
            const How how{to, smsc, flash, unicode};
            ASSERT_EQ(Single(text, how), Reference_Codec::EncodePDU(text, to, smsc, flash, unicode));
            const int parts = unicode ? (length + 65) / 66 : (length + 151) / 152;
            for (int part = 1; part <= parts; ++part)
                ASSERT_EQ(Part(text, parts, part, how),
                          reference.Encode_UDH_PDU(text, to, smsc, flash, parts, part, unicode))
                    << "part " << part;
        }
    }
}

TEST(The_Long_Way, Addresses_Of_Every_Length_And_Any_Text_Come_Out_The_Same)
{
    Sample_Texts samples(4102);
    for (qsizetype length = 0; length <= 600; ++length) {
        for (const QString& address : {samples.Digits(length), u'+' + samples.Digits(length), samples.Text(length)}) {
            ASSERT_EQ(PDU::EncodeDestinationAddress(address), Reference_Codec::EncodeAddress(address, false));
            ASSERT_EQ(PDU::EncodeSMSCAddress(address), Reference_Codec::EncodeAddress(address, true));
        }
    }
}
