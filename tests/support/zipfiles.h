// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// A zip file (a .pk4) holding empty files of these names, written with
// libzip as the game's tools write them. False when it could not be.
bool writeZip(const QString& path, const QStringList& names);
