// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/updateversion.h"

#include <QVersionNumber>

namespace UpdateVersion {

namespace {

std::optional<int> number(const QStringList& parts, int index)
{
    bool ok = false;
    const int value = parts.value(index).trimmed().toInt(&ok);
    return ok ? std::optional<int>(value) : std::nullopt;
}

QUrl onSite(const QString& site, const QString& path)
{
    QUrl base(site.trimmed());
    if (!base.isValid() || base.host().isEmpty())
        return {};
    QString basePath = base.path();
    while (basePath.endsWith(QLatin1Char('/')))
        basePath.chop(1);
    base.setPath(basePath + path);
    return base;
}

} // namespace

Version running()
{
    const QVersionNumber version = QVersionNumber::fromString(QStringLiteral(Q4V_VERSION));
    return Version{version.majorVersion(), version.minorVersion(), version.microVersion()};
}

QString text(const Version& version)
{
    return QStringLiteral("%1.%2.%3").arg(version.major).arg(version.minor).arg(version.revision);
}

std::optional<QStringList> latestParts(const QByteArray& versionFile)
{
    if (versionFile.size() < 3)
        return std::nullopt;
    return QString::fromLatin1(versionFile).split(QLatin1Char('.'));
}

QString text(const QStringList& latest)
{
    QStringList shown;
    for (qsizetype i = 0; i < 3; ++i)
        shown.append(latest.value(i).trimmed());
    return shown.join(QLatin1Char('.'));
}

bool isNewer(const QStringList& latest, const Version& running)
{
    // A part that is missing or no number, once its rule is reached, ends
    // the comparison: no update.
    const auto major = number(latest, 0);
    if (!major)
        return false;
    if (*major > running.major)
        return true;
    const auto minor = number(latest, 1);
    if (!minor)
        return false;
    if (*minor > running.minor && *major >= running.major)
        return true;
    const auto revision = number(latest, 2);
    return revision && *revision > running.revision && *major >= running.major && *minor >= running.minor;
}

QUrl versionFileUrl(const QString& site)
{
    return onSite(site, QStringLiteral("/downloads/vantageupdate.txt"));
}

QUrl installerUrl(const QString& site)
{
    return onSite(site, QStringLiteral("/downloads/") + QLatin1String(InstallerFileName));
}

} // namespace UpdateVersion
