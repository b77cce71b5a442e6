// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/countries.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPixmap>

#include <unicode/locid.h>
#include <unicode/unistr.h>

Countries::Countries(QString flagFolder)
    : m_flagFolder(std::move(flagFolder))
{
}

std::shared_ptr<const CountryDatabase> Countries::open(const QString& path)
{
    if (!m_tried || path != m_path) {
        m_tried = true;
        m_path = path;
        m_opened = path.isEmpty() ? CountryDatabase::Opened{nullptr, QString()} : CountryDatabase::open(path);
    }
    return m_opened.database;
}

QIcon Countries::flag(const QString& code) const
{
    if (code.size() != 2)
        return {};
    const auto known = m_flags.constFind(code);
    if (known != m_flags.cend())
        return *known;
    const QString file = QDir(m_flagFolder).filePath(code.toLower() + QStringLiteral(".png"));
    QIcon icon;
    if (QFile::exists(file)) {
        icon = QIcon(file);
    } else {
        // No flag package: the code, small, where the flag would be.
        QPixmap pixmap(16, 11);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        QFont font = painter.font();
        font.setPixelSize(9);
        painter.setFont(font);
        painter.drawText(pixmap.rect(), Qt::AlignCenter, code);
        painter.end();
        icon = QIcon(pixmap);
    }
    m_flags.insert(code, icon);
    return icon;
}

QString Countries::name(const QString& code) const
{
    const auto known = m_names.constFind(code);
    if (known != m_names.cend())
        return *known;
    QString named;
    if (code.size() == 2) {
        icu::UnicodeString text;
        icu::Locale(nullptr, code.toLatin1().constData())
            .getDisplayCountry(icu::Locale(m_language.toLatin1().constData()), text);
        named = QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
    }
    // ICU answers a code it has no name for with the code itself.
    if ((named.isEmpty() || named == code) && m_opened.database)
        named = m_opened.database->nameOf(code);
    if (named.isEmpty())
        named = code;
    m_names.insert(code, named);
    return named;
}

void Countries::setLanguage(const QString& locale)
{
    if (locale == m_language)
        return;
    m_language = locale;
    m_names.clear();
}

QString Countries::status() const
{
    if (m_opened.database)
        return tr("Countries: %1").arg(m_opened.database->description());
    if (m_path.isEmpty())
        return tr("Countries: no location database is set, so no flags are shown.");
    return tr("Countries: no flags are shown, as %1 (the package libloc-database installs one).")
        .arg(m_opened.error.isEmpty() ? m_path : m_opened.error);
}
