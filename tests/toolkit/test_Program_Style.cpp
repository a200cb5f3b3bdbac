#include "support/Serve_Until.h"
#include "support/User.h"
#include "toolkit/Activity_Bar.h"
#include "toolkit/File_Panels.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Look.h"
#include "toolkit/Look_Tokens.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

class Program_Style_Test : public testing::Test
{
protected:
    Program_Style_Test() { Apply_Application_Look(*qApp); }
    ~Program_Style_Test() override { Choose_Look(Look::Light); }

    static QImage Seen(QWidget& widget) { return widget.grab().toImage(); }

    User m_user;
};

struct Named_Things : QWidget
{
    Named_Things()
    {
        auto* column = new QVBoxLayout(this);
        auto* field = new QLineEdit;
        auto* caption = new QLabel("&Number:");
        caption->setBuddy(field);
        for (QWidget* part : std::initializer_list<QWidget*>{caption, field, new QPushButton("&Add"),
                                                             new QCheckBox("&Remember"), new QRadioButton("&Other")})
            column->addWidget(part);
        field->setFocusPolicy(Qt::NoFocus); // no cursor that blinks
        for (auto* button : findChildren<QAbstractButton*>())
            button->setFocusPolicy(Qt::NoFocus);
        Apply_Window_Look(*this);
        show();
    }
};

/// Colours along the middle of a bar, each once.
QList<QRgb> Colours_Along(Activity_Bar& bar)
{
    const QImage seen = bar.grab().toImage();
    QList<QRgb> colours;
    for (int x = bar.height(); x < bar.width() - bar.height(); ++x) {
        if (const QRgb colour = seen.pixel(x, bar.height() / 2); !colours.contains(colour))
            colours.append(colour);
    }
    return colours;
}

} // namespace

TEST_F(Program_Style_Test, Letters_For_The_Keyboard_Are_Underlined_While_Alt_Is_Held)
{
    Named_Things window;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (auto* part : window.findChildren<QWidget*>()) {
        if (qobject_cast<QLineEdit*>(part))
            continue;
        const QImage before = Seen(*part);
        QTest::keyPress(&window, Qt::Key_Alt);
        EXPECT_NE(Seen(*part), before) << part->metaObject()->className();
        QTest::keyRelease(&window, Qt::Key_Alt);
        EXPECT_EQ(Seen(*part), before) << part->metaObject()->className();
        QTest::keyPress(&window, Qt::Key_Alt);
        QEvent left(QEvent::WindowDeactivate); // another program's window has the keys now
        QCoreApplication::sendEvent(&window, &left);
        EXPECT_EQ(Seen(*part), before) << part->metaObject()->className();
    }
}

TEST_F(Program_Style_Test, Letters_Are_Always_Underlined_In_Menus_And_In_High_Contrast)
{
    QWidget window;
    const QMenu menu;
    const auto is_underlined = [](const QWidget& widget) {
        return widget.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &widget) != 0;
    };
    EXPECT_TRUE(is_underlined(menu));
    EXPECT_FALSE(is_underlined(window));
    Choose_Look(Look::Dark);
    EXPECT_FALSE(is_underlined(window));
    Choose_Look(Look::High_Contrast);
    EXPECT_TRUE(is_underlined(window));
}

TEST_F(Program_Style_Test, A_Bar_Without_An_End_Runs_In_Two_Flat_Colours)
{
    Activity_Bar bar;
    bar.setRange(0, 0);
    bar.setTextVisible(false);
    bar.resize(300, 20);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    const QImage at_first = Seen(bar);
    EXPECT_TRUE(Serve_Until([&] { return Seen(bar) != at_first; }));
    EXPECT_TRUE(Serve_Until([&] { return Colours_Along(bar).size() == 2; }));
    for (const QRgb colour : Colours_Along(bar))
        EXPECT_TRUE(colour == Tokens_Now().accent.rgb() || colour == Tokens_Now().bubble.rgb());
    bar.setRange(0, 100);
    bar.setValue(50);
    const QImage half = Seen(bar);
    QTest::qWait(100);
    EXPECT_EQ(Seen(bar), half) << "it stands still";
}

TEST_F(Program_Style_Test, A_Ring_Tells_Which_Of_Several_Selected_Rows_Has_The_Keys)
{
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(new QPushButton("Before"));
    QStandardItemModel rows(3, 2);
    auto* table = new QTableView;
    table->setModel(&rows);
    table->setTabKeyNavigation(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    column->addWidget(table);
    Apply_Window_Look(window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Tab);
    table->setFocus(Qt::TabFocusReason);
    table->setCurrentIndex(rows.index(1, 1));
    const auto has_ring = [&] {
        const QImage cell = table->viewport()->grab(table->visualRect(rows.index(1, 1))).toImage();
        return cell.pixelColor(cell.width() / 2, 0) == Tokens_Now().accent;
    };
    EXPECT_FALSE(has_ring()) << "one row alone is told by its ground";
    table->selectionModel()->select(rows.index(2, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_TRUE(has_ring());
    table->selectionModel()->clearSelection();
    EXPECT_TRUE(has_ring());
    table->selectRow(1);
    table->setCurrentIndex(rows.index(1, 1));
    table->setFrameShape(QFrame::NoFrame);
    EXPECT_TRUE(has_ring()) << "and the table has none of its own";
}

TEST_F(Program_Style_Test, What_Is_First_Stands_Last_In_A_Box)
{
    m_user.Will_Handle(
        [](QMessageBox& box) {
            const auto buttons = box.buttons();
            ASSERT_EQ(buttons.size(), 2);
            const qsizetype yes = buttons.indexOf(box.defaultButton());
            EXPECT_GT(buttons.at(yes)->x(), buttons.at(1 - yes)->x());
            box.defaultButton()->click();
        },
        "Yes");
    EXPECT_TRUE(Show_YES_NO_MessageBox("\nSure?"));
}

TEST_F(Program_Style_Test, The_Panel_For_Files_Is_Drawn_Like_The_Rest)
{
    m_user.Will_Do([](QDialog* panel) {
        for (const auto* button : panel->findChildren<QDialogButtonBox*>().constFirst()->buttons())
            EXPECT_TRUE(button->icon().isNull()) << qPrintable(button->text());
        int icons = 0;
        for (const auto* tool : panel->findChildren<QToolButton*>()) {
            const QImage seen = tool->icon().pixmap(16, 16, QIcon::Normal).toImage();
            for (int y = 0; y < seen.height(); ++y) {
                for (int x = 0; x < seen.width(); ++x) {
                    const QColor point = seen.pixelColor(x, y);
                    EXPECT_TRUE(point.alpha() < 255 || point == Tokens_Now().ink) << qPrintable(tool->objectName());
                }
            }
            icons += tool->icon().isNull() ? 0 : 1;
        }
        EXPECT_GE(icons, 5);
        const QImage chosen =
            panel->style()->standardIcon(QStyle::SP_FileIcon).pixmap(64, 64, QIcon::Selected).toImage();
        bool stands_out = false;
        for (int x = 0; x < chosen.width(); ++x)
            stands_out = stands_out || chosen.pixelColor(x, chosen.height() / 2) == Tokens_Now().on_accent;
        EXPECT_TRUE(stands_out) << "on the ground of a chosen file";
        panel->reject();
    });
    EXPECT_EQ(Ask_For_File_To_Open(nullptr), std::nullopt);
}
