// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QStringList>

/// The languages that texts are translated into, as their files are called ("de", "pt_BR").
inline QStringList shippedLanguages() {
    QStringList languages = QDir(LUMARO_SOURCE_DIR "/resources/translations").entryList({"lumaro_*.ts"});
    for (QString& language : languages)
        language = language.section('_', 1).section('.', 0, 0);
    return languages;
}
