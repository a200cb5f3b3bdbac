#pragma once

#include <QScrollArea>
#include <vector>

class QBoxLayout;

// What a window shows above its row of buttons. Where the screen has room, it looks as if laid out in the window
// itself; otherwise what is side by side moves one below the other, the whole scrolls, and the buttons stay in sight.
// Part of its window; interface thread only.
class Scrolling_Body : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes everything but the last row out of the column and replaces it there. Returns none for a column that needs
    /// no body: one without a row of buttons, or one whose only content scrolls by itself.
    static Scrolling_Body* Made_For(QBoxLayout& column);
    ~Scrolling_Body() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Lays rows out as columns while they need more than this width.
    void Fit_Into(int width);
    /// The smallest size, at least this wide, at which everything is visible.
    QSize Whole_Size(int width) const;
    /// The height it prefers at a width.
    int Preferred_Height(int width) const;
    /// The width taken up by the scroll bar.
    int Bar_Width() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Scrolling_Body(QBoxLayout& column);
    void Fold_Inner_Rows(int width);
    void Watch_Boxes();
    void Bring_Into_Sight(const QWidget* control);

    struct Row
    {
        QBoxLayout* layout; // the page owns it
        int width = 0;      // that it needed when it was last a row
    };

    QBoxLayout* m_rows; // of the page, which owns it
    std::vector<Row> m_foldable;
};
