// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// The fuzzer's bytes as the program meets them: datagrams and data files
// are bytes read one character per byte, the settings file is UTF-8.
inline QByteArray bytesOf(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

inline QString latin1Of(const uint8_t* data, size_t size)
{
    return QString::fromLatin1(reinterpret_cast<const char*>(data), qsizetype(size));
}

// A broken promise ends the run with the input that broke it.
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            fprintf(stderr, "check failed: %s (%s:%d)\n", #condition, __FILE__, __LINE__);                             \
            abort();                                                                                                   \
        }                                                                                                              \
    } while (false)
