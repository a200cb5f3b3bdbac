#include "list/Zip_Archive.h"

#include <algorithm>
#include <zip.h>

void Zip_Archive::Closing::operator()(zip* archive) const
{
    zip_discard(archive);
}

void Zip_Archive::Closing::operator()(zip_file* file) const
{
    zip_fclose(file);
}

Zip_Archive::Zip_Archive(const QByteArray& bytes, qint64 most_unpacked) : m_room(most_unpacked)
{
    zip_source_t* source =
        zip_source_buffer_create(bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0, nullptr);
    if (source)
        m_zip.reset(zip_open_from_source(source, ZIP_RDONLY, nullptr));
    if (source && !m_zip)
        zip_source_free(source);
    if (!m_zip)
        m_trouble = Trouble::Damaged;
}

Zip_Archive::~Zip_Archive() = default;

bool Zip_Archive::Has(const QByteArray& name) const
{
    return m_zip && zip_name_locate(m_zip.get(), name.constData(), 0) >= 0;
}

bool Zip_Archive::Open(const QByteArray& name)
{
    m_file.reset();
    if (!Has(name) || m_trouble != Trouble::None)
        return false;
    zip_stat_t about;
    zip_stat_init(&about);
    if (zip_stat(m_zip.get(), name.constData(), 0, &about) != 0)
        m_trouble = Trouble::Damaged;
    else if ((about.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && about.encryption_method != ZIP_EM_NONE)
        m_trouble = Trouble::Encrypted;
    else
        m_file.reset(zip_fopen(m_zip.get(), name.constData(), 0));
    if (!m_file && m_trouble == Trouble::None)
        m_trouble = Trouble::Damaged;
    return m_file != nullptr;
}

qint64 Zip_Archive::Read(char* bytes, qint64 most)
{
    if (!m_file || m_trouble != Trouble::None || most <= 0)
        return 0;
    const qint64 count = zip_fread(m_file.get(), bytes, static_cast<zip_uint64_t>(most));
    if (count < 0)
        m_trouble = Trouble::Damaged;
    m_room -= std::max<qint64>(0, count);
    if (m_room < 0)
        m_trouble = Trouble::Too_Large;
    return m_trouble == Trouble::None ? count : 0;
}

QByteArray Zip_Archive::All_Of(const QByteArray& name, qint64 most)
{
    if (!Open(name))
        return {};
    QByteArray all(most, Qt::Uninitialized);
    qint64 size = 0;
    while (const qint64 count = Read(all.data() + size, most - size))
        size += count;
    all.truncate(size);
    return all;
}

Markup_Reader Reader_Of_Archive(Zip_Archive& archive)
{
    return Markup_Reader([&archive](char* bytes, std::size_t most) {
        return static_cast<std::size_t>(archive.Read(bytes, static_cast<qint64>(most)));
    });
}
