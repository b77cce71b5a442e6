// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

// What the update site says about the latest release, and whether it is
// newer than the running program: plain rules, no network.
namespace UpdateVersion {

struct Version {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

// The running program's version, from the build.
Version running();
QString text(const Version& version);

// The version file's parts ("1.2.3" -> "1", "2", "3"), split at every
// "."; a line end and whatever follows the last "." stay in the last part.
// Nothing for a file shorter than three characters.
std::optional<QStringList> latestParts(const QByteArray& versionFile);
// The parts as the dialogs show them: major.minor.revision.
QString text(const QStringList& latest);

// Newer when the major is greater; or the minor, the major not being
// smaller; or the revision, neither major nor minor being smaller. Each
// part is read as a whole number (blanks and line ends around it allowed)
// only when its rule is reached: a part that is missing or no number then
// means no update.
bool isNewer(const QStringList& latest, const Version& running);

// Where the site keeps its two files.
QUrl versionFileUrl(const QString& site);
QUrl installerUrl(const QString& site);
inline constexpr auto InstallerFileName = "Quake 4 Vantage Setup.exe";

} // namespace UpdateVersion
