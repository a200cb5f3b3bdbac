#include "toolkit/Text_Waves.h"

#include <QGlyphRun>
#include <QPainter>
#include <QPixmapCache>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace {

bool Turns_Text(char32_t character)
{
    switch (QChar::direction(character)) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
    case QChar::DirFSI:
        return true;
    default:
        return false;
    }
}

bool Runs_Both_Ways(const QTextBlock& block)
{
    const auto characters = block.text().toUcs4();
    return block.textDirection() == Qt::RightToLeft || std::any_of(characters.begin(), characters.end(), Turns_Text);
}

// Finds the waves of one block.
class Block_Waves
{
public:
    explicit Block_Waves(const QTextBlock& block)
        : m_layout(*block.layout()), m_text(block.text()), m_begin(block.position()),
          m_runs_both_ways(Runs_Both_Ways(block))
    {
    }

    /// A line in the place of the one that was known before it.
    void Look_At(const QTextLine& line, const Text_Stretches& stretches, Text_Waves::Line& known) const
    {
        const QStringView text = QStringView(m_text).mid(line.textStart(), line.textLength());
        const QRectF place = line.naturalTextRect();
        const Text_Waves::Extent extent{place.left(), place.right()};
        Text_Stretches marks = Marks_Of(line, stretches);
        const bool may_stay = !m_runs_both_ways && m_layout.preeditAreaText().isEmpty();
        if (may_stay && known.extent == extent && known.text == text && known.marks == marks)
            return;
        known = {text.toString(), std::move(marks), extent, {}};
        for (const Text_Stretch& mark : known.marks)
            Find_Waves(line, line.textStart() + mark.at, mark.length, known.waves);
    }

private:
    // What an input method is composing stands in the layout, and not in the text.
    int In_Layout(int at) const
    {
        const int in_block = at - m_begin;
        const bool is_moved = in_block >= m_layout.preeditAreaPosition();
        return in_block + (is_moved ? static_cast<int>(m_layout.preeditAreaText().size()) : 0);
    }

    int End_In_Layout(const Text_Stretch& stretch) const { return In_Layout(stretch.at + stretch.length - 1) + 1; }

    Text_Stretches Marks_Of(const QTextLine& line, const Text_Stretches& stretches) const
    {
        const int begin = line.textStart();
        const int end = begin + line.textLength();
        auto next = std::partition_point(stretches.begin(), stretches.end(),
                                         [&](const Text_Stretch& stretch) { return End_In_Layout(stretch) <= begin; });
        Text_Stretches marks;
        for (; next != stretches.end() && In_Layout(next->at) < end; ++next) {
            const int from = std::max(In_Layout(next->at), begin);
            marks.push_back({from - begin, std::min(End_In_Layout(*next), end) - from});
        }
        return marks;
    }

    void Find_Waves(const QTextLine& line, int from, int length, std::vector<Text_Waves::Extent>& waves) const
    {
        if (!m_runs_both_ways) {
            waves.push_back({line.cursorToX(from), line.cursorToX(from + length)});
            return;
        }
        const auto runs = line.glyphRuns(from, length);
        for (const QGlyphRun& run : runs)
            waves.push_back({run.boundingRect().left(), run.boundingRect().right()});
    }

    const QTextLayout& m_layout;
    QString m_text;
    int m_begin;
    bool m_runs_both_ways;
};

void Paint_Wave(QPainter& painter, const QPixmap& strip, const Text_Waves::Extent& wave, const QPointF& line)
{
    const double begin = std::floor(wave.begin);
    const double ratio = strip.devicePixelRatio();
    painter.drawPixmap(QPointF(line.x() + begin, line.y()), strip,
                       QRectF(begin * ratio, 0, std::ceil(wave.end - wave.begin) * ratio, strip.height()));
}

// A letter that reaches below no line is written over and over, and unseen.
QPixmap Painted_Strip(const QFont& font, const QColor& colour, int width, double pixel_ratio)
{
    QTextCharFormat wave;
    wave.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    wave.setUnderlineColor(colour);
    const int letters = width / std::max(QFontMetrics(font).horizontalAdvance(u'x'), 1) + 2;
    QTextLayout layout(QString(letters, u'x'), font);
    layout.setTextOption(QTextOption(Qt::AlignLeft));
    layout.setFormats({{0, letters, wave}});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setNumColumns(letters);
    layout.endLayout();
    QPixmap strip(QSizeF(width * pixel_ratio, std::ceil(line.descent()) * pixel_ratio).toSize());
    strip.setDevicePixelRatio(pixel_ratio);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    painter.setPen(Qt::transparent);
    layout.draw(&painter, QPointF(0, -line.ascent()));
    return strip;
}

} // namespace

void Text_Waves::Follow_Change(Text_Stretches& stretches, int at, int removed, int added)
{
    const int end = at + removed;
    std::erase_if(stretches,
                  [&](const Text_Stretch& stretch) { return stretch.at < end && stretch.at + stretch.length > at; });
    for (Text_Stretch& stretch : stretches) {
        if (stretch.at >= end)
            stretch.at += added - removed;
    }
}

QPixmap Text_Waves::Strip_Of(const QFont& font, const QColor& colour, int width, double pixel_ratio)
{
    const QString key =
        QStringLiteral("wave/%1/%2/%3/%4").arg(font.key(), colour.name(QColor::HexArgb)).arg(width).arg(pixel_ratio);
    QPixmap strip;
    if (!QPixmapCache::find(key, &strip)) {
        strip = Painted_Strip(font, colour, width, pixel_ratio);
        QPixmapCache::insert(key, strip);
    }
    return strip;
}

void Text_Waves::Begin(const QFont& font)
{
    m_next = 0;
    if (font == m_font)
        return;
    m_font = font;
    m_lines.clear();
}

void Text_Waves::Paint(QPainter& painter, const QPixmap& strip, const QTextBlock& block,
                       const Text_Stretches& stretches, const QPointF& offset, const QRect& in_sight)
{
    const Block_Waves waves(block);
    const QTextLayout& layout = *block.layout();
    m_lines.resize(std::max(m_lines.size(), m_next + static_cast<std::size_t>(layout.lineCount())));
    for (int index = 0; index < layout.lineCount(); ++index) {
        const QTextLine line = layout.lineAt(index);
        Line& known = m_lines[m_next++];
        if (!line.rect().translated(offset).intersects(in_sight))
            continue;
        waves.Look_At(line, stretches, known);
        for (const Extent& wave : known.waves)
            Paint_Wave(painter, strip, wave, {offset.x(), offset.y() + line.y() + line.ascent()});
    }
}
