#pragma once

#include "list/Markup_Reader.h"

#include <QByteArray>
#include <memory>

struct zip;
struct zip_file;

// The files in a ZIP archive, read one after the other. Unpacks no more than a limit in all, so that no archive that
// was made for it fills the memory or takes for ever. Owned by its reader; its thread.
class Zip_Archive
{
public:
    static constexpr qint64 Most_Unpacked = qint64{2} << 30;

    enum class Trouble
    {
        None,
        Damaged,
        Encrypted,
        Too_Large
    };

    /// The bytes are not copied, and outlive it.
    explicit Zip_Archive(const QByteArray& bytes, qint64 most_unpacked = Most_Unpacked);
    ~Zip_Archive();
    Zip_Archive(const Zip_Archive&) = delete;
    Zip_Archive& operator=(const Zip_Archive&) = delete;

    bool Is_Open() const { return m_zip != nullptr; }
    bool Has(const QByteArray& name) const;
    /// Begins to read a file; ends with the one before.
    bool Open(const QByteArray& name);
    /// The next bytes of the open file, at most so many. 0 at its end, and after trouble, which stays.
    qint64 Read(char* bytes, qint64 most);
    /// A small file as a whole.
    QByteArray All_Of(const QByteArray& name, qint64 most);
    Trouble Trouble_So_Far() const { return m_trouble; }

private:
    struct Closing
    {
        void operator()(zip* archive) const;
        void operator()(zip_file* file) const;
    };

    std::unique_ptr<zip, Closing> m_zip;
    std::unique_ptr<zip_file, Closing> m_file;
    qint64 m_room; ///< bytes that may still be unpacked
    Trouble m_trouble = Trouble::None;
};

/// Reads the archive's open file, as long as the archive lives.
Markup_Reader Reader_Of_Archive(Zip_Archive& archive);
