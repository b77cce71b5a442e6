// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>

// AddressSanitizer keeps freed memory in quarantine (256 MB by default):
// peaks measured under it say nothing about the program.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool PeakMemoryIsMeaningful = false;
#else
inline constexpr bool PeakMemoryIsMeaningful = true;
#endif

// The process's peak resident memory in MB (Linux); with reset, the mark is
// first lowered to what the process holds now.
inline qint64 peakMemoryMb(bool reset)
{
    if (reset) {
        QFile clear(QStringLiteral("/proc/self/clear_refs"));
        if (clear.open(QIODevice::WriteOnly))
            clear.write("5");
    }
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong() / 1024;
    return 0;
}
