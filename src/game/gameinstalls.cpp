// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/gameinstalls.h"

#include "game/installfinder.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

namespace {

struct Look {
    QList<GameInstall> found;
    qint64 ms = 0;
};

Look lookFor(const GamePlaces& places)
{
    QElapsedTimer timer;
    timer.start();
    Look look;
    look.found = InstallFinder::find(places);
    look.ms = timer.elapsed();
    return look;
}

} // namespace

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
    auto* watcher = new QFutureWatcher<Look>(this);
    connect(watcher, &QFutureWatcher<Look>::finished, this, [this, watcher] {
        const Look result = watcher->result();
        watcher->deleteLater();
        m_looking = false;
        if (m_again) {
            // Asked again while looking: what the disk holds now counts.
            m_again = false;
            look();
            return;
        }
        m_found = result.found;
        m_lastLookMs = result.ms;
        m_known = true;
        emit looked();
    });
    watcher->setFuture(QtConcurrent::run(&lookFor, m_places));
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
