#include "settingsstore.h"

#include "settingscodec.h"

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

} // namespace

QString SettingsStore::defaultFilePath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, OrganisationAndApplication, OrganisationAndApplication)
        .fileName();
}

SettingsStore::SettingsStore(QString filePath)
    : m_filePath(std::move(filePath))
{
}

SettingsStore::~SettingsStore() = default;
SettingsStore::SettingsStore(SettingsStore&&) noexcept = default;

SettingsStore::Batch::Batch(SettingsStore& store)
    : m_store(store)
{
    if (m_store.m_batchDepth++ == 0) {
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
    if (m_batch) {
        m_batch->setValue(key, value);
        return m_batch->status() == QSettings::NoError;
    }
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.beginGroup(Group);
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

int SettingsStore::getNumber(QStringView key, int defaultValue) const
{
    return SettingsCodec::toNumber(get(key, QString::number(defaultValue)));
}

bool SettingsStore::saveNumber(QStringView key, int value)
{
    return save(key, QString::number(value));
}

bool SettingsStore::getFlag(QStringView key, bool defaultOn) const
{
    return SettingsCodec::isOn(get(key, SettingsCodec::flagText(defaultOn)));
}

bool SettingsStore::saveFlag(QStringView key, bool on)
{
    return save(key, SettingsCodec::flagText(on));
}

bool SettingsStore::getTruth(QStringView key, bool defaultValue) const
{
    return SettingsCodec::toTruth(get(key, SettingsCodec::truthText(defaultValue)), defaultValue);
}

bool SettingsStore::saveTruth(QStringView key, bool value)
{
    return save(key, SettingsCodec::truthText(value));
}

QStringList SettingsStore::getEntries(QStringView key) const
{
    return SettingsCodec::decodeEntries(get(key));
}

bool SettingsStore::saveEntries(QStringView key, const QStringList& entries)
{
    return save(key, SettingsCodec::encodeEntries(entries));
}
