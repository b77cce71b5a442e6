// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/settingsstore.h"

#include "userdata/settingscodec.h"

#include <QFile>
#include <QLockFile>
#include <QSettings>

namespace {

const QString OrganisationAndApplication = QStringLiteral("Quake 4 Vantage");
const QString Group = QStringLiteral("Settings");

// A hand-edited file may hold an unquoted "a,b", which QSettings reads as a
// list; the program only ever stored text, so join it back.
QString asText(const QVariant& value)
{
    if (value.userType() == QMetaType::QStringList)
        return value.toStringList().join(QLatin1Char(','));
    return value.toString();
}

// QSettings guards each write with "<file>.lock" and waits until a lock it
// cannot read is 30 s old. A program killed between creating the lock and
// writing its process number into it leaves such a lock, and the next
// program would freeze for that long at its first write. A writer fills
// its lock at once and holds it for milliseconds, so an unreadable lock
// that has stood for a second belongs to nobody: taking the lock once with
// that rule clears it. (A lock naming a process that is gone, Qt clears by
// itself.)
void clearAbandonedLock(const QString& settingsFile)
{
    const QString lockPath = settingsFile + QStringLiteral(".lock");
    if (!QFile::exists(lockPath))
        return;
    QLockFile lock(lockPath);
    lock.setStaleLockTime(1000);
    if (lock.tryLock(3000))
        lock.unlock();
}

} // namespace

QString SettingsStore::defaultFilePath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, OrganisationAndApplication, OrganisationAndApplication)
        .fileName();
}

SettingsStore::SettingsStore(QString filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(std::move(filePath))
{
}

SettingsStore::~SettingsStore() = default;

SettingsStore::Batch::Batch(SettingsStore& store)
    : m_store(store)
{
    if (m_store.m_batchDepth++ == 0) {
        clearAbandonedLock(m_store.m_filePath);
        m_store.m_batch = std::make_unique<QSettings>(m_store.m_filePath, QSettings::IniFormat);
        m_store.m_batch->beginGroup(Group);
    }
}

SettingsStore::Batch::~Batch()
{
    if (--m_store.m_batchDepth == 0) {
        m_store.m_batch->sync();
        m_store.m_batch.reset();
    }
}

QString SettingsStore::get(QStringView key, const QString& defaultValue) const
{
    QVariant value;
    if (m_batch) {
        value = m_batch->value(key);
    } else {
        QSettings settings(m_filePath, QSettings::IniFormat);
        settings.beginGroup(Group);
        value = settings.value(key);
    }
    if (!value.isValid())
        return defaultValue;
    return asText(value);
}

bool SettingsStore::contains(QStringView key) const
{
    if (m_batch)
        return m_batch->contains(key);
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.beginGroup(Group);
    return settings.contains(key);
}

bool SettingsStore::save(QStringView key, const QString& value)
{
    bool saved = false;
    if (m_batch) {
        // A value that is already there is not set again, so a batch that
        // changes nothing leaves the file untouched.
        const QVariant stored = m_batch->value(key);
        if (stored.isValid() && asText(stored) == value)
            return true;
        m_batch->setValue(key, value);
        saved = m_batch->status() == QSettings::NoError;
    } else {
        clearAbandonedLock(m_filePath);
        QSettings settings(m_filePath, QSettings::IniFormat);
        settings.beginGroup(Group);
        settings.setValue(key, value);
        settings.sync();
        saved = settings.status() == QSettings::NoError;
    }
    if (saved)
        emit changed(key.toString());
    return saved;
}

int SettingsStore::getNumber(QStringView key, int defaultValue) const
{
    return SettingsCodec::toNumber(get(key, QString::number(defaultValue)));
}

bool SettingsStore::saveNumber(QStringView key, int value)
{
    return save(key, QString::number(value));
}

QString SettingsStore::value(const Keys::TextSetting& setting) const
{
    return get(setting.key, setting.defaultValue.toString());
}

int SettingsStore::value(const Keys::NumberSetting& setting) const
{
    return getNumber(setting.key, setting.defaultValue);
}

int SettingsStore::value(const Keys::NumberSetting& setting, int current) const
{
    return getNumber(setting.key, current);
}

bool SettingsStore::value(const Keys::FlagSetting& setting) const
{
    return SettingsCodec::isOn(get(setting.key, SettingsCodec::flagText(setting.defaultValue)));
}

bool SettingsStore::value(const Keys::TruthSetting& setting) const
{
    return SettingsCodec::toTruth(get(setting.key, SettingsCodec::truthText(setting.defaultValue)),
                                  setting.defaultValue);
}

QStringList SettingsStore::value(const Keys::EntriesSetting& setting) const
{
    return SettingsCodec::decodeEntries(get(setting.key));
}

bool SettingsStore::set(const Keys::TextSetting& setting, const QString& value)
{
    return save(setting.key, value);
}

bool SettingsStore::set(const Keys::NumberSetting& setting, int value)
{
    return saveNumber(setting.key, value);
}

bool SettingsStore::set(const Keys::FlagSetting& setting, bool on)
{
    return save(setting.key, SettingsCodec::flagText(on));
}

bool SettingsStore::set(const Keys::TruthSetting& setting, bool value)
{
    return save(setting.key, SettingsCodec::truthText(value));
}

bool SettingsStore::set(const Keys::EntriesSetting& setting, const QStringList& entries)
{
    return save(setting.key, SettingsCodec::encodeEntries(entries));
}
