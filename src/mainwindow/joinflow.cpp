// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joinflow.h"

#include "game/gameinstalls.h"
#include "game/installfinder.h"
#include "game/joincommand.h"
#include "mainwindow/mapcheck.h"
#include "mainwindow/slotwaiter.h"
#include "platform/desktop.h"
#include "query/records.h"
#include "userdata/favourites.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/historycombobox.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

// A server names its map: what a box or the status line quotes of it.
constexpr qsizetype MaxShownMapName = 64;

} // namespace

JoinFlow::Target JoinFlow::Target::of(const ServerRecord& server, const QString& plainName)
{
    Target target{
        server.endpointText(), server.isPassworded(), plainName, !SlotWait::hasFreeSlot(server), server.map, {}};
    for (qsizetype i = 0; i + 1 < server.tokens.size(); i += 2)
        if (server.tokens.at(i).compare(QLatin1String("fs_game"), Qt::CaseInsensitive) == 0)
            target.mod = server.tokens.at(i + 1);
    return target;
}

JoinFlow::JoinFlow(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, QString favouritesPath,
                   QString historyPath, const HistoryComboBox& playerName, const HistoryComboBox& password,
                   QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_installs(installs)
    , m_chooser(settings, desktop, installs)
    , m_favouritesPath(std::move(favouritesPath))
    , m_historyPath(std::move(historyPath))
    , m_playerName(playerName)
    , m_password(password)
    , m_window(window)
    , m_maps(new MapCheck(this))
{
    connect(m_maps, &MapCheck::indexed, this, &JoinFlow::mapStateChanged);
    connect(&m_installs, &GameInstalls::looked, this, &JoinFlow::mapStateChanged);
}

void JoinFlow::joinByAddress()
{
    QString offered;
    for (;;) {
        const auto typed = m_desktop.inputText(
            m_window, tr("Join server by IP Address"),
            tr("Please enter the IP address/hostname and port of the server you wish to join"), offered);
        if (!typed || typed->trimmed().isEmpty())
            return;
        const QString address = typed->trimmed();
        if (isServerAddress(address)) {
            join(Target{address, false, address, false, {}, {}});
            return;
        }
        // Said, and offered again for correction: the game would only
        // fail to connect.
        m_desktop.message(m_window, Desktop::Icon::Warning, tr("Join server by IP Address"),
                          tr("\"%1\" is not a server address. Type a host name or an IP address, followed by a colon "
                             "and a port from 1 to 65535 when the port is not the game's.")
                              .arg(address),
                          QMessageBox::Ok);
        offered = address;
    }
}

QString JoinFlow::passwordFor(const Target& target) const
{
    if (!m_password.currentText().isEmpty())
        return m_password.currentText();
    // The join reads the favourites into a table of its own; a running
    // query's addresses stay as they are.
    if (const auto favourites = Favourites::readFile(m_favouritesPath)) {
        if (const auto favourite = Favourites::toAddressTable(*favourites).lastMatching(target.address))
            return favourite->password;
    }
    return QString();
}

std::optional<GameInstall> JoinFlow::chosenWithoutLooking() const
{
    // A program picked as the game has always been started (Path): nothing
    // to look for first.
    const QString setting = m_settings.value(Keys::Game);
    if (setting.isEmpty() || setting == GameInstall::PickedSetting)
        if (auto picked = InstallFinder::chosen(setting, m_settings.value(Keys::Path), {}, m_installs.places()))
            if (!picked->isWindowsBuild())
                return picked;
    return std::nullopt;
}

QString JoinFlow::mapState(const ServerRecord& server)
{
    std::optional<GameInstall> install = chosenWithoutLooking();
    // Needed now: looked for once, and the pane is told when known.
    m_installs.look();
    if (!install && m_installs.known())
        install = m_chooser.chosen();
    if (!install)
        return {};
    const Target target = Target::of(server, QString());
    switch (m_maps->check(install->gameFolders(), target.map, target.mod)) {
    case MapCheck::Verdict::Installed:
        return tr("installed");
    case MapCheck::Verdict::MissingMap:
    case MapCheck::Verdict::MissingMod:
        return tr("missing");
    default:
        return {};
    }
}

template <typename Sender, typename Signal> void JoinFlow::resumeOn(Sender* sender, Signal signal, const Rest& rest)
{
    // Enter pressed three times while the folders are read is one join.
    disconnect(m_waiting);
    m_waiting = connect(
        sender, signal, this, [this, rest] { proceed(rest); }, Qt::SingleShotConnection);
}

JoinFlow::Settled JoinFlow::settleInstall(std::optional<GameInstall>& install)
{
    if (m_chooser.pickedWithoutPath()) {
        // "Other program" chosen, none picked yet: the documented dialog.
        const auto picked = m_chooser.pick(m_window);
        if (!picked)
            return Settled::No;
        m_chooser.remember(picked->install, picked->path);
        install = picked->install;
        return Settled::Yes;
    }
    if ((install = chosenWithoutLooking()))
        return Settled::Yes;
    if (!m_installs.known()) {
        m_installs.look();
        return Settled::Later;
    }
    if (const auto chosen = m_chooser.chosen()) {
        if (!chosen->isWindowsBuild()) {
            install = chosen;
            return Settled::Yes;
        }
        // An .exe kept from before cannot start here by itself.
        const auto through = m_chooser.runWindowsBuild(m_window, chosen->program);
        if (!through)
            return Settled::No;
        m_chooser.remember(*through);
        install = through;
        return Settled::Yes;
    }
    const QList<GameInstall>& found = m_installs.found();
    if (found.size() == 1) {
        install = found.first();
        m_taken = tr("Using the game found on this machine: %1. Options can choose another.").arg(install->label());
    } else if (found.size() > 1) {
        install = m_chooser.pickFound(m_window);
    } else if (const auto picked = m_chooser.pick(m_window)) {
        m_chooser.remember(picked->install, picked->path);
        install = picked->install;
        return Settled::Yes;
    }
    if (!install)
        return Settled::No;
    m_chooser.remember(*install);
    return Settled::Yes;
}

JoinFlow::Settled JoinFlow::settleMap(const GameInstall& install, const Target& target)
{
    switch (m_maps->check(install.gameFolders(), target.map, target.mod)) {
    case MapCheck::Verdict::NotChecked:
    case MapCheck::Verdict::Installed:
        return Settled::Yes;
    case MapCheck::Verdict::Pending:
        // Read once per folder, off the window's thread; the join goes on
        // when it has been.
        emit status(tr("Looking for %1 in the game's archives...").arg(target.map.left(MaxShownMapName)),
                    StatusTone::Querying);
        return Settled::Later;
    case MapCheck::Verdict::MissingMap:
    case MapCheck::Verdict::MissingMod:
        break;
    }
    const QString map = target.map.left(MaxShownMapName);
    const QString mod = target.mod.left(MaxShownMapName);
    const QString question = GameFiles::modFolder(target.mod).isEmpty()
                                 ? tr("%1 is not installed. Join anyway?").arg(map)
                                 : tr("%1 is not installed (mod %2). Join anyway?").arg(map, mod);
    return m_desktop.message(m_window, Desktop::Icon::Question, target.serverName, question,
                             QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes
               ? Settled::Yes
               : Settled::No;
}

void JoinFlow::join(const Target& target)
{
    disconnect(m_waiting);
    emit joining();
    QString password = passwordFor(target);
    if (target.passworded && password.isEmpty()) {
        password = m_desktop
                       .inputText(m_window, target.serverName, tr("Please enter the password for this server"), {},
                                  Desktop::Echo::Secret)
                       .value_or(QString());
        if (password.isEmpty() &&
            m_desktop.message(m_window, Desktop::Icon::Question, tr("No Password Provided"), tr("Join Server Anyway?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    bool waitForSlot = false;
    if (target.full && m_settings.value(Keys::OfferSlotWait)) {
        const auto answer = m_desktop.message(
            m_window, Desktop::Icon::Question, target.serverName,
            tr("%1 is full.\nWait for a free slot and join as soon as one opens?").arg(target.serverName),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            {{QMessageBox::Yes, tr("Wait for a Slot")}, {QMessageBox::No, tr("Join Anyway")}});
        if (answer != QMessageBox::Yes && answer != QMessageBox::No)
            return;
        waitForSlot = answer == QMessageBox::Yes;
    }
    proceed({target, password, waitForSlot, true});
}

void JoinFlow::start(const Target& target, const QString& password)
{
    disconnect(m_waiting);
    proceed({target, password, false, false});
}

void JoinFlow::proceed(const Rest& rest)
{
    std::optional<GameInstall> install;
    switch (settleInstall(install)) {
    case Settled::No:
        return;
    case Settled::Later:
        emit status(tr("Looking for the game on this machine..."), StatusTone::Querying);
        resumeOn(&m_installs, &GameInstalls::looked, rest);
        return;
    case Settled::Yes:
        break;
    }
    if (rest.checkMap) {
        switch (settleMap(*install, rest.target)) {
        case Settled::No:
            return;
        case Settled::Later:
            resumeOn(m_maps, &MapCheck::indexed, rest);
            return;
        case Settled::Yes:
            break;
        }
    }
    if (rest.waitForSlot)
        emit waitRequested(rest.target, rest.password);
    else
        launch(*install, rest.target, rest.password);
}

void JoinFlow::launch(const GameInstall& install, const Target& target, const QString& password)
{
    const JoinCommand command = JoinCommand::make(install, m_playerName.currentText(), target.address, password);
    // The address only: the status line never shows the password.
    QString said = tr("Connecting to %1").arg(target.address);
    if (!m_taken.isEmpty())
        said += QLatin1Char('\n') + std::exchange(m_taken, QString());
    emit status(said, StatusTone::Done);
    if (!m_desktop.startDetached(command.program, command.arguments, command.workingFolder, command.environment)) {
        const QFileInfo file(command.program);
        const QString why = !file.exists()         ? tr("The game could not be started: %1 does not exist.")
                            : !file.isExecutable() ? tr("The game could not be started: %1 is not a program.")
                                                   : tr("The game could not be started: %1.");
        emit status(why.arg(QDir::toNativeSeparators(command.program)), StatusTone::Failed);
        return;
    }
    record(target);
    emit joined(target.address);
    if (m_settings.value(Keys::CloseAfterJoin))
        emit closeRequested();
}

void JoinFlow::record(const Target& target)
{
    const auto endpoint = parseEndpoint(target.address);
    if (!endpoint)
        return;
    const PlayHistory::Entry entry{endpoint->address, endpoint->port, target.serverName,
                                   m_desktop.clock().nowMs() / 1000};
    if (!PlayHistory::writeFile(m_historyPath, PlayHistory::record(PlayHistory::readFile(m_historyPath), entry)))
        emit status(tr("The game started, but the list of recently played servers could not be saved."),
                    StatusTone::Failed);
}
