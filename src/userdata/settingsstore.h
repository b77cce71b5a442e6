#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QSettings;

// The per-user settings: one INI file, one group "Settings", every value a
// string. The file is opened per call and nothing is cached, so a value
// written by one window is what the next read anywhere sees, and two
// running copies of the program overwrite each other key by key.
class SettingsStore final {
public:
    // The file under the user's configuration folder.
    static QString defaultFilePath();

    explicit SettingsStore(QString filePath = defaultFilePath());
    ~SettingsStore();
    Q_DISABLE_COPY(SettingsStore)
    SettingsStore(SettingsStore&&) noexcept;

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

    // The stored text, or the default when the key was never written.
    QString get(QStringView key, const QString& defaultValue = {}) const;
    bool contains(QStringView key) const;
    // False when the value could not be written (unwritable folder, full disk).
    bool save(QStringView key, const QString& value);

    int getNumber(QStringView key, int defaultValue) const;
    bool saveNumber(QStringView key, int value);
    bool getFlag(QStringView key, bool defaultOn) const;
    bool saveFlag(QStringView key, bool on);
    bool getTruth(QStringView key, bool defaultValue) const;
    bool saveTruth(QStringView key, bool value);
    QStringList getEntries(QStringView key) const;
    bool saveEntries(QStringView key, const QStringList& entries);

private:
    QString m_filePath;
    std::unique_ptr<QSettings> m_batch;
    int m_batchDepth = 0;
};
