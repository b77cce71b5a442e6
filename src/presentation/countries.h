// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/countrydatabase.h"

#include <QCoreApplication>
#include <QHash>
#include <QIcon>

// The servers' countries as the window shows them: the location database
// of the CountryDatabase setting, opened once (again when the setting
// names another file), and the flags of Debian's flag package, found at
// run time. Without flags a country's code stands in; without a database
// nothing is placed, and the About box says why.
class Countries final {
    Q_DECLARE_TR_FUNCTIONS(Countries)

public:
    inline static const QString DebianFlags = QStringLiteral("/usr/share/flags/countries/16x11");

    explicit Countries(QString flagFolder = DebianFlags);

    // The database of that file, or none; opened only when path changed.
    std::shared_ptr<const CountryDatabase> open(const QString& path);
    // A small flag, or the code drawn as one when the package is missing.
    QIcon flag(const QString& code) const;
    // The country's name in the interface's language (ICU's names), else
    // the database's English one, else the code.
    QString name(const QString& code) const;
    // The language of the names: a locale name such as "de" or "en_GB".
    void setLanguage(const QString& locale);
    // One line for the About box: which database, or why there is none.
    QString status() const;

private:
    QString m_flagFolder;
    QString m_path;
    bool m_tried = false;
    CountryDatabase::Opened m_opened;
    QString m_language = QStringLiteral("en_GB");
    mutable QHash<QString, QIcon> m_flags;
    mutable QHash<QString, QString> m_names; // in m_language
};
