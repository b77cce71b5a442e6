// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/datafield.h"

#include <QFile>
#include <QSaveFile>

QByteArray dataFileField(const QString& text)
{
    QByteArray bytes = text.toLatin1();
    for (char& byte : bytes) {
        if (byte == '\r' || byte == '\n' || byte == '\x01')
            byte = ' ';
    }
    return bytes;
}

bool writeWholeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(bytes);
    return file.commit();
}

QList<QByteArrayView> dataFileLines(const QByteArray& bytes)
{
    QList<QByteArrayView> lines;
    qsizetype start = 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        QByteArrayView line = QByteArrayView(bytes).sliced(start, end - start);
        start = end + 1;
        if (line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty() && !line.startsWith('#'))
            lines.append(line);
    }
    return lines;
}

QList<QByteArrayView> dataFileFields(QByteArrayView line, int most)
{
    QList<QByteArrayView> fields;
    qsizetype start = 0;
    while (fields.size() < most - 1) {
        const qsizetype tab = line.indexOf('\t', start);
        if (tab < 0)
            break;
        fields.append(line.sliced(start, tab - start));
        start = tab + 1;
    }
    fields.append(line.sliced(start));
    return fields;
}

QByteArray readDataFile(const QString& path, qint64 maxBytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(maxBytes);
}
