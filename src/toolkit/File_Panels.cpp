#include "toolkit/File_Panels.h"

#include "toolkit/Remembered.h"
#include "toolkit/Window_Fit.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>

namespace {

const QString Folder_Key = QStringLiteral("Folder");

// The program's own panel and not the desktop's: it looks and works the same everywhere, and asks about the name that
// will really be written to.
// It opens in the folder in which the last one was accepted, while that is there.
class File_Panel : public QFileDialog
{
public:
    explicit File_Panel(QWidget* over) : QFileDialog(over)
    {
        setOption(QFileDialog::DontUseNativeDialog);
        Fit_Window(*this, Letters{.columns = 115, .lines = 34});
        const QString folder = Remembered::Word_For(Folder_Key);
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            setDirectory(folder);
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
        if (exec() != QDialog::Accepted || selectedFiles().isEmpty())
            return std::nullopt;
        Remembered::Put(Folder_Key, directory().absolutePath());
        return selectedFiles().front();
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

protected:
    void accept() override
    {
        const auto chosen = selectedFiles();
        if (!chosen.isEmpty() && !QFileInfo(chosen.front()).isDir()) {
            const QString path = With_Extension(chosen.front(), m_extension);
            if (path != chosen.front())
                selectFile(path);
        }
        File_Panel::accept();
    }

private:
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
    return Save_Panel(over, extension).Ask();
}

QString With_Extension(const QString& path, const QString& extension)
{
    if (QFileInfo(path).suffix().toLower() == extension)
        return path;
    return path + QChar(u'.') + extension;
}
