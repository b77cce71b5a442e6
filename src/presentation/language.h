// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <QTranslator>

#include <memory>

// The interface language, by the index stored under "Language". English
// (UK) is the source text, so index 0 installs no translation; the others
// are compiled into the program. Installing a translator makes Qt send a
// LanguageChange event to every window, which retranslates itself.
class Language final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Language)

public:
    static constexpr int Count = 7;

    explicit Language(QObject* parent = nullptr);
    ~Language() override;

    // The names as the options dialog lists them (deliberately not
    // translated: each language is shown in its own words).
    static QStringList names();
    // "en_GB", "en_US", "de", ... for index 0..6; empty outside.
    static QString localeName(int index);

    // Switches to the language; an index outside 0..6 changes nothing and
    // returns false.
    bool apply(int index);
    int current() const { return m_current; }

private:
    void removeTranslators();

    int m_current = 0;
    std::unique_ptr<QTranslator> m_program;
    std::unique_ptr<QTranslator> m_qt;
};
