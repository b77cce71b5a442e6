// SPDX-License-Identifier: GPL-2.0-or-later
#include "zipfiles.h"

#include <QFile>

#include <zip.h>

bool writeZip(const QString& path, const QStringList& names)
{
    int error = 0;
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!archive)
        return false;
    for (const QString& name : names) {
        zip_source_t* empty = zip_source_buffer(archive, nullptr, 0, 0);
        if (!empty || zip_file_add(archive, name.toUtf8().constData(), empty, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(empty);
            zip_discard(archive);
            return false;
        }
    }
    return zip_close(archive) == 0;
}
