// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/installertrust.h"

#include <algorithm>

namespace InstallerTrust {

Verdict of(const QList<QUrl>& way, bool lengthAnnounced)
{
    const bool encrypted = !way.isEmpty() && std::all_of(way.cbegin(), way.cend(), [](const QUrl& url) {
        return url.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) == 0;
    });
    if (!encrypted)
        return Verdict::PlainHttp;
    return lengthAnnounced ? Verdict::Start : Verdict::LengthUnknown;
}

} // namespace InstallerTrust
