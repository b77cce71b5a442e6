#include "datafield.h"

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
