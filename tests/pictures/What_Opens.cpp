#include "pictures/What_Opens.h"

#include "support/In_Windows.h"
#include "texts/Texts.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Message_Boxes.h"
#include "windows/main/CorvaneAppDelegate.h"

#include <QDialog>
#include <QMenu>
#include <QTimer>

namespace {

Picture Taken_Of(QMenu& menu, const QString& name)
{
    menu.popup(QPoint());
    QCoreApplication::processEvents();
    Picture picture{name, menu.grab().toImage()};
    menu.close();
    return picture;
}

void Take_With_Parts(QMenu& menu, const QString& name, std::vector<Picture>& taken)
{
    taken.push_back(Taken_Of(menu, name));
    const auto actions = menu.actions();
    for (const QAction* action : actions) {
        if (action->menu())
            taken.push_back(Taken_Of(*action->menu(), name + u' ' + action->text().remove(u'&')));
    }
}

template <class Open>
Picture Taken_Of_What(const QString& name, const Open& open)
{
    Picture picture{name, {}};
    QTimer::singleShot(0, [&] {
        auto& dialog = dynamic_cast<QDialog&>(*QApplication::activeModalWidget());
        for (int round = 0; round < 4; ++round)
            QCoreApplication::processEvents();
        picture.image = dialog.grab().toImage();
        dialog.reject();
    });
    open();
    return picture;
}

} // namespace

std::vector<Picture> What_Opens(CorvaneAppDelegate& main)
{
    std::vector<Picture> taken;
    main.show();
    Take_With_Parts(In<QMenu>(main, "Main_Menu"), QStringLiteral("menu"), taken);
    Take_With_Parts(In<QMenu>(main, "Appearance_Menu"), QStringLiteral("menu of the appearance"), taken);
    taken.push_back(Taken_Of_What("box with a question", [] { Show_YES_NO_MessageBox(Texts::Clear_All); }));
    taken.push_back(Taken_Of_What("box with a notice", [] { Show_MessageBox(Texts::Main::Nothing_Imported); }));
    taken.push_back(Taken_Of_What("panel for a file", [&main] { Ask_For_File_To_Open(&main); }));
    taken.push_back(Taken_Of_What("panel to save a file", [&main] { Ask_For_File_To_Save(&main, "txt"); }));
    main.hide();
    return taken;
}
