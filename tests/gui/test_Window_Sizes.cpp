#include "gui/Every_Window.h"
#include "gui/Open_Program.h"
#include "gui/Read_As.h"
#include "support/In_Language.h"
#include "support/Screens.h"

#include <map>
#include <tuple>

namespace {

constexpr int Smallest_Points = 9;
constexpr int Largest_Points = 12;

bool Shows_Text(const QWidget& control)
{
    return qobject_cast<const QAbstractButton*>(&control) || qobject_cast<const QLabel*>(&control) ||
           qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control);
}

std::vector<QWidget*> Shown_Controls(QWidget& window)
{
    std::vector<QWidget*> shown;
    const auto controls = window.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (control->isVisible() && control->window() == &window && !control->objectName().isEmpty() &&
            !control->objectName().startsWith(u"qt_"))
            shown.push_back(control);
    }
    return shown;
}

QSize Needed_By(const QWidget& control)
{
    QSize needed = control.minimumSizeHint();
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label && label->wordWrap())
        needed.setHeight(label->heightForWidth(label->width()));
    return needed;
}

/// What a control stands in: the page that scrolls, or the window.
const QWidget& Ground_Of(const QWidget& control)
{
    const auto* body = control.window()->findChild<QScrollArea*>("body");
    return body && body->widget()->isAncestorOf(&control) ? *body->widget() : *control.window();
}

void Expect_Nothing_Cut_Off(QWidget& window)
{
    const auto controls = Shown_Controls(window);
    for (const QWidget* control : controls) {
        const auto name = control->objectName().toStdString();
        if (Shows_Text(*control)) {
            const QSize needed = Needed_By(*control);
            EXPECT_GE(control->width(), needed.width()) << name;
            EXPECT_GE(control->height(), needed.height()) << name;
        }
        const auto& ground = Ground_Of(*control);
        EXPECT_TRUE(ground.rect().contains(QRect(control->mapTo(&ground, QPoint()), control->size()))) << name;
        for (const QWidget* other : controls) {
            EXPECT_TRUE(other == control || other->parent() != control->parent() ||
                        !control->geometry().intersects(other->geometry()))
                << name << " and " << other->objectName().toStdString();
        }
    }
}

/// But for columns that share what room there is, and for the wizard's devices, of which one has a name of any length.
void Expect_Whole_Headings(const QWidget& window)
{
    if (window.objectName() == "Phone_List_Wnd")
        return;
    for (const auto* table : window.findChildren<QTableView*>()) {
        const QHeaderView& header = *table->horizontalHeader();
        if (!table->isVisible() || table->window() != &window || table->objectName() == "_Sample") // headed by a file
            continue;
        const int margin = header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
        for (int column = 0; column < header.count(); ++column) {
            const bool is_last = header.stretchLastSection() && header.visualIndex(column) == header.count() - 1;
            if (is_last || header.sectionResizeMode(column) == QHeaderView::Stretch || header.isSectionHidden(column))
                continue;
            const QString heading = table->model()->headerData(column, Qt::Horizontal).toString();
            EXPECT_GE(header.sectionSize(column), header.fontMetrics().horizontalAdvance(heading) + margin)
                << qPrintable(heading) << " in " << qPrintable(table->objectName());
        }
    }
}

/// Distances are 0, 4, 8, 14 or 20 and nothing else.
void Expect_Spacing_Of_The_Look(const QWidget& window)
{
    const auto is_allowed = [](int distance) { return QList<int>{0, 4, 8, 14, 20}.contains(distance); };
    for (const auto* layout : window.findChildren<QLayout*>()) {
        if (layout->parentWidget() && layout->parentWidget()->window() != &window)
            continue;
        const std::string where = (layout->objectName() + QLatin1String(" in ") +
                                   (layout->parentWidget() ? layout->parentWidget()->objectName() : QString()))
                                      .toStdString();
        const QMargins margins = layout->contentsMargins();
        for (const int margin : {margins.left(), margins.top(), margins.right(), margins.bottom()})
            EXPECT_TRUE(is_allowed(margin)) << margin << " around " << where;
        if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
            EXPECT_TRUE(is_allowed(grid->horizontalSpacing()) && is_allowed(grid->verticalSpacing())) << where;
        } else if (!qobject_cast<const QStackedLayout*>(layout)) {
            EXPECT_TRUE(is_allowed(layout->spacing())) << layout->spacing() << " in " << where;
        }
    }
}

