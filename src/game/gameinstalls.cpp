// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/gameinstalls.h"

#include "game/installfinder.h"

#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

GameInstalls::GameInstalls(GamePlaces places, QObject* parent)
    : QObject(parent)
    , m_places(std::move(places))
{
}

void GameInstalls::look()
{
    if (m_known || m_looking)
        return;
    m_looking = true;
    auto* watcher = new QFutureWatcher<QList<GameInstall>>(this);
    connect(watcher, &QFutureWatcher<QList<GameInstall>>::finished, this, [this, watcher] {
        const QList<GameInstall> result = watcher->result();
        watcher->deleteLater();
        m_looking = false;
        if (m_again) {
            // Asked again while looking: what the disk holds now counts.
            m_again = false;
            look();
            return;
        }
        m_found = result;
        m_known = true;
        emit looked();
    });
    watcher->setFuture(QtConcurrent::run(&InstallFinder::find, m_places));
}

void GameInstalls::lookAgain()
{
    if (m_looking) {
        m_again = true;
        return;
    }
    m_known = false;
    look();
}
