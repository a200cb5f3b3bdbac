#pragma once

#include <QByteArray>
#include <gtest/gtest.h>
#include <utility>
#include <vector>
#include <zip.h>

using Archive_Files = std::vector<std::pair<QByteArray, QByteArray>>; ///< by name

/// A ZIP archive; with a password if one is given.
inline QByteArray Archive_Of(const Archive_Files& files, const char* password = nullptr)
{
    zip_source_t* source = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_t* archive = zip_open_from_source(source, ZIP_TRUNCATE, nullptr);
    EXPECT_NE(archive, nullptr);
    zip_source_keep(source);
    for (const auto& [name, content] : files) {
        zip_source_t* bytes =
            zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0);
        const zip_int64_t index = zip_file_add(archive, name.constData(), bytes, 0);
        if (password) {
            EXPECT_EQ(zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index), ZIP_EM_AES_256, password), 0);
        }
    }
    EXPECT_EQ(zip_close(archive), 0);
    QByteArray whole;
    EXPECT_EQ(zip_source_open(source), 0);
    for (QByteArray piece(65536, '\0');;) {
        const zip_int64_t count = zip_source_read(source, piece.data(), static_cast<zip_uint64_t>(piece.size()));
        if (count <= 0)
            break;
        whole += piece.left(count);
    }
    zip_source_free(source);
    return whole;
}