/// The one filled button of a window stands behind the others of its row.
void Expect_The_First_Button_Last(const QWidget& window)
{
    const auto buttons = window.findChildren<QPushButton*>();
    int filled = 0;
    for (const auto* first : buttons) {
        if (!first->isVisible() || first->window() != &window || !first->property("is_first").toBool())
            continue;
        ++filled;
        const QPoint place = first->mapTo(&window, first->rect().center());
        for (const auto* other : buttons) {
            if (!other->isVisible() || other->window() != &window || other->parent() != first->parent())
                continue;
            const QPoint beside = other->mapTo(&window, other->rect().center());
            const bool is_behind = window.isLeftToRight() ? beside.x() > place.x() : beside.x() < place.x();
            EXPECT_FALSE(is_behind && std::abs(beside.y() - place.y()) < other->height() / 2)
                << qPrintable(other->objectName()) << " stands behind " << qPrintable(first->objectName());
        }
    }
    EXPECT_LE(filled, 1);
}

void Expect_Distinct_Mnemonics(QWidget& window)
{
    std::map<QString, QString> taken;
    for (const QWidget* control : Shown_Controls(window)) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const auto* label = qobject_cast<const QLabel*>(control);
        const QString text = button ? button->text() : label && label->buddy() ? label->text() : QString();
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_TRUE(key.isEmpty() || taken.emplace(key, control->objectName()).second)
            << qPrintable(key) << " of " << qPrintable(control->objectName()) << " is also " << qPrintable(taken[key]);
        // What is filled in step by step is done without the mouse.
        const bool is_wizard = window.objectName() == "Exclusion_Wizard" || window.objectName() == "Phone_List_Wnd";
        EXPECT_TRUE(!is_wizard || text.isEmpty() || !key.isEmpty()) << qPrintable(text) << " has no key";
    }
}

void Expect_Names_For_Assistive_Tools(QWidget& window)
{
    for (const QWidget* control : Shown_Controls(window)) {
        // The field in an editable box has a proxy: the box has the focus and the name.
        if (control->focusPolicy() == Qt::NoFocus || control->focusProxy())
            continue;
        const bool has_text = qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QLabel*>(control);
        const QString text = has_text ? control->property("text").toString() : QString();
        EXPECT_FALSE(control->accessibleName().isEmpty() && text.isEmpty()) << qPrintable(control->objectName());
    }
}

/// Nothing takes what it shows for markup, but for the help, whose text is its own.
void Expect_Plain_Texts(const QWidget& window)
{
    const auto* rich_text = window.findChild<QTextEdit*>();
    EXPECT_TRUE(!rich_text || rich_text->objectName() == QStringLiteral("help_text"));
    const auto labels = window.findChildren<QLabel*>();
    for (const auto* label : labels)
        EXPECT_TRUE(!label->isVisible() || label->textFormat() == Qt::PlainText) << qPrintable(label->objectName());
}

/// The body scrolls in one direction alone, and only where the screen has no more room.
void Expect_On_Its_Screen(const QWidget& window)
{
    const QRect room = window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(window.frameGeometry()));
    const auto* body = window.findChild<QScrollArea*>("body");
    if (!body)
        return;
    EXPECT_EQ(body->horizontalScrollBar()->maximum(), 0);
    if (body->verticalScrollBar()->maximum() > 0) {
        EXPECT_GE(window.frameGeometry().height(), room.height() - 3 * window.fontMetrics().lineSpacing());
    }
}

void Expect_Focus_Comes_Into_Sight(QWidget& window)
{
    auto* body = window.findChild<QScrollArea*>("body");
    if (!body || body->verticalScrollBar()->maximum() == 0)
        return;
    QApplication::setActiveWindow(&window);
    for (QWidget* control : Shown_Controls(window)) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isEnabled() || !body->widget()->isAncestorOf(control))
            continue;
        const QWidget& page = *body->widget();
        const bool is_low = control->mapTo(&page, QPoint()).y() > page.height() / 2;
        body->verticalScrollBar()->setValue(is_low ? 0 : body->verticalScrollBar()->maximum());
        window.setFocus();
        control->setFocus();
        const QRect place(control->mapTo(body->viewport(), QPoint()), control->size());
        EXPECT_TRUE(body->viewport()->rect().contains(place) || place.height() > body->viewport()->height())
            << control->objectName().toStdString();
    }
}

} // namespace

