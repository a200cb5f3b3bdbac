#pragma once

#include <QLayout>
#include <memory>
#include <vector>

// Lays controls out one beside the other, and in as many lines as the width makes necessary. Part of its widget;
// interface thread.
class Flow_Layout : public QLayout
{
public:
    explicit Flow_Layout(QWidget* widget);
    ~Flow_Layout() override;

    void addItem(QLayoutItem* item) override; ///< takes it
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override; ///< all in one line
    QSize minimumSize() const override;
    void setGeometry(const QRect& place) override;

private:
    int Height_In(const QRect& place, bool moves) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};
