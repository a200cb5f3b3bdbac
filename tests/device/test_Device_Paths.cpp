#include "device/Device_Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(Lasting_Device_Path, Is_The_Link_By_Id_Where_There_Is_One)
{
    QTemporaryDir folder;
    const QString device = folder.filePath(QStringLiteral("ttyUSB7"));
    const QString links = folder.filePath(QStringLiteral("by-id"));
    ASSERT_TRUE(QFile(device).open(QIODevice::WriteOnly));
    EXPECT_EQ(Lasting_Device_Path(device, links), device) << "there is no such folder";
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("by-id")));
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone")), links + QStringLiteral("/a")));
    EXPECT_EQ(Lasting_Device_Path(device, links), device);
    ASSERT_TRUE(QFile::link(QStringLiteral("../ttyUSB7"), links + QStringLiteral("/usb-Modem-if00")));
    EXPECT_EQ(Lasting_Device_Path(device, links), links + QStringLiteral("/usb-Modem-if00"));
    EXPECT_EQ(Lasting_Device_Path(QStringLiteral("/dev/nothing-here"), links), QStringLiteral("/dev/nothing-here"));
}