// Every window under the fonts that desktops come with: no text is cut, nothing lies outside its window or over
// something else, its buttons are on the screen, no two controls answer to the same key, and all is plain text.
class Window_Sizes : public testing::TestWithParam<std::tuple<const char*, const char*, const char*>>
{
protected:
    struct Program : Open_Program
    {
        using Open_Program::m_delegate;
        Program(const QFont& font, QScreen* screen) : Open_Program(font, screen) {}
        void TestBody() override {}
    };

    // A window that grows lays out its contents anew, which may make it grow once more.
    static void Settle()
    {
        for (int round = 0; round < 4; ++round)
            QCoreApplication::processEvents();
    }

    static void Look_At(QWidget& window, QScreen* screen)
    {
        window.move(screen->availableGeometry().topLeft());
        window.show();
        Settle();
        Expect_Nothing_Cut_Off(window);
        Expect_On_Its_Screen(window);
        Expect_Focus_Comes_Into_Sight(window);
        Expect_Distinct_Mnemonics(window);
        Expect_Names_For_Assistive_Tools(window);
        Expect_Plain_Texts(window);
        Expect_Whole_Headings(window);
        Expect_Spacing_Of_The_Look(window);
        Expect_The_First_Button_Last(window);
        EXPECT_EQ(window.palette().color(QPalette::Window), QColor(241, 244, 250));
        // The toolkit puts the program's name behind every title that does not end with it.
        EXPECT_TRUE(window.windowTitle() == "Corvane" || !window.windowTitle().contains("Corvane"));
        for (const QSize size : {window.minimumSize(), screen->availableSize() - QSize(40, 80)}) {
            window.resize(size);
            Settle();
            SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height());
            Expect_Nothing_Cut_Off(window);
        }
        window.hide();
    }
};

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_And_The_Buttons_Are_On_The_Screen)
{
    const auto& [family, screen_name, language] = GetParam();
    const Read_As reading(language);
    ASSERT_TRUE(QFontDatabase::families().contains(family)) << family << " is not installed";
    QScreen* screen = Screen_Called(screen_name);
    for (int points = Smallest_Points; points <= Largest_Points; ++points) {
        const Program program(QFont(family, points), screen);
        ASSERT_EQ(program.m_delegate->screen(), screen);
        for (const auto& sight : Every_Window()) {
            SCOPED_TRACE(testing::Message() << sight.what << ", " << points << " pt");
            Look_At(sight.Prepared(*program.m_delegate), screen);
        }
    }
}

std::string Font_And_Screen(const testing::TestParamInfo<Window_Sizes::ParamType>& info)
{
    const auto& [family, screen, language] = info.param;
    return QString(family).replace(u' ', u'_').toStdString() + "_" + screen + "_" + language;
}

INSTANTIATE_TEST_SUITE_P(Under, Window_Sizes,
                         testing::Combine(testing::Values("DejaVu Sans", "Noto Sans", "Liberation Sans", "Cantarell"),
                                          testing::Values("desk", "small", "enlarged"), testing::Values("en")),
                         Font_And_Screen);

// The made-up language is 40 % longer than English; what is read from right to left is the same.
INSTANTIATE_TEST_SUITE_P(In_Another_Language, Window_Sizes,
                         testing::Combine(testing::Values("Noto Sans"), testing::Values("desk", "enlarged"),
                                          testing::Values("de", "pseudo", "leftward")),
                         Font_And_Screen);

class Window_Letters : public Window_Sizes
{
};

TEST_P(Window_Letters, No_Two_Controls_Answer_To_The_Same_Key)
{
    const auto& [family, screen_name, language] = GetParam();
    const Read_As reading(language);
    const Program program(QFont(family), Screen_Called(screen_name));
    for (const auto& sight : Every_Window()) {
        SCOPED_TRACE(sight.what);
        QWidget& window = sight.Prepared(*program.m_delegate);
        window.show();
        Settle();
        Expect_Distinct_Mnemonics(window);
        window.hide();
    }
}

