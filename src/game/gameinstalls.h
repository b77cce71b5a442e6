// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"
#include "platform/gameplaces.h"

#include <QObject>

// The game's installs on this machine, looked for the first time they are
// needed and again when the user asks; the looking runs on a worker
// thread, so a slow disk never freezes a window.
class GameInstalls final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GameInstalls)

public:
    explicit GameInstalls(GamePlaces places, QObject* parent = nullptr);

    const GamePlaces& places() const { return m_places; }
    // Whether the installs have been looked for; found() holds them then.
    bool known() const { return m_known; }
    const QList<GameInstall>& found() const { return m_found; }
    // Looks once; does nothing when they are known or being looked for.
    void look();
    // Looks again, whatever was found before.
    void lookAgain();

signals:
    // The installs are known (again).
    void looked();

private:
    GamePlaces m_places;
    QList<GameInstall> m_found;
    bool m_known = false;
    bool m_looking = false;
    bool m_again = false;
};
