#include "toolkit/File_Panels.h"

#include "platform/Waiting.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Remembered.h"
#include "toolkit/Window_Fit.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>

namespace {

const QString Folder_Key = QStringLiteral("Folder");

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(File_Panels)
};

// The desktop's panel where its theme brings one, and else the toolkit's. The toolkit gives the desktop's to its own
// class alone: a class that has signals of its own would never get it.
// It opens in the folder in which the last one was accepted, while that is there.
class File_Panel : public QFileDialog
{
public:
    explicit File_Panel(QWidget* over) : QFileDialog(over)
    {
        const QString folder = Remembered::Word_For(Folder_Key);
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            setDirectory(folder);
        if (Is_The_Desktops())
            return;
        Fit_Window(*this, Letters{.columns = 115, .lines = 34});
        if (auto* files = findChild<QTreeView*>(QStringLiteral("treeView"))) { // names and dates in full
            files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
            files->header()->setResizeContentsPrecision(0); // of the visible ones: a folder may be large
        }
        if (auto* parts = findChild<QSplitter*>(QStringLiteral("splitter"))) { // the names of places in full, too
            constexpr int letters_of_a_place = 22;
            const int places = fontMetrics().averageCharWidth() * letters_of_a_place;
            parts->setSizes({places, 4 * places});
        }
    }

    std::optional<QString> Ask()
    {
        if (Run() != QDialog::Accepted || selectedFiles().isEmpty())
            return std::nullopt;
        const QString chosen = selectedFiles().front();
        Remembered::Put(Folder_Key, fileMode() == Directory ? chosen : QFileInfo(chosen).absolutePath());
        return chosen;
    }

protected:
    bool Is_The_Desktops() const { return !layout(); } // the toolkit has made no controls for it

private:
    // A desktop's panel may run a loop of its own, which would go on after the program's exit: it is only shown, and
    // waited for here.
    int Run()
    {
        if (Program_Is_Exiting())
            return QDialog::Rejected;
        if (!Is_The_Desktops())
            return exec();
        QEventLoop until_closed;
        connect(this, &QDialog::finished, &until_closed, &QEventLoop::quit);
        setResult(QDialog::Rejected);
        setWindowModality(Qt::ApplicationModal);
        show();
        until_closed.exec();
        return result();
    }
};

// Asks about the file that the name denotes once it has its extension.
class Save_Panel : public File_Panel
{
public:
    Save_Panel(QWidget* over, QString extension) : File_Panel(over), m_extension(std::move(extension))
    {
        setAcceptMode(QFileDialog::AcceptSave);
        setFileMode(QFileDialog::AnyFile);
    }

    // The desktop's panel has asked about the name as it was written, and knows nothing of the extension.
    std::optional<QString> Ask_For_Path()
    {
        for (;;) {
            const auto chosen = Ask();
            const QString path = chosen ? With_Extension(*chosen, m_extension) : QString();
            if (!chosen || !Is_The_Desktops() || path == *chosen || !QFileInfo::exists(path) || May_Replace(path))
                return chosen;
            selectFile(path);
        }
    }

protected:
    void accept() override
    {
        const auto chosen = selectedFiles();
        if (!Is_The_Desktops() && !chosen.isEmpty() && !QFileInfo(chosen.front()).isDir()) {
            const QString path = With_Extension(chosen.front(), m_extension);
            if (path != chosen.front())
                selectFile(path);
        }
        File_Panel::accept();
    }

private:
    static bool May_Replace(const QString& path)
    {
        return Show_YES_NO_MessageBox(
            Words::tr("\n%1 is there already.\n\nDo you want to replace it?").arg(QFileInfo(path).fileName()));
    }

    QString m_extension;
};

} // namespace

std::optional<QString> Ask_For_File_To_Open(QWidget* over)
{
    File_Panel panel(over);
    panel.setAcceptMode(QFileDialog::AcceptOpen);
    panel.setFileMode(QFileDialog::ExistingFile);
    return panel.Ask();
}

std::optional<QString> Ask_For_Folder(QWidget* over)
{
    File_Panel panel(over);
    panel.setAcceptMode(QFileDialog::AcceptOpen);
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly);
    return panel.Ask();
}

std::optional<QString> Ask_For_File_To_Save(QWidget* over, const QString& extension)
{
    return Save_Panel(over, extension).Ask_For_Path();
}

QString With_Extension(const QString& path, const QString& extension)
{
    if (QFileInfo(path).suffix().toLower() == extension)
        return path;
    return path + QChar(u'.') + extension;
}