INSTANTIATE_TEST_SUITE_P(In, Window_Letters,
                         testing::Combine(testing::Values("Noto Sans"), testing::Values("desk"),
                                          testing::Values("es", "fr", "it", "pl", "pt")),
                         Font_And_Screen);

class Small_Screen : public Open_Program
{
protected:
    Small_Screen() : Open_Program(QFont("Noto Sans", Largest_Points), Screen_Called("small")) {}
};

TEST_F(Small_Screen, The_Wheel_Changes_No_Choice_That_It_Passes)
{
    auto& body = The<QScrollArea>("body");
    auto& box = The<QComboBox>("_Msg_TypeComboBox");
    ASSERT_GT(body.verticalScrollBar()->maximum(), 0);
    const int chosen = box.currentIndex();
    const QPointF middle = box.rect().center();
    QWheelEvent wheel(middle, box.mapToGlobal(middle), {}, QPoint(0, chosen ? 120 : -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentIndex(), chosen);
}

TEST_F(Small_Screen, The_File_Panel_Is_On_It)
{
    user.Will_Do([](QDialog* panel) {
        QCoreApplication::processEvents();
        const QRect frame = panel->frameGeometry();
        EXPECT_TRUE(panel->screen()->availableGeometry().contains(frame));
        panel->reject();
    });
    The<QPushButton>("Load_Number").click();
}

class Main_Window_Size : public Open_Program
{
};

TEST_F(Main_Window_Size, The_Table_And_The_Composer_Take_The_Room_That_A_Larger_Window_Has)
{
    EXPECT_LE(m_delegate->minimumSizeHint().width(), 1024);
    EXPECT_LE(m_delegate->minimumSizeHint().height(), 700);
    const auto sizes_in = [this](int width, int height) {
        m_delegate->resize(width, height);
        QCoreApplication::processEvents();
        return std::pair(The<QTableView>("idTableView").size(), The<QPlainTextEdit>("_messageEdit").size());
    };
    const auto [table, composer] = sizes_in(1024, 700);
    const auto [larger_table, larger_composer] = sizes_in(1600, 1000);
    EXPECT_GT(larger_table.width(), table.width() + 200);
    EXPECT_GT(larger_table.height(), table.height() + 200);
    EXPECT_GT(larger_composer.width(), composer.width() + 100);
    EXPECT_GT(larger_composer.height(), composer.height() + 200);
}

TEST_F(Main_Window_Size, A_Long_Device_Name_Does_Not_Make_The_Window_Grow)
{
    const QSize before = m_delegate->size();
    The<QLabel>("_Device_Name_Ticker").setText(QStringLiteral("/dev/serial/by-id/usb-") + QString(300, u'L'));
    QTest::qWait(20);
    EXPECT_EQ(m_delegate->size(), before);
    EXPECT_LE(m_delegate->minimumSizeHint().width(), 1024) << m_delegate->minimumWidth();
}

TEST_F(Main_Window_Size, Tab_Goes_From_The_Number_To_Send_Through_Every_Control)
{
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    The<QCheckBox>("_Confirm_Chk").click();
    The<QWidget>("_numberEdit").setFocus();
    EXPECT_EQ(Tab_Order(*m_delegate).join(u' '),
              "_numberEdit Add_Number Load_Number Import_Contacts idTableView Export_Btn Clear_Sel_Btn Clear_All_Btn "
              "_messageEdit "
              "Update_Sel_Msgs_Btn Fill_Msg_Btn _Msg_TypeComboBox _Unicode_SMS_Chk _Skip_Duplicate_Chk _Exclusion_Chk "
              "View_ExclusionWizrd_Btn _Save_Sent_Item_Chk Sent_Item_Btn _Save_Templates_Chk View_Templates_Btn "
              "_Confirm_Chk View_Receipts_Btn _Reports_Chk _Keep_Receipt_Chk _Remember_Confirm_Chk "
              "_Delayed_Delivry_Chk _delayed_msg_count_combo _delayed_time_combo _sent_btn Check_List Exit_Btn "
              "Help_Btn _Appearance_Btn Reset_Btn "
              "_NO_Device_Ticker Search_All_Modem _Menu_Btn");
}
