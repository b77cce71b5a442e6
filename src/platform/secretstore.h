// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

class QObject;

// Where secrets are kept instead of the settings file: the desktop's
// keyring (the Secret Service on Linux). Every call answers later, on the
// event loop, through its callback; the callback is dropped when context
// is destroyed first. A desktop without a keyring answers Unavailable.
class SecretStore {
public:
    enum class Answer { Found, Missing, Unavailable };

    virtual ~SecretStore() = default;
    virtual void read(const QString& key, QObject* context,
                      std::function<void(Answer answer, const QString& value)> done) = 0;
    // ok is true once the keyring holds the value.
    virtual void write(const QString& key, const QString& value, QObject* context,
                       std::function<void(bool ok)> done) = 0;
};

// The keyring through QtKeychain, under the program's name.
class KeyringSecretStore final : public SecretStore {
public:
    void read(const QString& key, QObject* context,
              std::function<void(Answer answer, const QString& value)> done) override;
    void write(const QString& key, const QString& value, QObject* context, std::function<void(bool ok)> done) override;
};
