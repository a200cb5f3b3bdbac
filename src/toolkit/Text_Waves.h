#pragma once

#include <QFont>
#include <QString>
#include <vector>

class QColor;
class QPainter;
class QPixmap;
class QPointF;
class QRect;
class QTextBlock;

/// A stretch of a text, in UTF-16 units.
struct Text_Stretch
{
    int at = 0;
    int length = 0;

    bool operator==(const Text_Stretch&) const = default;
    bool operator<(const Text_Stretch& other) const
    {
        return at < other.at || (at == other.at && length < other.length);
    }
};

/// In the order of their text, none reaching into the next one.
using Text_Stretches = std::vector<Text_Stretch>;

// Waves under stretches of a text, painted over it: as a part of its layout each stretch would be shaped by itself, at
// every key. Part of a text area, which asks for those of its visible blocks in their order; interface thread.
class Text_Waves
{
public:
    /// The stretches after so many units of the text at a place were replaced by others: those behind it move, and
    /// those that it touches are gone.
    static void Follow_Change(Text_Stretches& stretches, int at, int removed, int added);

    /// The toolkit's wave for this font as a strip, with the baseline at its upper edge.
    static QPixmap Strip_Of(const QFont& font, const QColor& colour, int width, double pixel_ratio);

    /// Begins with the first block in sight, of a text in this font.
    void Begin(const QFont& font);
    /// Underlines what lies in a laid-out block and in sight, with waves from the strip. The offset is that of the
    /// block.
    void Paint(QPainter& painter, const QPixmap& strip, const QTextBlock& block, const Text_Stretches& stretches,
               const QPointF& offset, const QRect& in_sight);

    /// From the left to the right.
    struct Extent
    {
        double begin = 0;
        double end = 0;

        bool operator==(const Extent&) const = default;
    };
    /// A line whose waves have been found: where a place of a text is, is asked for at some cost.
    struct Line
    {
        QString text;
        Text_Stretches marks; ///< within the line
        Extent extent;
        std::vector<Extent> waves;
    };

private:
    QFont m_font;
    std::vector<Line> m_lines; // in sight, as they were painted last
    std::size_t m_next = 0;
};
