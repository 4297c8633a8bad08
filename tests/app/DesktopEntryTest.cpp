// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Bundle.h"
#include "platform/base/PropertyList.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <QVariantMap>

// The build picks the types out of the dictionary's text; here it is read as the program reads it.
TEST(DesktopEntry, names_every_type_of_document_that_the_program_opens) {
    const QString resources = platform::Bundle::main().resourcePath();
    const auto dictionary = platform::propertyList::readDictionary(resources + "/Info.plist");
    ASSERT_TRUE(dictionary);
    QStringList wanted;
    for (const QVariant& document : dictionary->value("CFBundleDocumentTypes").toList())
        wanted += document.toMap().value("CFBundleTypeMIMETypes").toStringList();
    wanted.removeDuplicates();
    wanted.sort();
    ASSERT_GT(wanted.size(), 10);

    QFile file(resources + "/../packaging/org.lumaro.Lumaro.desktop");
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    QStringList named;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.startsWith("MimeType="))
            named = line.mid(9).split(';', Qt::SkipEmptyParts);
    named.sort();
    EXPECT_EQ(named, wanted) << named.join(' ').toStdString();
}
