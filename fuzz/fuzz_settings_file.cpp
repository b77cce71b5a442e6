// SPDX-License-Identifier: GPL-2.0-or-later
// The settings file as any editor (or a crash of another program) may have
// left it: every key of the table reads without a crash.
#include "fuzzinput.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // A new name each run: QSettings keeps what it parsed per file.
    static QTemporaryDir folder;
    static int run = 0;
    const QString path = folder.filePath(QStringLiteral("Settings%1.ini").arg(++run));
    {
        QFile file(path);
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    }
    SettingsStore store(path);
    store.value(Keys::MasterServer);
    store.value(Keys::Speed);
    store.value(Keys::StartPort);
    store.value(Keys::Maximized);
    store.value(Keys::PlayerNameBox);
    store.get(u"SColumnOrder0");
    QFile::remove(path);
    return 0;
}
