#include "datafield.h"

QByteArray dataFileField(const QString& text)
{
    QByteArray bytes = text.toLatin1();
    for (char& byte : bytes) {
        if (byte == '\r' || byte == '\n' || byte == '\x01')
            byte = ' ';
    }
    return bytes;
}
