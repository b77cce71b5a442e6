// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class HistoryComboBox;
class SecretStore;
class SettingsStore;

// Where the join password and the remembered passwords are kept: in the
// desktop's keyring when it has one and the user wants it, so the settings
// file holds none; else in the settings file as it always was. What the
// keyring has not confirmed yet goes to the file too: nothing is lost to
// a keyring that is slow, locked or gone.
class PasswordKeeper final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PasswordKeeper)

public:
    // The key of the one secret that holds both, as JSON.
    static constexpr QStringView SecretKey = u"passwords";

    PasswordKeeper(SettingsStore& settings, SecretStore& secrets, HistoryComboBox& box, QObject* parent = nullptr);

    // The file's values at once; the keyring's when it answers, unless the
    // user typed meanwhile.
    void restore();
    void writeOnClose();

    struct Kept {
        QString password;
        QStringList remembered;
        friend bool operator==(const Kept&, const Kept&) = default;
    };
    static QString encode(const Kept& kept);
    // Nothing when the text is not what encode() writes (another program's
    // secret under our name, a damaged one): such a secret is left alone.
    static std::optional<Kept> decode(const QString& text);

private:
    bool wanted() const;
    Kept shown() const;
    void show(const Kept& kept);
    void store();

    SettingsStore& m_settings;
    SecretStore& m_secrets;
    HistoryComboBox& m_box;
    QTimer m_storeSoon;
    std::optional<Kept> m_confirmed; // what the keyring holds for sure
    bool m_unavailable = false;
    bool m_showing = false;
};
