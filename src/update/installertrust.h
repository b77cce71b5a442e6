// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QUrl>

// Whether a downloaded installer may be started: only when every address
// of its way (the version file that offered it, the installer's address and
// every redirect) was HTTPS with a certificate the system trusts, and all
// of its announced length arrived. Plain HTTP, loopback included, never
// is: anyone on the way, a proxy too, could have changed it.
namespace InstallerTrust {

enum class Verdict { Start, PlainHttp, LengthUnknown };
Verdict of(const QList<QUrl>& way, bool lengthAnnounced);

} // namespace InstallerTrust
