// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

Language::Language(QObject* parent)
    : QObject(parent)
{
}

Language::~Language()
{
    removeTranslators();
}

QStringList Language::names()
{
    return {QStringLiteral("English (UK)"),  QStringLiteral("English (US)"), QStringLiteral("Deustch"),
            QStringLiteral("Fran\u00e7ais"), QStringLiteral("Italiano"),     QStringLiteral("Nederlands"),
            QStringLiteral("Portugu\u00eas")};
}

QString Language::localeName(int index)
{
    static const QStringList locales{QStringLiteral("en_GB"), QStringLiteral("en_US"), QStringLiteral("de"),
                                     QStringLiteral("fr"),    QStringLiteral("it"),    QStringLiteral("nl"),
                                     QStringLiteral("pt")};
    return index >= 0 && index < locales.size() ? locales.at(index) : QString();
}

bool Language::apply(int index)
{
    if (index < 0 || index >= Count)
        return false;
    // Removing and installing translators makes Qt post a LanguageChange
    // event to every window, which then retranslates itself.
    removeTranslators();
    m_current = index;
    const QString locale = localeName(index);

    auto program = std::make_unique<QTranslator>();
    if (program->load(QStringLiteral(":/i18n/q4vantage_") + locale)) {
        QCoreApplication::installTranslator(program.get());
        m_program = std::move(program);
    }
    // Qt's own texts (Yes, No, Cancel in message boxes) from Debian's
    // translation package, when it is installed.
    auto qt = std::make_unique<QTranslator>();
    if (index != 0 &&
        qt->load(QStringLiteral("qtbase_") + locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt.get());
        m_qt = std::move(qt);
    }
    return true;
}

void Language::removeTranslators()
{
    if (m_program)
        QCoreApplication::removeTranslator(m_program.get());
    if (m_qt)
        QCoreApplication::removeTranslator(m_qt.get());
    m_program.reset();
    m_qt.reset();
}
