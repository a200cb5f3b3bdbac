#pragma once

#include <random>

#include <QString>

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
