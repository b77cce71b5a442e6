// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/passwordkeeper.h"

#include "platform/secretstore.h"
#include "userdata/settingsstore.h"
#include "widgets/historycombobox.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

PasswordKeeper::PasswordKeeper(SettingsStore& settings, SecretStore& secrets, HistoryComboBox& box, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_secrets(secrets)
    , m_box(box)
{
    // Typing is written a moment after the last key, not per key.
    m_storeSoon.setSingleShot(true);
    m_storeSoon.setInterval(1000);
    connect(&m_storeSoon, &QTimer::timeout, this, &PasswordKeeper::store);
    const auto changed = [this] {
        if (!m_showing && wanted())
            m_storeSoon.start();
    };
    connect(&m_box, &QComboBox::editTextChanged, this, changed);
    connect(m_box.model(), &QAbstractItemModel::rowsInserted, this, changed);
    connect(m_box.model(), &QAbstractItemModel::rowsRemoved, this, changed);
}

QString PasswordKeeper::encode(const Kept& kept)
{
    return QString::fromUtf8(
        QJsonDocument(QJsonObject{{QStringLiteral("password"), kept.password},
                                  {QStringLiteral("remembered"), QJsonArray::fromStringList(kept.remembered)}})
            .toJson(QJsonDocument::Compact));
}

std::optional<PasswordKeeper::Kept> PasswordKeeper::decode(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QJsonValue password = object.value(QStringLiteral("password"));
    const QJsonValue remembered = object.value(QStringLiteral("remembered"));
    if (!password.isString() || !remembered.isArray())
        return std::nullopt;
    Kept kept;
    kept.password = password.toString();
    for (const QJsonValue& entry : remembered.toArray()) {
        if (!entry.isString())
            return std::nullopt;
        kept.remembered.append(entry.toString());
    }
    return kept;
}

bool PasswordKeeper::wanted() const
{
    return m_settings.value(Keys::PasswordsInKeyring) && !m_unavailable;
}

PasswordKeeper::Kept PasswordKeeper::shown() const
{
    return Kept{m_box.currentText(), m_box.entries()};
}

void PasswordKeeper::show(const Kept& kept)
{
    m_showing = true;
    m_box.setEntries(kept.remembered);
    m_box.setEditText(kept.password);
    m_showing = false;
}

void PasswordKeeper::restore()
{
    const Kept plain{m_settings.value(Keys::Password), m_settings.value(Keys::PasswordBox)};
    show(plain);
    if (!wanted())
        return;
    m_secrets.read(SecretKey.toString(), this, [this, plain](SecretStore::Answer answer, const QString& value) {
        if (answer == SecretStore::Answer::Unavailable) {
            m_unavailable = true;
            return;
        }
        std::optional<Kept> read = answer == SecretStore::Answer::Found ? decode(value) : Kept{};
        if (!read) {
            // Not what this program writes: never overwritten; the file
            // keeps the passwords as without a keyring.
            qWarning("The keyring's entry for the passwords is not this program's: it is left as it is.");
            m_unavailable = true;
            return;
        }
        Kept kept = *read;
        m_confirmed = kept;
        // What the file still holds (an older version's, or what the
        // keyring missed at the last close) joins the keyring's.
        for (const QString& entry : plain.remembered)
            if (!kept.remembered.contains(entry))
                kept.remembered.append(entry);
        if (!plain.password.isEmpty())
            kept.password = plain.password;
        // The user may have typed already: that text stays.
        if (m_box.currentText() != plain.password)
            kept.password = m_box.currentText();
        show(kept);
        if (kept != *m_confirmed)
            store();
    });
}

void PasswordKeeper::store()
{
    m_storeSoon.stop();
    const Kept kept = shown();
    m_secrets.write(SecretKey.toString(), encode(kept), this, [this, kept](bool ok) {
        if (ok)
            m_confirmed = kept;
        else
            m_unavailable = true;
    });
}

void PasswordKeeper::writeOnClose()
{
    const Kept kept = shown();
    // Once the keyring holds them, the file keeps none.
    const bool inKeyring = wanted() && m_confirmed == kept;
    if (wanted() && !inKeyring)
        store(); // may land before the end; the file keeps them meanwhile
    const SettingsStore::Batch batch(m_settings);
    m_settings.set(Keys::Password, inKeyring ? QString() : kept.password);
    m_settings.set(Keys::PasswordBox, inKeyring ? QStringList() : kept.remembered);
}
