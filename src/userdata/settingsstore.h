// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/settingskeys.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QSettings;

// The per-user settings: one INI file, one group "Settings", every value a
// string. The file is opened per call and nothing is cached, so a value
// written by one window is what the next read anywhere sees, and two
// running copies of the program overwrite each other key by key.
class SettingsStore final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsStore)

public:
    // The file under the user's configuration folder.
    static QString defaultFilePath();

    explicit SettingsStore(QString filePath = defaultFilePath(), QObject* parent = nullptr);
    ~SettingsStore() override;

    // Writes made while a batch lives reach the file in one update when it
    // ends, instead of one rewrite of the file per key (closing the main
    // window writes dozens of keys). Batches nest.
    class Batch final {
    public:
        explicit Batch(SettingsStore& store);
        ~Batch();
        Q_DISABLE_COPY_MOVE(Batch)

    private:
        SettingsStore& m_store;
    };

    const QString& filePath() const { return m_filePath; }

    // The keys of the table, typed, with their defaults.
    QString value(const Keys::TextSetting& setting) const;
    int value(const Keys::NumberSetting& setting) const;
    // For the keys whose default is what the window shows now.
    int value(const Keys::NumberSetting& setting, int current) const;
    bool value(const Keys::FlagSetting& setting) const;
    bool value(const Keys::TruthSetting& setting) const;
    QStringList value(const Keys::EntriesSetting& setting) const;
    // False when the value could not be written (unwritable folder, full disk).
    bool set(const Keys::TextSetting& setting, const QString& value);
    bool set(const Keys::NumberSetting& setting, int value);
    bool set(const Keys::FlagSetting& setting, bool on);
    bool set(const Keys::TruthSetting& setting, bool value);
    bool set(const Keys::EntriesSetting& setting, const QStringList& entries);

    // Keys built at run time (per column, per list).
    QString get(QStringView key, const QString& defaultValue = {}) const;
    bool contains(QStringView key) const;
    bool save(QStringView key, const QString& value);
    int getNumber(QStringView key, int defaultValue) const;
    bool saveNumber(QStringView key, int value);

signals:
    // A key was written (whatever the value was before).
    void changed(const QString& key);

private:
    QString m_filePath;
    std::unique_ptr<QSettings> m_batch;
    int m_batchDepth = 0;
};
