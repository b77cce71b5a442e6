// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/servermemory.h"

#include "platform/clock.h"
#include "userdata/knownservers.h"

#include <QDir>
#include <QSet>

ServerMemory::ServerMemory(QString knownPath, const Clock& clock)
    : m_path(std::move(knownPath))
    , m_clock(clock)
{
}

void ServerMemory::note(const ServerRecord& server)
{
    m_answered.append(AddressEntry{server.address, server.port, server.name, {}});
}

QStringList ServerMemory::silent(const AddressTable& asked) const
{
    QSet<QString> answered;
    for (const AddressEntry& entry : m_answered)
        answered.insert(entry.endpointText());
    QStringList silent;
    for (const AddressEntry& entry : asked.entries()) {
        if (!answered.contains(entry.endpointText()))
            silent.append(entry.endpointText());
    }
    return silent;
}

bool ServerMemory::remember(const AddressTable& asked, bool finished)
{
    // Only answers are news; a LAN search asks no list of addresses.
    if (m_answered.isEmpty() && (!finished || asked.isEmpty()))
        return true;
    const KnownServers::List known = KnownServers::readFile(m_path);
    const KnownServers::List updated = KnownServers::update(known, asked, m_answered, m_clock.nowMs() / 1000, finished);
    m_answered.clear();
    return updated == known || KnownServers::writeFile(m_path, updated);
}

QString ServerMemory::notSavedText() const
{
    return tr("The servers that answered could not be remembered in %1.").arg(QDir::toNativeSeparators(m_path));
}
